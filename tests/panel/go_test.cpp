#include <gtest/gtest.h>

#include <vector>

#include "panel/go_stop.h"
#include "support/hands.h"
#include "support/rig.h"
#include "support/run_end.h"

namespace caleidoscopio::test {
namespace {

struct Go : testing::Test, Rig {
  Go() { generator.otherwise = 0.0F; }
  void switchIn(int k) { s.cmdOnOff[k].BackColor = colours::running; }
  void go() { click(s.cmdGoTimer); }
};

TEST_F(Go, WithAllSwitchesOutTurnsRedTakesTheSnapshotHidesThePanelsAndMovesNothing) {
  s.lblMiro2[17].BackColor = {0x123456};
  go();
  EXPECT_EQ(s.cmdGoTimer.BackColor, colours::running);
  EXPECT_EQ(s.lblMiro2[441 + 17].BackColor, Colour{0x123456});
  EXPECT_FALSE(s.FraPannello[0].Visible || s.FraPannello[1].Visible);
  EXPECT_EQ(s.time.nextDue(), Time::never);
}

TEST_F(Go, TakesTheIntervalsOfAAndBAndCFromTheSpeedRowsWhateverTheSwitchesSay) {
  s.lblVelo[1].Caption = "70";
  s.lblVelo[2].Caption = "80";
  s.lblVelo[3].Caption = "90";
  go();
  EXPECT_EQ(s.TmrGoA.Interval(), 70);
  EXPECT_EQ(s.TmrGoB.Interval(), 80);
  EXPECT_EQ(s.TmrGoC.Interval(), 90);
  EXPECT_FALSE(s.TmrGoA.Enabled() || s.TmrGoB.Enabled() || s.TmrGoC.Enabled());
}

TEST_F(Go, StartsTheTimersThatAreSwitchedInAndNoOther) {
  Timer* const timers[] = {&s.TmrGoD, &s.TmrGoA, &s.TmrGoB, &s.TmrGoC, &s.TmrBrk, &s.TmrSequencer};
  for (int k = 0; k <= 5; ++k) {
    for (int j = 0; j <= 5; ++j)
      s.cmdOnOff[j].BackColor = j == k ? colours::running : colours::pressed;
    go();
    for (int j = 0; j <= 5; ++j) EXPECT_EQ(timers[j]->Enabled(), j == k) << k << " " << j;
    click(s.cmdGoTimer);
  }
}

TEST_F(Go, LeavesThePanelsWhereHideIsNotSelected) {
  click(s.lblHide);
  go();
  EXPECT_TRUE(s.FraPannello[0].Visible && s.FraPannello[1].Visible);
}

TEST_F(Go, RunsBothIntervalPicksWhateverTheSwitchesSayTheColoursFirst) {
  s.lblTmrRndCol[0].Caption = "1000";
  s.lblTmrRndCol[3].Caption = "1";
  s.lblBrk[0].Caption = "3000";
  s.lblBrk[3].Caption = "3";
  pick(2, 2);
  pick(1, 4);
  go();
  EXPECT_EQ(generator.draws, 2);
  EXPECT_EQ(s.lblTmrRndCol[6].Caption, "2000");
  EXPECT_EQ(s.TmrGoD.Interval(), 2000);
  EXPECT_EQ(s.lblBrk[5].Caption, "3000");
  EXPECT_EQ(s.TmrBrk.Interval(), 3000);
}

TEST_F(Go, DrawsWithNothingToChooseFromToo) {
  s.lblTmrRndCol[3].Caption = "0";
  s.lblBrk[3].Caption = "0";
  go();
  EXPECT_EQ(generator.draws, 2);
}

TEST_F(Go, LightsTheLampWhenTheBreakRepeats) {
  s.lblBreakMode[21].BackColor = colours::selected;
  go();
  EXPECT_EQ(s.lblSpiaBreak.BackColor, colours::selected);
  EXPECT_EQ(s.lblBreakMode[21].BackColor, colours::selected);
}

TEST_F(Go, BringsTheRepeatBackFromTheLamp) {
  s.lblSpiaBreak.BackColor = colours::selected;
  go();
  EXPECT_EQ(s.lblBreakMode[21].BackColor, colours::selected);
}

TEST_F(Go, WithoutLampAndRepeatLightsNeither) {
  go();
  EXPECT_EQ(s.lblSpiaBreak.BackColor, colours::unselected);
  EXPECT_EQ(s.lblBreakMode[21].BackColor, colours::unselected);
}

TEST_F(Go, HidesTheTableThatIsShownAndLeavesItsPlace) {
  s.lblSeq[11].BackColor = colours::selected;
  s.FraPannello[2].Visible = true;
  go();
  EXPECT_FALSE(s.FraPannello[2].Visible);
  EXPECT_EQ(s.FraPannello.geometry(2).Left, Twips{2730});
}

TEST_F(Go, MovesTheTableThatIsNotWantedToTheLeftPanelsPlace) {
  s.FraPannello[2].Visible = true;
  go();
  EXPECT_TRUE(s.FraPannello[2].Visible);
  EXPECT_EQ(s.FraPannello.geometry(2).Left, Twips{210});
}

TEST_F(Go, LeavesTheTableWhereItIsWhenThePanelsStay) {
  click(s.lblHide);
  go();
  EXPECT_EQ(s.FraPannello.geometry(2).Left, Twips{2730});
}

TEST_F(Go, PlacesTheTableByRatioOrByOffsetOfTheScreen) {
  platform.screen = {19200, 14400};
  go();
  EXPECT_EQ(s.FraPannello.geometry(2).Left, Twips{210 * 1.25});
  click(s.cmdGoTimer);
  platform.screen = {20490, 11520};
  go();
  EXPECT_EQ(s.FraPannello.geometry(2).Left, Twips{2565 + 210});
}

TEST_F(Go, LocksTheMemoriesButNotEsc) {
  go();
  for (int i = 0; i <= 15; ++i) EXPECT_FALSE(s.lblSave[i].Enabled) << i;
  EXPECT_FALSE(s.lblCanc.Enabled);
  EXPECT_FALSE(s.lblMemo[1].Enabled || s.lblMemo[2].Enabled);
  EXPECT_FALSE(s.lblComandiVari[0].Enabled || s.lblComandiVari[1].Enabled);
  EXPECT_TRUE(s.lblComandiVari[2].Enabled);
  EXPECT_TRUE(s.lblMemo[0].Enabled);
}

TEST_F(Go, HidesTheMarkOfTheRectangleTool) {
  s.ShpRettangolo.Visible = true;
  go();
  EXPECT_FALSE(s.ShpRettangolo.Visible);
}

/// The table's rows as letters: o white, + in range, # selected; label, A, B, C.
struct TableAtGo : Go {
  std::string row(int r) {
    std::string drawn;
    for (const Label* cell : {&s.lblNOrdine[r], &s.lblTmrA[r], &s.lblTmrB[r], &s.lblTmrC[r]})
      drawn += cell->BackColor == colours::selected     ? '#'
               : cell->BackColor == colours::inRange    ? '+'
               : cell->BackColor == colours::unselected ? 'o'
                                                        : '?';
    return drawn;
  }
};

TEST_F(TableAtGo, MarksTheProgrammeAndTheCursorsRow) {
  switchIn(5);
  s.lblSeq[4].Caption = "3";
  s.lblSeq[5].Caption = "5";
  for (int r = 1; r <= 24; ++r) s.lblNOrdine[r].BackColor = s.lblTmrA[r].BackColor = {0x010203};
  go();
  EXPECT_EQ(row(2), "o+++");
  EXPECT_EQ(row(3), "####");
  EXPECT_EQ(row(4), "o+++");
  EXPECT_EQ(row(5), "o+++");
  for (int r = 6; r <= 24; ++r) EXPECT_EQ(row(r), "oooo") << r;
}

TEST_F(TableAtGo, LeavesRowOneOutOfTheMarking) {
  switchIn(5);
  s.lblSeq[4].Caption = "2";
  s.lblNOrdine[1].BackColor = s.lblTmrA[1].BackColor = {0x010203};
  go();
  EXPECT_EQ(row(1), "??++");
}

TEST_F(TableAtGo, MarksRowOneWhenTheCursorStandsThere) {
  switchIn(5);
  s.lblSeq[4].Caption = "1";
  go();
  EXPECT_EQ(row(1), "####");
}

TEST_F(TableAtGo, LeavesTheTableAloneWhileTheSequencerIsOut) {
  const std::string before = row(4) + row(7);
  go();
  EXPECT_EQ(row(4) + row(7), before);
}

TEST_F(Go, ARangeBeyondTheTableEndsTheRunAndNamesTheRow) {
  switchIn(5);
  s.lblSeq[5].Caption = "25";
  EXPECT_TRUE(endsTheRun([&] { go(); }, {"lblTmrA(25)"}));
}

TEST_F(Go, ASpeedThatIsNoNumberEndsTheRunAndNamesIt) {
  s.lblVelo[3].Caption = "";
  EXPECT_TRUE(endsTheRun([&] { go(); }, {"lblVelo(3).Caption", "\"\""}));
}

}  // namespace
}  // namespace caleidoscopio::test
