#include <gtest/gtest.h>

#include "support/rig.h"

namespace caleidoscopio::test {
namespace {

struct ColourTimer : testing::Test {
  Rig rig;
  Store& s = rig.s;
  void only(int n) {
    for (int k : {0, 1, 2, 3, 4, 10}) s.lblCambioCol[k].BackColor = colours::unselected;
    s.lblCambioCol[n].BackColor = colours::selected;
  }
  void tick() { s.TmrGoD.raise(Event::Tick); }
};

TEST_F(ColourTimer, RunsTheSelectedOperation) {
  rig.generator.otherwise = 0.5F;
  for (int n : {0, 1, 2, 3, 4, 10}) {
    only(n);
    tick();
    EXPECT_EQ(s.lblCambioCol[5].Caption, std::to_string(n));
  }
}

TEST_F(ColourTimer, TakesTheFirstOfSeveralMarksAndRLast) {
  rig.generator.otherwise = 0.5F;
  only(10);
  s.lblCambioCol[4].BackColor = colours::selected;
  tick();
  EXPECT_EQ(s.lblCambioCol[5].Caption, "4");
  s.lblCambioCol[3].BackColor = colours::selected;
  tick();
  EXPECT_EQ(s.lblCambioCol[5].Caption, "3");
}

TEST_F(ColourTimer, WithNoMarkChangesNothing) {
  only(9);
  s.lblCambioCol[9].BackColor = colours::unselected;
  tick();
  EXPECT_EQ(rig.generator.draws, 0);
  EXPECT_EQ(s.lblCambioCol[5].Caption, "10");
}

TEST_F(ColourTimer, WithAChoosesAmongFourAndMarksTheOneDrawn) {
  const int drawn[] = {1, 2, 3, 10};
  for (int k = 1; k <= 4; ++k) {
    rig.pick(k, 4);
    rig.generator.otherwise = 0.5F;
    only(0);
    s.lblCambioCol[9].BackColor = colours::selected;
    tick();
    EXPECT_EQ(s.lblCambioCol[5].Caption, std::to_string(drawn[k - 1]));
    for (int j : {0, 1, 2, 3, 4, 10})
      EXPECT_EQ(s.lblCambioCol[j].BackColor,
                j == drawn[k - 1] ? colours::selected : colours::unselected);
  }
}

TEST_F(ColourTimer, WithTheRunOffChangesOnceAndStaysOff) {
  rig.pick(5, 7);
  rig.pick(1, 101);
  s.TmrGoD.setInterval(100);
  s.TmrGoD.setEnabled(true);
  s.time.advance(1000);
  EXPECT_EQ(s.lblTav[4].Caption, "1");
  EXPECT_FALSE(s.TmrGoD.Enabled());
  EXPECT_EQ(rig.generator.draws, 2) << "no interval is drawn";
}

TEST_F(ColourTimer, InARunDrawsTheNextPauseAndGoesOn) {
  s.cmdGoTimer.BackColor = colours::running;
  s.lblTmrRndCol[0].Caption = "500";
  s.lblTmrRndCol[3].Caption = "2";
  s.TmrGoD.setInterval(100);
  s.TmrGoD.setEnabled(true);
  rig.pick(5, 7);
  rig.pick(1, 101);
  rig.pick(3, 3);
  s.time.advance(100);
  EXPECT_TRUE(s.TmrGoD.Enabled());
  EXPECT_EQ(s.TmrGoD.Interval(), 2500);
  EXPECT_EQ(s.time.nextDue(), 2600U);
}

TEST_F(ColourTimer, WithoutFurtherSecondsThePauseIsTheBase) {
  s.cmdGoTimer.BackColor = colours::running;
  s.lblTmrRndCol[0].Caption = "750";
  rig.generator.otherwise = 0.9F;
  tick();
  EXPECT_EQ(s.TmrGoD.Interval(), 750);
  EXPECT_EQ(s.lblTmrRndCol[6].Caption, "750");
}

}  // namespace
}  // namespace caleidoscopio::test
