#include <gtest/gtest.h>

#include <span>
#include <string>
#include <vector>

#include "memories/record.h"
#include "support/rig.h"
#include "support/run_end.h"

namespace caleidoscopio::test {
namespace {

/// A record of four lines: a text, a number, a flag and a colour.
struct Reader : testing::Test, Rig {
  const RecordRun run{0,
                      0,
                      {"lblNomefile.Caption", "lblMiro(7).BorderStyle", "FraPannello(2).Visible",
                       "form.BackColor"}};
  Record record{s.controls, std::span(&run, 1)};

  void read(const std::string& text) { record.read(text, "some/file.txt"); }
  /// The text that a line in a text's place gives.
  std::string asText(const std::string& line) {
    read(line + "\r\n1\r\n#TRUE#\r\n2\r\n");
    return s.lblNomefile.Caption;
  }
  void readNumber(const std::string& line) { read("\"\"\r\n" + line + "\r\n#TRUE#\r\n2\r\n"); }
  int asNumber(const std::string& line) {
    readNumber(line);
    return s.lblMiro[7].BorderStyle;
  }
  void readFlag(const std::string& line) { read("\"\"\r\n1\r\n" + line + "\r\n2\r\n"); }
  bool asFlag(const std::string& line) {
    readFlag(line);
    return s.FraPannello[2].Visible;
  }
};

TEST_F(Reader, TakesEachLineIntoItsProperty) {
  read("\"a title\"\r\n5\r\n#TRUE#\r\n-2147483633\r\n");
  EXPECT_EQ(s.lblNomefile.Caption, "a title");
  EXPECT_EQ(s.lblMiro[7].BorderStyle, 5);
  EXPECT_TRUE(s.FraPannello[2].Visible);
  EXPECT_EQ(s.form.BackColor, Colour{0x8000000F});
}

TEST_F(Reader, ATextLosesItsTwoOuterQuotesAndNoOther) {
  EXPECT_EQ(asText("\"plain\""), "plain");
  EXPECT_EQ(asText("\"\""), "");
  EXPECT_EQ(asText("\"say \"hello\", then go\""), "say \"hello\", then go");
  EXPECT_EQ(asText("\"\"\"\""), "\"\"");
  EXPECT_EQ(asText("\"  blanks stay  \""), "  blanks stay  ");
}

TEST_F(Reader, AnyOtherLineInATextsPlaceIsTheTextItself) {
  EXPECT_EQ(asText("no quotes, a comma"), "no quotes, a comma");
  EXPECT_EQ(asText(""), "");
  EXPECT_EQ(asText("\""), "\"");
  EXPECT_EQ(asText("\"open"), "\"open");
  EXPECT_EQ(asText("close\""), "close\"");
  EXPECT_EQ(asText(" \"blank before\""), " \"blank before\"");
  EXPECT_EQ(asText("17"), "17");
  EXPECT_EQ(asText("#TRUE#"), "#TRUE#");
}

TEST_F(Reader, ANumberMayStandInQuotesAndHaveASignAndBlanks) {
  EXPECT_EQ(asNumber("17"), 17);
  EXPECT_EQ(asNumber("\"17\""), 17);
  EXPECT_EQ(asNumber(" 17 "), 17);
  EXPECT_EQ(asNumber("+17"), 17);
  EXPECT_EQ(asNumber("-17"), -17);
  EXPECT_EQ(asNumber("2147483647"), 2147483647);
  EXPECT_EQ(asNumber("-2147483648"), -2147483647 - 1);
}

TEST_F(Reader, AnythingElseInANumbersPlaceEndsTheRunNamingFileLineControlValueAndExpectation) {
  for (const char* line : {"x", "1.5", "1,5", "", "\"\"", "\"x\"", "#TRUE#", "1e3", "2147483648",
                           "-2147483649", "99999999999999999999", "&HFF", "1 2"})
    EXPECT_TRUE(
        endsTheRun([&] { readNumber(line); }, {"some/file.txt", "line 2", "lblMiro(7).BorderStyle",
                                               '\'' + std::string(line) + '\'', "whole number"}))
        << line;
}

TEST_F(Reader, AFlagMayBeInAnyCaseOfLetters) {
  EXPECT_TRUE(asFlag("#TRUE#"));
  EXPECT_FALSE(asFlag("#FALSE#"));
  EXPECT_TRUE(asFlag("#true#"));
  EXPECT_FALSE(asFlag("#False#"));
  EXPECT_TRUE(asFlag("#tRuE#"));
}

TEST_F(Reader, AnythingElseInAFlagsPlaceEndsTheRun) {
  for (const char* line : {"1", "0", "-1", "TRUE", "#TRUE", "#YES#", "", "\"#TRUE#\"", "#NULL#"})
    EXPECT_TRUE(
        endsTheRun([&] { readFlag(line); },
                   {"some/file.txt", "line 3", "FraPannello(2).Visible", "#TRUE# or #FALSE#"}))
        << line;
}

TEST_F(Reader, ALineFeedAloneEndsALineToo) {
  read("\"a\"\n5\n#TRUE#\r\n7\n");
  EXPECT_EQ(s.lblNomefile.Caption, "a");
  EXPECT_EQ(s.lblMiro[7].BorderStyle, 5);
  EXPECT_EQ(s.form.BackColor, Colour{7});
}

TEST_F(Reader, TheLastLineNeedsNoEnd) {
  read("\"a\"\r\n5\r\n#TRUE#\r\n7");
  EXPECT_EQ(s.form.BackColor, Colour{7});
}

TEST_F(Reader, WhatStandsAfterTheLastLineIsNotRead) {
  read("\"a\"\r\n5\r\n#TRUE#\r\n7\r\nanything\r\n\x01\x02");
  EXPECT_EQ(s.form.BackColor, Colour{7});
}

TEST_F(Reader, AFileThatEndsTooSoonEndsTheRunNamingTheLineThatIsMissing) {
  EXPECT_TRUE(
      endsTheRun([&] { read("\"a\"\r\n5\r\n"); },
                 {"some/file.txt", "line 3", "FraPannello(2).Visible", "expected 4 lines"}));
  EXPECT_TRUE(endsTheRun([&] { read(""); }, {"line 1", "lblNomefile.Caption"}));
}

TEST_F(Reader, WhatWasReadBeforeAFaultHolds) {
  s.form.BackColor = {0x123456};
  runEndOf([&] { read("\"a\"\r\n5\r\nx\r\n7\r\n"); });
  EXPECT_EQ(s.lblNomefile.Caption, "a");
  EXPECT_EQ(s.lblMiro[7].BorderStyle, 5);
  EXPECT_EQ(s.form.BackColor, Colour{0x123456});
}

TEST_F(Reader, ValuesThatNoRuleForbidsAreKeptAsRead) {
  EXPECT_EQ(asNumber("-5"), -5);  // no border looks so; nothing forbids it
  read("\"x\"\r\n99\r\n#TRUE#\r\n305419896\r\n");
  EXPECT_EQ(s.form.BackColor, Colour{0x12345678});
}

TEST_F(Reader, BytesThatAreNoUtf8AreCarriedThrough) {
  const std::string bytes = "\xE8 pi\xC3\xB9 \xFF\x80";
  EXPECT_EQ(asText('"' + bytes + '"'), bytes);
  EXPECT_TRUE(record.write().starts_with('"' + bytes + "\"\r\n"));
}

TEST_F(Reader, EveryTextThatCanBeWrittenComesBack) {
  for (const char* title : {"", "\"", "\"\"", "\"quoted\"", "a,b", "#TRUE#", " ", "più", "5"}) {
    s.lblNomefile.Caption = title;
    const std::string file = record.write();
    s.lblNomefile.Caption = "gone";
    read(file);
    EXPECT_EQ(s.lblNomefile.Caption, title);
  }
}

}  // namespace
}  // namespace caleidoscopio::test
