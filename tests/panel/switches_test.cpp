#include <gtest/gtest.h>

#include "panel/go_stop.h"
#include "support/hands.h"
#include "support/rig.h"
#include "support/run_end.h"

namespace caleidoscopio::test {
namespace {

struct Switches : testing::Test, Rig {
  Switches() { generator.otherwise = 0.0F; }
  Timer& timerOf(int k) {
    Timer* const timers[] = {&s.TmrGoD, &s.TmrGoA, &s.TmrGoB,
                             &s.TmrGoC, &s.TmrBrk, &s.TmrSequencer};
    return *timers[k];
  }
  void go() { click(s.cmdGoTimer); }
};

TEST_F(Switches, PutInWhileStoppedWaitsForTheNextGo) {
  for (int k = 0; k <= 5; ++k) {
    click(s.cmdOnOff, k);
    EXPECT_EQ(s.cmdOnOff[k].BackColor, colours::running);
    EXPECT_FALSE(timerOf(k).Enabled());
  }
  EXPECT_EQ(generator.draws, 0);
  go();
  for (int k = 0; k <= 5; ++k) EXPECT_TRUE(timerOf(k).Enabled()) << k;
}

TEST_F(Switches, PutInDuringARunStartsItsTimerAtOnce) {
  go();
  for (int k = 0; k <= 5; ++k) {
    click(s.cmdOnOff, k);
    EXPECT_TRUE(timerOf(k).Enabled()) << k;
  }
}

TEST_F(Switches, PutOutDuringARunStopsItsTimerAndNoOther) {
  for (int k = 0; k <= 5; ++k) s.cmdOnOff[k].BackColor = colours::running;
  go();
  for (int k = 0; k <= 5; ++k) {
    click(s.cmdOnOff, k);
    EXPECT_EQ(s.cmdOnOff[k].BackColor, colours::pressed);
    for (int j = 0; j <= 5; ++j) EXPECT_EQ(timerOf(j).Enabled(), j > k) << k << " " << j;
  }
}

TEST_F(Switches, PutInDuringARunTakesTheSpeedThatTheRowShowsNow) {
  go();
  const char* const speeds[] = {"", "110", "120", "130"};
  for (int k = 1; k <= 3; ++k) {
    s.lblVelo[k].Caption = speeds[k];
    click(s.cmdOnOff, k);
    EXPECT_EQ(std::to_string(timerOf(k).Interval()), speeds[k]);
  }
}

TEST_F(Switches, PutInDuringARunDrawsTheIntervalOfColoursAndOfBreak) {
  go();
  s.lblTmrRndCol[3].Caption = "3";
  pick(4, 4);
  click(s.cmdOnOff, 0);
  EXPECT_EQ(s.TmrGoD.Interval(), 4000);
  s.lblBrk[3].Caption = "2";
  pick(2, 3);
  click(s.cmdOnOff, 4);
  EXPECT_EQ(s.TmrBrk.Interval(), 4000);
}

TEST_F(Switches, TheSequencerPutInDuringARunBringsTimerAWithIt) {
  go();
  click(s.cmdOnOff, 5);
  EXPECT_TRUE(s.TmrSequencer.Enabled() && s.TmrGoA.Enabled());
  EXPECT_EQ(s.cmdOnOff[1].BackColor, colours::pressed);
}

TEST_F(Switches, TheSequencerPutInDuringARunStaysOffWhenTheTablesHeadSaysOff) {
  go();
  s.lblTmrA[0].Caption = "OFF";
  s.TmrSequencer.setEnabled(true);
  click(s.cmdOnOff, 5);
  EXPECT_EQ(s.cmdOnOff[5].BackColor, colours::running);
  EXPECT_FALSE(s.TmrSequencer.Enabled() || s.TmrGoA.Enabled());
}

TEST_F(Switches, AnySwitchPutOutEndsTheRepeatOfTheBreakAndItsLamp) {
  for (int k = 0; k <= 5; ++k) {
    s.cmdOnOff[k].BackColor = colours::running;
    s.lblBreakMode[21].BackColor = s.lblSpiaBreak.BackColor = colours::selected;
    click(s.cmdOnOff, k);
    EXPECT_EQ(s.lblBreakMode[21].BackColor, colours::unselected) << k;
    EXPECT_EQ(s.lblSpiaBreak.BackColor, colours::unselected) << k;
  }
}

TEST_F(Switches, ASwitchPutInLeavesTheLampAlone) {
  s.lblBreakMode[21].BackColor = s.lblSpiaBreak.BackColor = colours::selected;
  click(s.cmdOnOff, 3);
  EXPECT_EQ(s.lblBreakMode[21].BackColor, colours::selected);
  EXPECT_EQ(s.lblSpiaBreak.BackColor, colours::selected);
}

TEST_F(Switches, TheSequencerPutOutRewindsTheCursor) {
  s.cmdOnOff[5].BackColor = colours::running;
  go();
  s.lblSeq[4].Caption = "1";
  s.lblSeq[5].Caption = "6";
  click(s.cmdOnOff, 5);
  EXPECT_EQ(s.lblSeq[4].Caption, "6");
}

TEST_F(Switches, ALitSwitchPutOutActsWhileStoppedToo) {
  s.cmdOnOff[5].BackColor = colours::running;
  s.lblSeq[4].Caption = "3";
  click(s.cmdOnOff, 5);
  EXPECT_EQ(s.lblSeq[4].Caption, "2");
}

TEST_F(Switches, AnyOtherSwitchPutOutLeavesTheCursor) {
  for (int k = 0; k <= 4; ++k) {
    s.cmdOnOff[k].BackColor = colours::running;
    click(s.cmdOnOff, k);
  }
  EXPECT_EQ(s.lblSeq[4].Caption, "4");
}

TEST_F(Switches, ACursorThatIsNoNumberEndsTheRunAndNamesIt) {
  s.cmdOnOff[5].BackColor = colours::running;
  s.lblSeq[4].Caption = "A";
  EXPECT_TRUE(endsTheRun([&] { click(s.cmdOnOff, 5); }, {"lblSeq(4).Caption", "\"A\""}));
}

}  // namespace
}  // namespace caleidoscopio::test
