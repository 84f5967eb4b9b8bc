#include <gtest/gtest.h>

#include <string>

#include "panel/numbers.h"
#include "panel/properties.h"
#include "support/rig.h"
#include "support/run_end.h"

namespace caleidoscopio::test {
namespace {

struct Captions : testing::Test, Rig {
  std::int64_t numberIn(const std::string& caption) {
    s.lblVelo[1].Caption = caption;
    return number(s, s.lblVelo[1]);
  }
  testing::AssertionResult isNoNumber(const std::string& caption) {
    return endsTheRun([&] { numberIn(caption); },
                      {"lblVelo(1).Caption", '"' + caption + '"', "whole number"});
  }
};

TEST_F(Captions, ANumberIsPlainDecimalWithAnOptionalSignAndBlanksAroundIt) {
  EXPECT_EQ(numberIn("500"), 500);
  EXPECT_EQ(numberIn("-36"), -36);
  EXPECT_EQ(numberIn("+36"), 36);
  EXPECT_EQ(numberIn("  7 "), 7);
  EXPECT_EQ(numberIn("007"), 7);
  EXPECT_EQ(numberIn("2147483647"), 2147483647);
  EXPECT_EQ(numberIn("-2147483648"), -2147483648LL);
}

TEST_F(Captions, WhatIsNoNumberEndsTheRunNamingTheControlAndItsValue) {
  for (const char* caption : {"", " ", "x", "1.5", "1e3", "0x10", "+-5", "-+5", "--5", "5 0", "- 5",
                              "5,0", "2147483648", "-2147483649"})
    EXPECT_TRUE(isNoNumber(caption)) << '"' << caption << '"';
}

TEST_F(Captions, ANumberOf16BitsEndsTheRunBeyond32767AndNamesTheControl) {
  s.lblBrk[0].Caption = "32767";
  EXPECT_EQ(number16(s, s.lblBrk[0]), 32767);
  s.lblBrk[0].Caption = "32768";
  EXPECT_TRUE(endsTheRun([&] { number16(s, s.lblBrk[0]); }, {"lblBrk(0).Caption", "32768"}));
  s.lblBrk[0].Caption = "-32769";
  EXPECT_TRUE(endsTheRun([&] { number16(s, s.lblBrk[0]); }, {"lblBrk(0).Caption", "-32769"}));
}

TEST_F(Captions, NumbersAreWrittenWithoutLeadingZeros) {
  EXPECT_EQ(text(0), "0");
  EXPECT_EQ(text(-36), "-36");
  EXPECT_EQ(text(30000), "30000");
}

TEST_F(Captions, AnIndexOutsideAnArrayEndsTheRunNamingArrayAndIndex) {
  EXPECT_TRUE(endsTheRun([&] { s.lblVelo[0]; }, {"lblVelo(0)", "1 to 3"}));
  EXPECT_TRUE(endsTheRun([&] { s.lblIntervalA[13]; }, {"lblIntervalA(13)", "0 to 12"}));
  EXPECT_TRUE(endsTheRun([&] { s.lblMiro2[883]; }, {"lblMiro2(883)", "0 to 882"}));
  EXPECT_TRUE(endsTheRun([&] { click(s.lblSposta, 25); }, {"lblSposta(25)"}));
}

TEST_F(Captions, AnIndexThatWasReadFromACaptionNamesItWithWhatWasReadThere) {
  s.lblIndexTmr.Caption = " 4 ";
  const Number read = number(s, s.lblIndexTmr);
  s.lblIndexTmr.Caption = "changed since";
  EXPECT_EQ(runEndOf([&] { s.lblVelo[read]; }),
            "lblVelo(4): no such element; expected 1 to 3; lblIndexTmr.Caption is \"4\"");
  EXPECT_EQ(runEndOf([&] { s.lblVelo[read + 1]; }),
            "lblVelo(5): no such element; expected 1 to 3; lblIndexTmr.Caption is \"4\"");
  EXPECT_EQ(runEndOf([&] { click(s.lblVelo, read - 4); }),
            "lblVelo(0): no such element; expected 1 to 3; lblIndexTmr.Caption is \"4\"");
  EXPECT_EQ(runEndOf([&] { s.lblVelo[2 * read]; }), "lblVelo(8): no such element; expected 1 to 3");
}

TEST_F(Captions, AnIndexBeyond32BitsIsToldInFull) {
  EXPECT_EQ(runEndOf([&] { s.lblVelo[std::int64_t{-2147483649}]; }),
            "lblVelo(-2147483649): no such element; expected 1 to 3");
}

TEST_F(Captions, AnElementThatNoRuleNamesTakesNoPress) {
  EXPECT_FALSE(s.lblColore.handles(Event::Click, 0));
  EXPECT_FALSE(s.lblSposta.handles(Event::Click, 0));
  EXPECT_FALSE(s.lblValore.handles(Event::Click, 7));
  EXPECT_FALSE(s.lblMiro.handles(Event::Click, 0));
  EXPECT_FALSE(s.Label7.handles(Event::Click));
  s.lblMiro[0].BackColor = {0x123456};
  click(s.lblMiro, 0);
  EXPECT_EQ(s.lblMiro[0].BackColor, Colour{0x123456});
  EXPECT_EQ(s.lblIndex.Caption, "0");
}

/// A property by name, written as text.
struct Properties : testing::Test, Rig {
  Value property(std::string_view name) { return std::get<Value>(s.controls.property(name)); }
  std::string get(std::string_view name) { return toText(property(name)); }
  std::string why(std::string_view name) {
    return std::get<std::string>(s.controls.property(name));
  }
};

TEST_F(Properties, AreWrittenAsMemoriesWriteThem) {
  EXPECT_EQ(get("lblOraria.Caption"), "\"Out\"");
  EXPECT_EQ(get("cmdGoTimer.BackColor"), "-2147483633");
  EXPECT_EQ(get("lblValore(0).BackColor"), "12632064");
  EXPECT_EQ(get("FraPannello(2).Visible"), "#FALSE#");
  EXPECT_EQ(get("TmrGoA.Interval"), "500");
  EXPECT_EQ(get("TmrGoA.Enabled"), "#FALSE#");
  EXPECT_EQ(get("form.BackColor"), "14153725");
  EXPECT_EQ(get("TxtNomeMemoria.Text"), "\"\"");
}

TEST_F(Properties, LengthsHaveSixDecimalsAtMostAndNoTrailingZeros) {
  const auto written = [&](double twips) {
    s.form.geometry().Left = {twips};
    return get("form.Left");
  };
  EXPECT_EQ(written(240), "240");
  EXPECT_EQ(written(262.5), "262.5");
  EXPECT_EQ(written(280.1123046875), "280.112305");
  EXPECT_EQ(written(-0.0000001), "0");
  EXPECT_EQ(written(1e15), "1000000000000000");
}

TEST_F(Properties, ANameThatLeadsNowhereSaysWhy) {
  EXPECT_NE(why("lblNothing.Caption").find("lblNothing"), std::string::npos);
  EXPECT_NE(why("lblVelo.Caption").find("index"), std::string::npos);
  EXPECT_NE(why("lblVelo(4).Caption").find("lblVelo(4)"), std::string::npos);
  EXPECT_NE(why("cmdGoTimer(0).Caption").find("index"), std::string::npos);
  EXPECT_NE(why("lblVelo(1).Interval").find("property"), std::string::npos);
  EXPECT_NE(why("lblVelo(1)").find("property"), std::string::npos);
}

TEST_F(Properties, EveryControlIsListedOnceAndFindsItsOwnElements) {
  for (const Control* control : s.controls.all()) {
    EXPECT_EQ(s.controls.find(control->name()), control);
    if (control->kind() == Kind::Timer) continue;
    for (const int i : {control->first(), control->last()})
      EXPECT_EQ(s.controls.nameOf(control->element(i)), control->nameOf(i));
  }
}

}  // namespace
}  // namespace caleidoscopio::test
