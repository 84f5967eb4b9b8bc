#include "panel/timers.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "instrument.h"
#include "support/rig.h"
#include "support/run_end.h"

namespace caleidoscopio::test {
namespace {

/// Three timers that write down when they fire.
struct Timers : testing::Test {
  Time time;
  Group group;
  TimerControl a{group, time, "a", 100};
  TimerControl b{group, time, "b", 100};
  TimerControl c{group, time, "c", 0};
  std::vector<std::string> fired;
  Control::Handler then = [](int) {};  ///< what a does at its tick, besides

  Timers() {
    a.tie(Event::Tick, 0, 0, [this](int i) {
      note("a");
      then(i);
    });
    b.tie(Event::Tick, 0, 0, [this](int) { note("b"); });
    c.tie(Event::Tick, 0, 0, [this](int) { note("c"); });
  }
  void note(const std::string& name) { fired.push_back(name + std::to_string(time.now())); }
  using Log = std::vector<std::string>;
};

TEST_F(Timers, AreOffUntilTurnedOn) {
  time.advance(1000);
  EXPECT_EQ(fired, Log{});
  EXPECT_EQ(time.nextDue(), Time::never);
}

TEST_F(Timers, TurningOnStartsAFullPeriod) {
  time.advance(30);
  a.setEnabled(true);
  time.advance(99);
  EXPECT_EQ(fired, Log{});
  time.advance(1);
  EXPECT_EQ(fired, Log{"a130"});
}

TEST_F(Timers, TurningOnWhatIsOnChangesNothing) {
  a.setEnabled(true);
  time.advance(60);
  a.setEnabled(true);
  time.advance(40);
  EXPECT_EQ(fired, Log{"a100"});
}

TEST_F(Timers, TurningOffAndOnStartsAnew) {
  a.setEnabled(true);
  time.advance(60);
  a.setEnabled(false);
  a.setEnabled(true);
  time.advance(99);
  EXPECT_EQ(fired, Log{});
  time.advance(1);
  EXPECT_EQ(fired, Log{"a160"});
}

TEST_F(Timers, AnIntervalWrittenReTimesThePeriodUnderWay) {
  a.setEnabled(true);
  time.advance(60);
  a.setInterval(80);
  EXPECT_EQ(time.nextDue(), 80U);
  a.setInterval(300);
  EXPECT_EQ(time.nextDue(), 300U);
}

TEST_F(Timers, AnIntervalShorterThanThePeriodUnderWayIsDueAtOnceAndOnce) {
  a.setEnabled(true);
  time.advance(60);
  a.setInterval(20);
  EXPECT_EQ(time.nextDue(), 60U);
  time.advance(0);
  EXPECT_EQ(fired, Log{"a60"});
  time.advance(20);
  EXPECT_EQ(fired, (Log{"a60", "a80"}));
}

TEST_F(Timers, TheIntervalThatItHasChangesNothing) {
  a.setEnabled(true);
  time.advance(100);
  time.advance(60);
  a.setInterval(100);
  EXPECT_EQ(time.nextDue(), 200U);
}

TEST_F(Timers, AnIntervalWrittenWhileOffHoldsForTheNextPeriod) {
  a.setInterval(10);
  time.advance(500);
  a.setEnabled(true);
  EXPECT_EQ(time.nextDue(), 510U);
}

TEST_F(Timers, AnIntervalOfZeroOrLessNeverFires) {
  c.setEnabled(true);
  a.setEnabled(true);
  a.setInterval(-5);
  time.advance(1'000'000);
  EXPECT_EQ(fired, Log{});
}

TEST_F(Timers, ThePeriodOfAnIntervalOfZeroBeganWhenTheTimerWasTurnedOn) {
  c.setEnabled(true);
  time.advance(70);
  c.setInterval(100);
  time.advance(30);
  EXPECT_EQ(fired, Log{"c100"});
}

TEST_F(Timers, ThePeriodOfAnIntervalOfZeroThatIsLongPastIsDueAtOnce) {
  c.setEnabled(true);
  time.advance(700);
  c.setInterval(100);
  time.advance(0);
  EXPECT_EQ(fired, Log{"c700"});
}

TEST_F(Timers, TheNextPeriodBeginsBeforeTheHandlerSoThatWhatItWritesHolds) {
  then = [this](int) { a.setInterval(30); };
  a.setEnabled(true);
  time.advance(160);
  EXPECT_EQ(fired, (Log{"a100", "a130", "a160"}));
}

TEST_F(Timers, WithinItsHandlerATimerIsAlreadyDueAgainAPeriodLater) {
  std::uint64_t due = 0;
  then = [&](int) { due = time.nextDue(); };
  a.setEnabled(true);
  time.advance(100);
  EXPECT_EQ(due, 200U);
}

TEST_F(Timers, AHandlerCanTurnItsOwnTimerOff) {
  then = [this](int) { a.setEnabled(false); };
  a.setEnabled(true);
  time.advance(1000);
  EXPECT_EQ(fired, Log{"a100"});
}

TEST_F(Timers, AHandlerCanStopAnotherThatIsDueAtTheSameMoment) {
  then = [this](int) { b.setEnabled(false); };
  a.setEnabled(true);
  b.setEnabled(true);
  time.advance(100);
  EXPECT_EQ(fired, Log{"a100"});
}

TEST_F(Timers, WhatAHandlerTurnsOnRunsWithinTheSameAdvance) {
  then = [this](int) { b.setEnabled(true); };
  a.setEnabled(true);
  time.advance(200);
  EXPECT_EQ(fired, (Log{"a100", "a200", "b200"}));
}

TEST_F(Timers, FireTheEarliestFirst) {
  b.setInterval(40);
  a.setEnabled(true);
  b.setEnabled(true);
  time.advance(120);
  EXPECT_EQ(fired, (Log{"b40", "b80", "a100", "b120"}));
}

TEST_F(Timers, DueAtTheSameMomentFireAsDeclaredWhicheverWasTurnedOnFirst) {
  c.setInterval(100);
  c.setEnabled(true);
  b.setEnabled(true);
  a.setEnabled(true);
  time.advance(100);
  EXPECT_EQ(fired, (Log{"a100", "b100", "c100"}));
}

TEST_F(Timers, AdvanceLeavesTimeAtItsEnd) {
  a.setEnabled(true);
  time.advance(250);
  EXPECT_EQ(time.now(), 250U);
  EXPECT_EQ(time.nextDue(), 300U);
}

TEST_F(Timers, CatchingUpFiresALateTimerOnceAndBeginsItsNextPeriodThen) {
  a.setEnabled(true);
  time.catchUp(950);
  EXPECT_EQ(fired, Log{"a950"});
  EXPECT_EQ(time.nextDue(), 1050U);
}

TEST_F(Timers, CatchingUpNeverMovesTimeBack) {
  a.setEnabled(true);
  time.catchUp(50);
  time.catchUp(20);
  EXPECT_EQ(time.now(), 50U);
  time.catchUp(100);
  EXPECT_EQ(fired, Log{"a100"});
}

TEST_F(Timers, TimeThatRunsToItsEndStaysThere) {
  a.setInterval(2147483647);
  time.advance(Time::never - 10);
  a.setEnabled(true);
  EXPECT_EQ(time.nextDue(), Time::never);
  time.advance(100);
  EXPECT_EQ(fired, Log{});
}

TEST_F(Timers, AnIntervalBeyond32BitsEndsTheRun) {
  EXPECT_TRUE(endsTheRun([&] { a.setInterval(2147483648); }, {"2147483648", "32 bits"}));
}

TEST(PanelTimers, FireInThePanelsOrderWithinOneMoment) {
  const std::vector<std::string> order{
      "TmrGoA",        "TmrGoB",        "TmrGoC",          "TmrBrk",        "TmrSequencer",
      "TmrGoD",        "TmrBreak",      "TmrAspetta",      "TmrCrea",       "TmrRandomColori",
      "TmrRndColor",   "TmrColori",     "TmrVeloPiù",      "TmrVeloMeno",   "TmrScorriPiù",
      "TmrScorriMeno", "TmrScorriMemo", "TmrScorriBrk",    "TmrVeloBreak",  "TmrScorriRndCol",
      "TmrScorriSeq",  "TmrAvanza",     "TmrStepParziali", "TmrStepTotali", "TmrFrqRnd",
      "TmrRndFreq",    "TmrAlterna"};
  PanelControls panel;  // no handler is tied yet, so that each can write its name down
  std::vector<std::string> fired;
  for (Control* timer : panel.timerGroup.controls()) {
    auto& t = *static_cast<Timer*>(timer->element(0));
    EXPECT_FALSE(t.Enabled()) << timer->name();
    timer->tie(Event::Tick, 0, 0, [&fired, timer](int) { fired.emplace_back(timer->name()); });
    t.setInterval(10);
  }
  const auto& timers = panel.timerGroup.controls();
  for (auto at = timers.rbegin(); at != timers.rend(); ++at)
    static_cast<Timer*>((*at)->element(0))->setEnabled(true);
  panel.time.advance(10);
  EXPECT_EQ(fired, order);
}

TEST(PanelTimers, ComeUpWithTheirIntervals) {
  const PanelControls panel;
  const std::pair<const TimerControl&, int> intervals[] = {
      {panel.TmrGoA, 500},           {panel.TmrGoB, 100},          {panel.TmrGoC, 1000},
      {panel.TmrBrk, 3000},          {panel.TmrSequencer, 2000},   {panel.TmrGoD, 0},
      {panel.TmrBreak, 3000},        {panel.TmrAspetta, 0},        {panel.TmrCrea, 100},
      {panel.TmrRandomColori, 1000}, {panel.TmrRndColor, 120},     {panel.TmrColori, 200},
      {panel.TmrVeloPiù, 70},        {panel.TmrVeloMeno, 70},      {panel.TmrScorriPiù, 70},
      {panel.TmrScorriMeno, 70},     {panel.TmrScorriMemo, 150},   {panel.TmrScorriBrk, 75},
      {panel.TmrVeloBreak, 75},      {panel.TmrScorriRndCol, 75},  {panel.TmrScorriSeq, 100},
      {panel.TmrAvanza, 100},        {panel.TmrStepParziali, 150}, {panel.TmrStepTotali, 150},
      {panel.TmrFrqRnd, 100},        {panel.TmrRndFreq, 100},      {panel.TmrAlterna, 750}};
  for (const auto& [timer, interval] : intervals)
    EXPECT_EQ(timer.Interval(), interval) << timer.name();
}

}  // namespace
}  // namespace caleidoscopio::test
