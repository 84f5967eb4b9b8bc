#include <gtest/gtest.h>

#include <vector>

#include "sequencer/sequencer_rig.h"
#include "support/run_end.h"

namespace caleidoscopio::test {
namespace {

/// lblSeq(1) "-" and lblSeq(2) "+": the uneven ladder of the step interval.
struct StepInterval : SequencerRig {
  enum Button { minus = 1, plus = 2 };

  /// One short press from a value; caption and timer must agree on what it came to.
  std::int64_t after(std::int64_t value, Button button) {
    s.lblSeq[0].Caption = text(value);
    pressAndRelease(s.lblSeq, button);
    const std::int64_t now = number(s, s.lblSeq[0]);
    EXPECT_EQ(s.TmrSequencer.Interval(), now) << value;
    return now;
  }
  std::vector<std::int64_t> rungs() const {
    std::vector<std::int64_t> all{10};
    for (int v = 25; v <= 1000; v += 25) all.push_back(v);
    for (int v = 1500; v <= 30000; v += 500) all.push_back(v);
    for (int v = 31000; v <= 60000; v += 1000) all.push_back(v);
    return all;
  }
};

TEST_F(StepInterval, PlusClimbsEveryRungFrom10To60000AndStaysThere) {
  const auto all = rungs();
  for (std::size_t i = 0; i + 1 < all.size(); ++i) EXPECT_EQ(after(all[i], plus), all[i + 1]);
  EXPECT_EQ(after(60000, plus), 60000);
}

TEST_F(StepInterval, MinusComesDownTheSameRungsAndStaysAt10) {
  const auto all = rungs();
  for (std::size_t i = all.size() - 1; i > 0; --i) EXPECT_EQ(after(all[i], minus), all[i - 1]);
  EXPECT_EQ(after(10, minus), 10);
}

TEST_F(StepInterval, PlusAt29500Gives30000AndThen31000) {
  EXPECT_EQ(after(29500, plus), 30000);
  EXPECT_EQ(after(30000, plus), 31000);
  EXPECT_EQ(after(31000, minus), 30000);
  EXPECT_EQ(after(30000, minus), 29500);
}

TEST_F(StepInterval, MinusAt25Gives10WhereItStaysAndPlusGives25) {
  EXPECT_EQ(after(25, minus), 10);
  EXPECT_EQ(after(10, minus), 10);
  EXPECT_EQ(after(10, plus), 25);
}

// Only a memory brings a value between the rungs.
TEST_F(StepInterval, From1000OnAValueBetweenRungsMovesAsItsBandDoes) {
  EXPECT_EQ(after(1001, plus), 1501);
  EXPECT_EQ(after(1234, plus), 1734);
  EXPECT_EQ(after(29499, plus), 29999);
  EXPECT_EQ(after(1501, minus), 1001);
  EXPECT_EQ(after(29999, minus), 29499);
}

TEST_F(StepInterval, WhateverIsOnNoRungMovesByAThousand) {
  for (const std::int64_t value :
       {-5, 0, 9, 11, 24, 26, 30, 999, 29501, 29999, 30500, 59500, 60001})
    EXPECT_EQ(after(value, plus), value + 1000);
  for (const std::int64_t value :
       {-5, 0, 9, 11, 24, 26, 30, 51, 110, 974, 976, 999, 1001, 1250, 1499, 30001, 30500, 60001})
    EXPECT_EQ(after(value, minus), value - 1000);
}

TEST_F(StepInterval, AnIntervalThatFellBelow1NeverFires) {
  allOff();
  goWithSequencer();
  EXPECT_EQ(after(30, minus), -970);
  const std::int64_t before = cursor();
  s.time.advance(100000);
  EXPECT_EQ(cursor(), before);
}

TEST_F(StepInterval, AHeldButtonStepsAtOnceAndThenEvery100Ms) {
  press(s.lblSeq, plus);
  EXPECT_EQ(s.lblSeq[plus].BackColor, colours::pressed);
  EXPECT_EQ(s.lblSeq[0].Caption, "2500");
  s.time.advance(99);
  EXPECT_EQ(s.lblSeq[0].Caption, "2500");
  s.time.advance(201);
  EXPECT_EQ(s.lblSeq[0].Caption, "4000");
  release(s.lblSeq, plus);
  EXPECT_EQ(s.lblSeq[plus].BackColor, colours::idle);
  s.time.advance(1000);
  EXPECT_EQ(s.lblSeq[0].Caption, "4000");

  press(s.lblSeq, minus);
  EXPECT_EQ(s.lblSeq[minus].BackColor, colours::pressed);
  s.time.advance(200);
  release(s.lblSeq, minus);
  s.time.advance(1000);
  EXPECT_EQ(s.lblSeq[minus].BackColor, colours::idle);
  EXPECT_EQ(s.lblSeq[0].Caption, "2500");
  EXPECT_EQ(s.TmrSequencer.Interval(), 2500);
}

// An upward repeat lights "+" whether it is held or not.
TEST_F(StepInterval, ARepeatGoesUpUnlessMinusIsHeldAndThenLightsPlus) {
  tick(s.TmrScorriSeq);
  EXPECT_EQ(s.lblSeq[0].Caption, "2500");
  EXPECT_EQ(s.lblSeq[plus].BackColor, colours::pressed);

  s.lblSeq[plus].BackColor = colours::idle;
  s.lblSeq[minus].BackColor = colours::pressed;
  tick(s.TmrScorriSeq);
  EXPECT_EQ(s.lblSeq[0].Caption, "2000");
  EXPECT_EQ(s.lblSeq[plus].BackColor, colours::idle);
}

TEST_F(StepInterval, ItChangesDuringARunAndRetimesTheStepUnderWay) {
  allOff();
  cursorAt(1);
  goWithSequencer();
  s.time.advance(1000);
  pressAndRelease(s.lblSeq, minus);
  EXPECT_EQ(s.TmrSequencer.Interval(), 1500);
  s.time.advance(499);
  EXPECT_EQ(cursor(), 1);
  s.time.advance(1);
  EXPECT_EQ(cursor(), 2);
}

TEST_F(StepInterval, ACaptionThatIsNoNumberEndsTheRunNamingIt) {
  s.lblSeq[0].Caption = "slow";
  EXPECT_TRUE(endsTheRun([this] { press(s.lblSeq, plus); }, {"lblSeq(0)", "\"slow\""}));
}

}  // namespace
}  // namespace caleidoscopio::test
