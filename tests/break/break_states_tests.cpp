// Every event in every state: what a hand, a timer or a memory does to a Break under way.
#include <gtest/gtest.h>

#include <cstdlib>

#include "break_rig.h"
#include "memories/memory_files.h"
#include "mosaic/index_map.h"

namespace caleidoscopio::test {
namespace {

struct BreakStates : testing::Test {
  BreakRig rig;
  Store& s = rig.s;

  void go(std::initializer_list<int> switches) {
    for (int k : switches) s.cmdOnOff[k].BackColor = colours::running;
    rig.anyDraws();
    click(s.cmdGoTimer);
  }
  void repeat() { click(s.lblBreakMode, 21); }
  /// Starts by hand and sweeps `ticks` steps.
  void sweeping(int ticks = 3) {
    rig.start();
    for (int i = 0; i < ticks; ++i) rig.tick();
  }
};

// ---- armed ------------------------------------------------------------------------------------

TEST_F(BreakStates, TheBreakTimerStartsABreakAndTurnsItselfOff) {
  go({1, 4});
  s.time.advance(static_cast<std::uint64_t>(s.TmrBrk.Interval()));
  EXPECT_FALSE(s.TmrBrk.Enabled());
  EXPECT_TRUE(s.TmrBreak.Enabled());
  EXPECT_FALSE(s.TmrGoA.Enabled());
}

TEST_F(BreakStates, StopWhileArmedDisarms) {
  go({1, 4});
  click(s.cmdGoTimer);
  s.time.advance(10000);
  EXPECT_FALSE(s.TmrBreak.Enabled());
  EXPECT_FALSE(rig.locked());
}

TEST_F(BreakStates, SwitchingDOutWhileArmedDisarms) {
  go({1, 4});
  click(s.cmdOnOff, 4);
  s.time.advance(10000);
  EXPECT_FALSE(s.TmrBreak.Enabled());
}

// ---- sweeping ---------------------------------------------------------------------------------

TEST_F(BreakStates, TheBreakTimerInMidSweepStartsAnewOverTheSweepUnderWay) {
  go({4});
  rig.select(6);
  s.lblBreakMode[0].Caption = "2";
  s.lblBreakMode[24].Caption = "Seq";
  click(s.Command7);
  ASSERT_EQ(s.lblBreakMode[17].Caption, "6");
  for (int i = 0; i < 5; ++i) rig.tick();
  s.TmrBrk.raise(Event::Tick);
  EXPECT_EQ(s.lblBreakMode[17].Caption, "1");
  EXPECT_EQ(s.lblBreak.Caption, "12");
  EXPECT_FALSE(s.TmrBrk.Enabled());
  for (int i : {1, 6}) EXPECT_EQ(s.lblBreakMode[i].BackColor, runningPattern) << "both stay marked";
  rig.runOut();
  for (int i : {1, 6}) {
    EXPECT_EQ(s.lblBreakMode[i].BackColor, colours::selected);
    EXPECT_EQ(s.lblBreakMode[i].ForeColor, colours::black);
  }
  EXPECT_FALSE(rig.locked());
}

TEST_F(BreakStates, AtRandomTheMarkedPatternDoesNotCountInASecondStart) {
  // The running pattern's colour is not that of a selected one: with it alone, a second start
  // finds no pattern and the sweep goes on where it was.
  go({4});
  click(s.Command7);
  for (int i = 0; i < 5; ++i) rig.tick();
  s.TmrBrk.raise(Event::Tick);
  EXPECT_EQ(s.lblBreakMode[17].Caption, "1");
  EXPECT_EQ(s.lblBreak.Caption, "7");
  rig.runOut();
  EXPECT_FALSE(rig.locked());
}

TEST_F(BreakStates, InOrderASecondStartThatFindsNoneSelectedTakesThePatternTwentyStepsOn) {
  // Nor does it count in order: twenty steps from 5, round the twelve, lead to 1.
  rig.only(5);
  s.lblBreakMode[24].Caption = "Seq";
  sweeping();
  ASSERT_EQ(s.lblBreakMode[17].Caption, "5");
  s.TmrBrk.raise(Event::Tick);
  EXPECT_EQ(s.lblBreakMode[17].Caption, "1");
  EXPECT_EQ(s.lblBreakMode[25].Caption, "1");
  EXPECT_EQ(s.lblBreak.Caption, "12");
  for (int i : {1, 5}) EXPECT_EQ(s.lblBreakMode[i].BackColor, runningPattern) << i;
  rig.runOut();
  // One was counted and two are selected now: neither is taken for more than the last.
  for (int i : {1, 5}) {
    EXPECT_EQ(s.lblBreakMode[i].BackColor, colours::selected) << i;
    click(s.lblBreakMode, i);
    EXPECT_EQ(s.lblBreakMode[i].BackColor, colours::selected) << i;
    EXPECT_EQ(s.lblBreakMode[0].Caption, "1");
  }
}

TEST_F(BreakStates, ASecondStartOfColourGoesOnAtTheCountOfTheSweepThatUncovered) {
  makeEveryCellItsOwn(s);
  s.lblVoceOpzioni[2].Caption = "Y";
  s.lblBreakMode[19].BackColor = colours::unselected;
  rig.kind("R");
  rig.pick(3, 3);
  rig.pick(1, 1);
  sweeping(5);
  rig.pick(1, 3);  // kind
  rig.pick(3, 7);  // slot
  rig.pick(1, 1);  // among a count of one, of which none is found: the sweep stays where it was
  s.TmrBrk.raise(Event::Tick);
  EXPECT_EQ(s.lblTrans.Caption, "1");
  EXPECT_EQ(s.lblBreak.Caption, "7");
  rig.tick();
  for (int i = 1; i <= 441; ++i) {
    const int away = std::abs(placeOf(i).row - 10);
    const std::string at = std::to_string(i);
    EXPECT_EQ(s.lblMiro[i].Caption, away < 5 ? "p" + at : away == 5 ? "2" : "d" + at) << i;
    // The colour commits the plane, so that what was not uncovered yet is lost.
    EXPECT_EQ(s.lblMiro2[i].BackColor, s.lblMiro[i].BackColor) << i;
  }
  rig.runOut();
  for (int i = 1; i <= 441; ++i) EXPECT_EQ(tripleOf(s.lblMiro[i]), tripleOf(s.lblValore[2])) << i;
  EXPECT_EQ(s.lblBrk[5].Caption, "") << "it ends as a Break of colour, which draws no pause";
}

TEST_F(BreakStates, ASecondStartThatUncoversGoesOnAtTheCountOfTheSweepOfColour) {
  makeEveryCellItsOwn(s);
  s.lblCrea[10].BackColor = colours::selected;
  s.lblValoreB[0].BackColor = {0xABCDEF};
  rig.kind("R");
  rig.pick(1, 3);
  rig.pick(3, 7);
  rig.pick(1, 1);
  sweeping(5);
  rig.pick(3, 3);
  rig.pick(1, 1);
  s.TmrBrk.raise(Event::Tick);
  EXPECT_EQ(s.lblTrans.Caption, "3");
  EXPECT_EQ(s.lblBreak.Caption, "7");
  rig.tick();
  const Colour painted = s.lblValore[2].BackColor;
  for (int i = 1; i <= 441; ++i) {
    const int away = std::abs(placeOf(i).row - 10);
    const Colour untouched{0x100000U + static_cast<std::uint32_t>(i)};
    EXPECT_EQ(s.lblMiro[i].BackColor, away < 5    ? painted
                                      : away == 5 ? Colour{0xABCDEF}
                                                  : untouched)
        << i;
  }
  rig.runOut();
  // It ends as kind 3 does, and the part that was painted stays on the display.
  EXPECT_EQ(s.lblBrk[5].Caption, "4000");
  EXPECT_EQ(s.lblValore[0].BackColor, Colour{0xABCDEF});
  for (int i = 1; i <= 441; ++i)
    EXPECT_EQ(s.lblMiro[i].BackColor,
              std::abs(placeOf(i).row - 10) < 5 ? painted : Colour{0xABCDEF})
        << i;
}

TEST_F(BreakStates, StopInMidSweepLetsItRunOutAndNothingFollows) {
  go({1, 4});
  sweeping();
  click(s.cmdGoTimer);
  EXPECT_TRUE(s.TmrBreak.Enabled());
  EXPECT_TRUE(rig.locked());
  s.time.advance(10000);
  EXPECT_FALSE(s.TmrBreak.Enabled());
  EXPECT_FALSE(rig.locked());
  EXPECT_EQ(s.cmdGoTimer.BackColor, colours::idle);
  EXPECT_EQ(s.time.nextDue(), Time::never);
}

TEST_F(BreakStates, StopInMidSweepEndsARepeat) {
  go({1, 4});
  repeat();
  sweeping();
  click(s.cmdGoTimer);
  EXPECT_EQ(s.lblBreakMode[21].BackColor, colours::unselected);
  EXPECT_EQ(s.lblSpiaBreak.BackColor, colours::selected) << "the lamp keeps it for the next Go";
  s.time.advance(10000);
  EXPECT_FALSE(s.TmrBreak.Enabled());
  EXPECT_EQ(s.time.nextDue(), Time::never);
}

TEST_F(BreakStates, GoInMidSweepRunsTheEnginesBesideIt) {
  sweeping();
  go({1});
  EXPECT_TRUE(s.TmrGoA.Enabled());
  EXPECT_TRUE(s.TmrBreak.Enabled());
  s.time.advance(900);  // the rest of the sweep
  EXPECT_FALSE(s.TmrBreak.Enabled());
  EXPECT_EQ(s.cmdGoTimer.BackColor, colours::running);
}

TEST_F(BreakStates, AnySwitchPutOutInMidSweepEndsARepeatAndTheBreakHandsBackToGo) {
  for (int k = 0; k <= 5; ++k) {
    BreakRig own;
    Store& t = own.s;
    own.anyDraws();
    for (int i = 0; i <= 5; ++i) t.cmdOnOff[i].BackColor = colours::running;
    click(t.cmdGoTimer);
    click(t.lblBreakMode, 21);
    click(t.Command7);
    own.tick();
    click(t.cmdOnOff, k);
    EXPECT_EQ(t.lblBreakMode[21].BackColor, colours::unselected) << k;
    EXPECT_EQ(t.lblSpiaBreak.BackColor, colours::unselected) << k;
    own.runOut();
    EXPECT_FALSE(own.locked());
    EXPECT_EQ(t.cmdGoTimer.BackColor, colours::running);
    const Timer* timers[] = {&t.TmrGoD, &t.TmrGoA, &t.TmrGoB,
                             &t.TmrGoC, &t.TmrBrk, &t.TmrSequencer};
    for (int i = 0; i <= 5; ++i) EXPECT_EQ(timers[i]->Enabled(), i != k) << i << " without " << k;
  }
}

TEST_F(BreakStates, ASwitchPutInInMidSweepStartsItsTimerAtOnce) {
  go({});
  sweeping();
  click(s.cmdOnOff, 1);
  EXPECT_TRUE(s.TmrGoA.Enabled());
  click(s.cmdOnOff, 4);
  EXPECT_TRUE(s.TmrBrk.Enabled());
  EXPECT_TRUE(s.TmrBreak.Enabled());
  rig.runOut();
  EXPECT_FALSE(rig.locked());
}

TEST_F(BreakStates, RepeatSetInMidSweepIsFeltAtItsEnd) {
  sweeping();
  repeat();
  rig.runOut();
  EXPECT_TRUE(s.TmrBreak.Enabled());
  repeat();
  rig.runOut();
  EXPECT_FALSE(s.TmrBreak.Enabled());
}

TEST_F(BreakStates, AWaitSetInMidSweepIsFeltAtItsEnd) {
  sweeping();
  s.lblBreakMode.raise(Event::MouseDown, 23);
  rig.runOut();
  EXPECT_TRUE(s.TmrAspetta.Enabled());
  EXPECT_EQ(s.TmrAspetta.Interval(), 250);
}

TEST_F(BreakStates, AMemoryLoadedInMidSweepChangesThePatternAndTheBreakStillEnds) {
  rig.only(7);
  s.lblBreakMode[17].Caption = "7";
  s.lblTmrBreak[0].Caption = "40";
  s.TmrBreak.setInterval(40);
  SalvaMemoria(s);
  s.lblTmrBreak[0].Caption = "100";
  rig.only(6);
  rig.start();
  for (int i = 0; i < 5; ++i) rig.tick();
  CaricaMemoria(s);
  EXPECT_TRUE(s.TmrBreak.Enabled());
  EXPECT_TRUE(rig.locked());
  EXPECT_EQ(s.lblBreakMode[17].Caption, "7");
  EXPECT_EQ(s.lblBreak.Caption, "17") << "the count is in no memory";
  EXPECT_EQ(s.TmrBreak.Interval(), 40);
  const auto before = planeOf(s.lblMiro);
  rig.tick();  // 16 is above the eleven rings of the crosses
  EXPECT_EQ(planeOf(s.lblMiro), before);
  s.time.advance(40 * 16);
  EXPECT_FALSE(s.TmrBreak.Enabled());
  EXPECT_FALSE(rig.locked());
  EXPECT_EQ(s.lblBreakMode[7].BackColor, colours::selected);
  EXPECT_EQ(s.lblBreakMode[6].BackColor, colours::unselected) << "its mark went with the memory";
}

TEST_F(BreakStates, AMemorySavedInMidSweepKeepsTheMarkAndTheNextBreakClearsIt) {
  rig.only(6);
  sweeping();
  SalvaMemoria(s);
  rig.runOut();
  CaricaMemoria(s);
  EXPECT_EQ(s.lblBreakMode[6].BackColor, runningPattern);
  click(s.lblBreakMode, 6);
  EXPECT_EQ(s.lblBreakMode[6].BackColor, runningPattern) << "a click on it does nothing";
  rig.start();
  rig.runOut();
  EXPECT_EQ(s.lblBreakMode[6].BackColor, colours::selected);
}

TEST_F(BreakStates, TheServiceButtonLeavesTheSweepHalfDoneAndTheButtonsLocked) {
  makeEveryCellItsOwn(s);
  go({1});
  sweeping(4);
  click(s.Command8);
  const auto half = planeOf(s.lblMiro);
  s.time.advance(60000);
  EXPECT_EQ(planeOf(s.lblMiro), half);
  EXPECT_NE(half, planeOf(s.lblMiro2));
  EXPECT_TRUE(rig.locked());
  for (Timer* timer : {&s.TmrGoA, &s.TmrGoB, &s.TmrGoC, &s.TmrGoD, &s.TmrBrk, &s.TmrBreak})
    EXPECT_FALSE(timer->Enabled());
  EXPECT_EQ(s.lblBreakMode[1].BackColor, runningPattern);
}

TEST_F(BreakStates, ABreakOfTheTimerFreesWhatTheServiceButtonLocked) {
  go({4});
  sweeping(4);
  click(s.Command8);
  s.time.advance(60000);  // TmrBrk was not stopped by the Break; it starts another
  EXPECT_GT(s.TmrBrk.Interval(), 0);
  EXPECT_EQ(s.cmdGoTimer.BackColor, colours::running);
  s.TmrBrk.setEnabled(false);
  if (s.TmrBreak.Enabled()) rig.runOut();
  EXPECT_FALSE(rig.locked());
}

TEST_F(BreakStates, OptionsOfTheBreakTimerMoveWhileItSweeps) {
  go({4});
  sweeping();
  s.lblBrk.raise(Event::MouseDown, 2);
  EXPECT_EQ(s.TmrBrk.Interval(), 3100);
  s.time.advance(75);
  s.lblBrk.raise(Event::MouseUp, 2);
  EXPECT_EQ(s.lblBrk[0].Caption, "3200");
  EXPECT_EQ(s.TmrBrk.Interval(), 3100);
}

// ---- TmrBrk, still on through a Break by hand -------------------------------------------------

/// Breaks of one colour, which draw no pause of their own: what Go draws is all.
struct BreakTimerThrough : BreakStates {
  void SetUp() override {
    rig.kind("U");
    s.lblBreakMode[19].BackColor = colours::unselected;
  }
  /// The two draws of a Go, the second of which is the pause until the next Break.
  void nextPause(int entry) {
    rig.pick(1, 1);
    rig.pick(entry, 3);
  }
};

TEST_F(BreakTimerThrough, GoReTimesItsPeriodButDoesNotBeginItAnew) {
  nextPause(3);
  go({4});
  ASSERT_EQ(s.TmrBrk.Interval(), 5000);
  s.time.advance(1000);
  rig.start();
  nextPause(2);
  s.time.advance(1200);
  ASSERT_FALSE(s.TmrBreak.Enabled());
  ASSERT_TRUE(rig.generator.queue.empty());
  EXPECT_EQ(s.TmrBrk.Interval(), 4000);
  s.time.advance(1799);
  EXPECT_FALSE(s.TmrBreak.Enabled());
  s.time.advance(1);  // 4000 after the first Go, not after the second
  EXPECT_TRUE(s.TmrBreak.Enabled());
}

TEST_F(BreakTimerThrough, APauseDrawnByGoThatIsOverAlreadyStartsTheNextBreakAtOnce) {
  nextPause(3);
  go({4});
  s.time.advance(2500);
  rig.start();
  nextPause(1);
  s.time.advance(1199);
  EXPECT_EQ(s.lblBreak.Caption, "1");
  s.time.advance(1);  // 3700, and the pause of 3000 began with the first Go
  EXPECT_TRUE(s.TmrBreak.Enabled());
  EXPECT_EQ(s.lblBreak.Caption, "12");
  EXPECT_FALSE(s.TmrBrk.Enabled());
}

TEST_F(BreakTimerThrough, FiringInTheWaitItStartsABreakWhoseEndDoesNotBeginTheWaitAnew) {
  s.lblBrk[0].Caption = "2000";
  s.lblBrk[3].Caption = "0";
  s.lblTmrBreak[0].Caption = "50";
  s.lblBreakMode[16].Caption = "2000";
  go({1, 4});
  s.time.advance(1000);
  rig.start();
  s.time.advance(600);
  ASSERT_FALSE(s.TmrBreak.Enabled());
  ASSERT_TRUE(s.TmrAspetta.Enabled());  // from 1600 on
  s.time.advance(400);
  EXPECT_TRUE(s.TmrBreak.Enabled());
  EXPECT_TRUE(s.TmrAspetta.Enabled());
  s.time.advance(600);
  EXPECT_FALSE(s.TmrBreak.Enabled());
  EXPECT_TRUE(s.TmrAspetta.Enabled());
  s.time.advance(999);
  EXPECT_FALSE(s.TmrGoA.Enabled());
  s.time.advance(1);  // 3600: 2000 after the end of the first Break, not of the second
  EXPECT_TRUE(s.TmrGoA.Enabled());
  EXPECT_FALSE(s.TmrAspetta.Enabled());
}

// ---- waiting ----------------------------------------------------------------------------------

struct BreakWaiting : BreakStates {
  void SetUp() override {
    s.lblBreakMode[16].Caption = "500";
    go({1});
    rig.start();
    rig.runOut();
    ASSERT_TRUE(s.TmrAspetta.Enabled());
  }
};

TEST_F(BreakWaiting, TheEnginesStandStillAndTheButtonsAreFree) {
  EXPECT_FALSE(s.TmrGoA.Enabled());
  EXPECT_FALSE(rig.locked());
}

TEST_F(BreakWaiting, StopEndsInStopped) {
  click(s.cmdGoTimer);
  s.time.advance(500);
  EXPECT_EQ(s.cmdGoTimer.BackColor, colours::idle);
  EXPECT_EQ(s.time.nextDue(), Time::never);
}

TEST_F(BreakWaiting, AHandStartsABreakAndTheWaitThatRunsOutResumesTheEnginesInMidSweep) {
  click(s.Command7);
  s.time.advance(499);
  EXPECT_FALSE(s.TmrGoA.Enabled());
  s.time.advance(1);
  EXPECT_TRUE(s.TmrGoA.Enabled());
  EXPECT_TRUE(s.TmrBreak.Enabled());
  s.TmrBreak.setEnabled(true);
  rig.runOut();
  EXPECT_FALSE(rig.locked());
}

TEST_F(BreakWaiting, RepeatSetInTheWaitStartsTheNextBreak) {
  repeat();
  s.time.advance(500);
  EXPECT_TRUE(s.TmrBreak.Enabled());
}

TEST_F(BreakWaiting, WithRepeatTheWaitThatRunsOutStartsAnewOverABreakByHand) {
  for (int i : {3, 4}) rig.select(i);
  s.lblBreakMode[0].Caption = "3";
  s.lblBreakMode[24].Caption = "Seq";
  repeat();
  s.time.advance(1);
  rig.start();
  ASSERT_EQ(s.lblBreakMode[17].Caption, "3");
  s.time.advance(498);
  EXPECT_EQ(s.lblBreak.Caption, "18");
  s.time.advance(1);
  EXPECT_FALSE(s.TmrAspetta.Enabled());
  EXPECT_EQ(s.lblBreakMode[17].Caption, "4");
  EXPECT_EQ(s.lblBreak.Caption, "22");
  for (int i : {3, 4}) EXPECT_EQ(s.lblBreakMode[i].BackColor, runningPattern) << i;
  s.time.advance(1);  // the ticks go on from the start by hand
  EXPECT_EQ(s.lblBreak.Caption, "21");
  rig.runOut();
  for (int i : {3, 4}) EXPECT_EQ(s.lblBreakMode[i].BackColor, colours::selected) << i;
}

TEST_F(BreakWaiting, AWaitSteppedToZeroStillRunsOut) {
  for (int i = 0; i < 2; ++i) s.lblBreakMode.raise(Event::MouseDown, 22);
  ASSERT_EQ(s.lblBreakMode[16].Caption, "0");
  s.time.advance(500);
  EXPECT_TRUE(s.TmrGoA.Enabled());
}

}  // namespace
}  // namespace caleidoscopio::test
