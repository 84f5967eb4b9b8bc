#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "shift/shift.h"
#include "shift/shift_modes.h"
#include "support/digit_field.h"
#include "support/hands.h"
#include "support/rig.h"
#include "support/run_end.h"

namespace caleidoscopio::test {
namespace {

struct Selector : testing::Test, Rig {
  std::string mode() const { return s.lblMode[1].Caption; }
  void expectMarkedAlone(int n) {
    for (int i = 1; i <= 24; ++i)
      EXPECT_EQ(s.lblSposta[i].BackColor, i == n ? colours::selected : colours::unselected) << i;
  }
};

TEST_F(Selector, EveryFamilyHasItsTwoModesByName) {
  const char* const names[] = {"Campo Orizzontale", "Strisce Orizzontali", "Strisce H a 3",
                               "Campo Verticale",   "Strisce Verticali",   "Strisce V a 3",
                               "Campo Diagonale A", "Campo Diagonale B",   "Zig-Zag Orizzontale",
                               "Zig-Zag Verticale", "Zig-Zag H a 3",       "Zig-Zag V a 3"};
  for (const std::string direction : {"In", "Out"})
    for (int n = 1; n <= 12; ++n) {
      s.lblOraria.Caption = direction;
      click(s.lblSposta, n);
      EXPECT_EQ(s.lblSomma.Caption, std::to_string((direction == "In" ? 100 : 200) + n));
      EXPECT_EQ(mode(), std::string(names[n - 1]) + " " + direction);
      EXPECT_EQ(s.lblVelo[1].Caption, std::to_string(100 * n));
      EXPECT_EQ(s.TmrGoA.Interval(), 100 * n);
    }
}

TEST_F(Selector, ThereAre24ModesAndNoCodeTwice) {
  std::set<std::string_view> codes;
  for (const ShiftMode& m : shiftModes()) codes.insert(m.code);
  EXPECT_EQ(shiftModes().size(), 24U);
  EXPECT_EQ(codes.size(), 24U);
}

TEST_F(Selector, AClickOnNineGoingOutSetsEverythingOfTheMode) {
  s.lblIntervalA[9].Caption = "640";
  click(s.lblSposta, 9);
  EXPECT_EQ(s.lblCent.Caption, "200");
  EXPECT_EQ(s.lblShift.Caption, "9");
  EXPECT_EQ(s.lblSomma.Caption, "209");
  EXPECT_EQ(mode(), "Zig-Zag Orizzontale Out");
  EXPECT_EQ(s.lblVelo[1].Caption, "640");
  EXPECT_EQ(s.TmrGoA.Interval(), 640);
  EXPECT_EQ(s.lblIntervalA[0].Caption, "9");
  expectMarkedAlone(9);
}

TEST_F(Selector, ThePressOnTheDirectionFlipsItAndKeepsFamilyAndInterval) {
  click(s.lblSposta, 9);
  press(s.lblOraria);
  EXPECT_EQ(s.lblOraria.BackColor, colours::pressed);
  EXPECT_EQ(s.lblOraria.Caption, "In");
  EXPECT_EQ(s.lblCent.Caption, "100");
  EXPECT_EQ(s.lblSomma.Caption, "109");
  EXPECT_EQ(mode(), "Zig-Zag Orizzontale In");
  EXPECT_EQ(s.lblVelo[1].Caption, "900");
  EXPECT_EQ(s.lblIntervalA[0].Caption, "9");
  expectMarkedAlone(9);
  release(s.lblOraria);
  EXPECT_EQ(s.lblOraria.BackColor, colours::unselected);
  EXPECT_EQ(s.lblSomma.Caption, "109");
  press(s.lblOraria);
  EXPECT_EQ(s.lblOraria.Caption, "Out");
  EXPECT_EQ(s.lblSomma.Caption, "209");
}

TEST_F(Selector, AnyDirectionButInCountsAsOut) {
  s.lblOraria.Caption = "in";
  click(s.lblSposta, 2);
  EXPECT_EQ(s.lblSomma.Caption, "202");
  press(s.lblOraria);
  EXPECT_EQ(s.lblOraria.Caption, "In");
  EXPECT_EQ(s.lblSomma.Caption, "102");
}

TEST_F(Selector, ElementsBeyondTwelveAreMarkedAndHaveNoMode) {
  for (const int n : {13, 24}) {
    click(s.lblSposta, 5);
    click(s.lblSposta, n);
    expectMarkedAlone(n);
    EXPECT_EQ(s.lblShift.Caption, std::to_string(n));
    EXPECT_EQ(s.lblSomma.Caption, std::to_string(200 + n));
    EXPECT_EQ(s.lblIntervalA[0].Caption, std::to_string(n));
    EXPECT_EQ(mode(), "Strisce Verticali Out");
    EXPECT_EQ(s.lblVelo[1].Caption, "500");
    EXPECT_EQ(s.TmrGoA.Interval(), 500);
  }
}

TEST_F(Selector, FromThenOnEveryTickDoesNothingAndTheTimerGoesOn) {
  paintQuartet(s, 1, 1, 3);
  const Rows before = quadrantOf(s);
  click(s.lblSposta, 13);
  s.lblMiro2[17].BackColor = {0x123456};  // a commit would overwrite this
  s.TmrGoA.setEnabled(true);
  s.time.advance(5000);
  EXPECT_TRUE(becomes(before, quadrantOf(s), before));
  EXPECT_EQ(s.lblMiro2[17].BackColor, Colour{0x123456});
  EXPECT_TRUE(s.TmrGoA.Enabled());
}

TEST_F(Selector, AClickDoesNotTurnTheTimerOnOrOff) {
  click(s.lblSposta, 3);
  EXPECT_FALSE(s.TmrGoA.Enabled());
  s.TmrGoA.setEnabled(true);
  click(s.lblSposta, 4);
  EXPECT_TRUE(s.TmrGoA.Enabled());
}

TEST_F(Selector, AModeCodeThatWasLoadedActsAtTheNextTickThoughNoNameWasSet) {
  paintQuartet(s, 1, 1, 3);
  s.lblSomma.Caption = "104";
  tick(s.TmrGoA);
  Rows expected(9, std::string(9, '0'));
  expected[1][0] = '3';
  EXPECT_TRUE(becomes({}, quadrantOf(s), expected));
  EXPECT_EQ(mode(), "Campo Orizzontale Out");
}

TEST_F(Selector, AfterALoadTheDirectionCountsFromTheFamilySelectedBefore) {
  // lblShift and lblCent are in no memory.
  click(s.lblSposta, 3);
  s.lblSomma.Caption = "209";
  s.lblIntervalA[0].Caption = "9";
  press(s.lblOraria);
  EXPECT_EQ(s.lblSomma.Caption, "103");
  EXPECT_EQ(mode(), "Strisce H a 3 In");
  EXPECT_EQ(s.lblIntervalA[0].Caption, "9");
}

TEST_F(Selector, AChangeDuringARunTakesTheNewIntervalAtOnceAndTheNewStepAtTheNextTick) {
  paintQuartet(s, 5, 5, 3);
  s.lblOraria.Caption = "In";
  click(s.lblSposta, 12);  // 1200 ms
  s.TmrGoA.setEnabled(true);
  s.time.advance(250);
  click(s.lblSposta, 4);  // 400 ms
  s.time.advance(149);
  EXPECT_EQ(quadrantOf(s)[4][4], '3');
  s.time.advance(1);
  EXPECT_EQ(quadrantOf(s)[5][4], '3');
}

TEST_F(Selector, ReturningToAFamilyBringsItsSpeedBack) {
  click(s.lblSposta, 4);
  press(s.lblPiùTmr, 1);
  s.time.advance(70);
  release(s.lblPiùTmr, 1);
  EXPECT_EQ(s.lblVelo[1].Caption, "425");
  click(s.lblSposta, 5);
  EXPECT_EQ(s.lblVelo[1].Caption, "500");
  click(s.lblSposta, 4);
  EXPECT_EQ(s.lblVelo[1].Caption, "425");
}

TEST_F(Selector, SyncroIsToggledByAClick) {
  click(s.lblSyncro);
  EXPECT_EQ(s.lblSyncro.BackColor, colours::selected);
  click(s.lblSyncro);
  EXPECT_EQ(s.lblSyncro.BackColor, colours::unselected);
}

TEST_F(Selector, AnIntervalThatIsNoNumberEndsTheRunAndNamesIt) {
  s.lblIntervalA[7].Caption = "soon";
  EXPECT_TRUE(endsTheRun([&] { click(s.lblSposta, 7); }, {"lblIntervalA(7).Caption", "\"soon\""}));
}

}  // namespace
}  // namespace caleidoscopio::test
