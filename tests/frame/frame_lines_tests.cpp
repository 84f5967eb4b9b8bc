// The three lines of Timer C: which cell takes which, what enters, what is drawn.
#include <gtest/gtest.h>

#include "frame/frame.h"
#include "support/field.h"
#include "support/rig.h"

namespace caleidoscopio::test {
namespace {

struct FrameLines : testing::Test {
  Rig rig;
  Store& s = rig.s;
  std::vector<Triple> before;

  void SetUp() override {
    s.lblVoceOpzioni[2].Caption = "Y";
    s.lblRandomC.BackColor = colours::unselected;
    makeEveryCellItsOwn(s);
    before = planeOf(s.lblMiro);
  }
  void direct(const char* cross, const char* frame) {
    s.lblCorniceOpzio[1].Caption = cross;
    s.lblCorniceOpzio[2].Caption = frame;
  }
  /// Quartet `leader` now holds what cell `from` held.
  void quartetTook(int leader, int from) {
    for (int i = leader; i <= leader + 3; ++i) cellTook(i, from);
  }
  void cellTook(int i, int from) {
    EXPECT_EQ(tripleOf(s.lblMiro[i]), before[static_cast<std::size_t>(from)])
        << "cell " << i << " should have taken cell " << from;
    taken[i] = true;
  }
  /// Every cell that no line has claimed stands as it stood.
  void restStandsStill() {
    for (int i = 1; i <= 441; ++i) {
      if (taken[i]) continue;
      EXPECT_EQ(tripleOf(s.lblMiro[i]), before[static_cast<std::size_t>(i)]) << "cell " << i;
    }
  }
  bool taken[442] = {};
};

TEST_F(FrameLines, CrossOutFlowsFromTheCentreToTheFrame) {
  direct("Out", "Off");
  MuoviCroce(s);
  for (int i = 329; i <= 357; i += 4) quartetTook(i, i + 4);
  quartetTook(361, 441);
  cellTook(441, 329);
  restStandsStill();
}

TEST_F(FrameLines, CrossInFlowsToTheCentre) {
  direct("In", "Off");
  MuoviCroce(s);
  cellTook(441, 361);
  for (int i = 361; i >= 333; i -= 4) quartetTook(i, i - 4);
  quartetTook(329, 441);
  restStandsStill();
}

TEST_F(FrameLines, FrameOutFlowsToTheCornersAndTheSideRepeatsTheTop) {
  direct("Off", "Out");
  MuoviCornice(s);
  for (int i = 365; i <= 393; i += 4) {
    quartetTook(i, i + 4);
    quartetTook(i + 36, i + 4);
  }
  quartetTook(397, 325);
  quartetTook(433, 325);
  quartetTook(325, 365);
  quartetTook(437, 365);
  restStandsStill();
}

TEST_F(FrameLines, FrameInFlowsToTheMiddleAndTheCornersRepeatIt) {
  direct("Off", "In");
  MuoviCornice(s);
  quartetTook(325, 397);
  quartetTook(437, 397);
  for (int i = 397; i >= 369; i -= 4) {
    quartetTook(i, i - 4);
    quartetTook(i + 36, i - 4);
  }
  quartetTook(365, 325);
  quartetTook(401, 325);
  restStandsStill();
}

TEST_F(FrameLines, TiedOutDragsTheFrameAlongWithTheCross) {
  direct("Out", "Off");
  MuoviCroceSyn(s);
  for (int i = 329; i <= 357; i += 4)
    for (int line : {0, 36, 72}) quartetTook(i + line, i + 4);
  for (int leader : {361, 397, 433}) quartetTook(leader, 441);
  quartetTook(325, 329);
  quartetTook(437, 329);
  cellTook(441, 329);
  restStandsStill();
}

TEST_F(FrameLines, TiedInDragsTheFrameAlongWithTheCross) {
  direct("In", "Off");
  MuoviCroceSyn(s);
  cellTook(441, 361);
  quartetTook(325, 361);
  quartetTook(437, 361);
  for (int i = 361; i >= 333; i -= 4)
    for (int line : {0, 36, 72}) quartetTook(i + line, i - 4);
  for (int leader : {329, 365, 401}) quartetTook(leader, 441);
  restStandsStill();
}

TEST_F(FrameLines, WithoutDigitsColoursMoveAcrossCaptionsThatStay) {
  s.lblVoceOpzioni[2].Caption = "N";
  s.lblMemC.Caption = "held";
  direct("Out", "In");
  MuoviCroce(s);
  MuoviCornice(s);
  MuoviCroceSyn(s);
  for (int i = 1; i <= 441; ++i) EXPECT_EQ(s.lblMiro[i].Caption, "d" + std::to_string(i));
  EXPECT_EQ(s.lblMemC.Caption, "held");
  EXPECT_NE(s.lblMiro[329].BackColor, before[329].back);
  EXPECT_NE(s.lblMiro[329].ForeColor, before[329].fore);
}

TEST_F(FrameLines, ADirectionThatIsNeitherOutNorInChangesNothingAndDrawsNothing) {
  s.lblRandomC.BackColor = colours::selected;
  direct("out", "");
  const Triple held = tripleOf(s.lblMemC);
  MuoviCroce(s);
  MuoviCornice(s);
  MuoviCroceSyn(s);
  restStandsStill();
  EXPECT_EQ(rig.generator.draws, 0);
  EXPECT_EQ(tripleOf(s.lblMemC), held);
}

// ---- what a tick does -------------------------------------------------------------------------

struct FrameTick : FrameLines {
  void SetUp() override {
    FrameLines::SetUp();
    for (int i = 1; i <= 441; ++i) paintWithSlot(s, i, i % 7);
    before = planeOf(s.lblMiro);
  }
};

TEST_F(FrameTick, BothOffLeavesTheDisplayAndStillCommitsThePlane) {
  direct("Off", "Off");
  s.lblMiro2[200].BackColor = {0x123456};
  s.lblMiro2[200].Caption = "9";
  s.TmrGoC.raise(Event::Tick);
  EXPECT_EQ(planeOf(s.lblMiro), before);
  EXPECT_EQ(planeOf(s.lblMiro2), before);
}

TEST_F(FrameTick, TheCrossComesBackAfterTenTicksWithoutFreshColours) {
  direct("Out", "Off");
  for (int i = 0; i < 10; ++i) {
    TmrGoC_Timer(s);
    if (i < 9) {
      EXPECT_NE(planeOf(s.lblMiro), before);
    }
  }
  // The mirrors are rewritten from the leader, so the leaders are what comes back.
  for (int i = 329; i <= 361; i += 4) quartetTook(i, i);
  cellTook(441, 441);
}

TEST_F(FrameTick, InUndoesOutForTheLinesOnceTheyAreUniform) {
  direct("Out", "Out");
  TmrGoC_Timer(s);
  const auto uniform = planeOf(s.lblMiro);
  TmrGoC_Timer(s);
  EXPECT_NE(planeOf(s.lblMiro), uniform);
  direct("In", "In");
  TmrGoC_Timer(s);
  EXPECT_EQ(planeOf(s.lblMiro), uniform);
}

TEST_F(FrameTick, TheCornersEqualTheMiddlesOfTheSidesAfterOneStepOfTheFrame) {
  for (const char* direction : {"Out", "In"}) {
    for (int i = 1; i <= 441; ++i) paintWithSlot(s, i, i % 7);
    direct("Off", direction);
    TmrGoC_Timer(s);
    for (int i = 0; i < 4; ++i)
      for (int j = 0; j < 4; ++j)
        EXPECT_EQ(tripleOf(s.lblMiro[325 + i]), tripleOf(s.lblMiro[437 + j])) << direction;
  }
}

TEST_F(FrameTick, TopAndSideHoldTheSameAtTheSameDistanceWhateverTheyHeldBefore) {
  for (const char* direction : {"Out", "In"}) {
    for (int i = 1; i <= 441; ++i) paintWithSlot(s, i, (i * 5 + i / 36) % 7);
    direct("Off", direction);
    TmrGoC_Timer(s);
    for (int i = 365; i <= 400; ++i)
      EXPECT_EQ(tripleOf(s.lblMiro[i]), tripleOf(s.lblMiro[i + 36])) << direction << i;
  }
}

TEST_F(FrameTick, TiedTheFrameMovesTwiceInOneTick) {
  s.lblSyn.BackColor = colours::selected;
  direct("Out", "Out");
  TmrGoC_Timer(s);
  // First with the cross: place i takes i + 4 of the cross; then once more by itself.
  for (int i = 365; i <= 389; i += 4) quartetTook(i, i - 36 + 8);
  quartetTook(393, 441);  // was 397 after the first move
  quartetTook(397, 329);  // was 325 after the first move
  quartetTook(325, 333);  // was 365 after the first move
  for (int i = 329; i <= 357; i += 4) quartetTook(i, i + 4);
}

TEST_F(FrameTick, TiedWithTheCrossOffOnlyTheFrameMovesByItself) {
  s.lblSyn.BackColor = colours::selected;
  direct("Off", "Out");
  TmrGoC_Timer(s);
  for (int i = 329; i <= 364; ++i) cellTook(i, i);
  quartetTook(365, 369);
}

TEST_F(FrameTick, ThePlanesAgreeAfterATick) {
  direct("In", "Out");
  TmrGoC_Timer(s);
  EXPECT_EQ(planeOf(s.lblMiro2), planeOf(s.lblMiro));
}

TEST_F(FrameLines, TheCrossComesBackAfterTenTicksInAsWell) {
  direct("In", "Off");
  for (int tick = 1; tick <= 9; ++tick) {
    TmrGoC_Timer(s);
    cellTook(441, 365 - 4 * tick);
  }
  TmrGoC_Timer(s);
  for (int i = 329; i <= 361; i += 4) quartetTook(i, i);
  cellTook(441, 441);
  restStandsStill();
}

TEST_F(FrameLines, TheTiedLineComesBackAfterTenTicksAndTheFrameHasBecomeTheCross) {
  s.lblSyn.BackColor = colours::selected;
  for (const char* direction : {"Out", "In"}) {
    makeEveryCellItsOwn(s);
    direct(direction, "Off");
    for (int tick = 1; tick <= 10; ++tick) {
      TmrGoC_Timer(s);
      EXPECT_EQ(tripleOf(s.lblMiro[441]) == before[441], tick == 10) << direction << tick;
    }
    for (int i = 329; i <= 361; i += 4)
      for (int line : {0, 36, 72}) quartetTook(i + line, i);
    for (int leader : {325, 437}) quartetTook(leader, 441);
    cellTook(441, 441);
    restStandsStill();
  }
}

// ---- fresh colours ----------------------------------------------------------------------------

struct FreshColours : FrameLines {
  void SetUp() override {
    FrameLines::SetUp();
    s.lblRandomC.BackColor = colours::selected;
    s.lblRndC[0].Caption = "5";
  }
};

TEST_F(FreshColours, NoDrawWhileRandomIsNotSelected) {
  s.lblRandomC.BackColor = colours::pressed;
  direct("Out", "Out");
  TmrGoC_Timer(s);
  EXPECT_EQ(rig.generator.draws, 0);
}

TEST_F(FreshColours, OneDecisionForEachMovedLineAndTheCrossComesFirst) {
  direct("Out", "In");
  rig.pick(1, 5);  // cross: a fresh colour
  rig.pick(4, 7);
  rig.pick(2, 5);  // frame, side and corners together: none
  MuoviCroce(s);
  EXPECT_EQ(s.lblNumCas.Caption, "1");
  EXPECT_EQ(tripleOf(s.lblMiro[441]), tripleOf(s.lblValore[3]));
  MuoviCornice(s);
  EXPECT_EQ(s.lblNumCas.Caption, "2");
  quartetTook(365, 325);
  quartetTook(401, 325);
  EXPECT_EQ(rig.generator.draws, 3);
}

TEST_F(FreshColours, TheTickDrawsForTheCrossBeforeTheFrame) {
  direct("Out", "Out");
  rig.pick(1, 5);
  rig.pick(7, 7);
  rig.pick(1, 5);
  rig.pick(2, 7);
  TmrGoC_Timer(s);
  EXPECT_EQ(tripleOf(s.lblMiro[441]), tripleOf(s.lblValore[6]));
  for (int i : {325, 326, 327, 328, 437, 438, 439, 440})
    EXPECT_EQ(tripleOf(s.lblMiro[i]), tripleOf(s.lblValore[1])) << i;
}

TEST_F(FreshColours, OneDecisionForTheWholeTiedLine) {
  direct("In", "Off");
  s.lblSyn.BackColor = colours::selected;
  rig.pick(1, 5);
  rig.pick(6, 7);
  TmrGoC_Timer(s);
  for (int leader : {329, 365, 401})
    for (int i = leader; i < leader + 4; ++i)
      EXPECT_EQ(tripleOf(s.lblMiro[i]), tripleOf(s.lblValore[5])) << i;
}

TEST_F(FreshColours, IntoTheTiedLineOutItComesAtTheCentreTheMiddlesAndTheCorners) {
  direct("Out", "Off");
  s.lblSyn.BackColor = colours::selected;
  rig.pick(1, 5);
  rig.pick(6, 7);
  TmrGoC_Timer(s);
  for (int i : {325, 326, 327, 328, 437, 438, 439, 440, 441})
    EXPECT_EQ(tripleOf(s.lblMiro[i]), tripleOf(s.lblValore[5])) << i;
  for (int leader : {361, 397, 433}) quartetTook(leader, 441);
  EXPECT_EQ(rig.generator.draws, 2);
}

TEST_F(FreshColours, TiedAndWithTheFrameMovingTwoDecisionsAreMadeTheTiedLineFirst) {
  direct("Out", "Out");
  s.lblSyn.BackColor = colours::selected;
  rig.pick(1, 5);
  rig.pick(2, 7);
  rig.pick(1, 5);
  rig.pick(7, 7);
  TmrGoC_Timer(s);
  EXPECT_EQ(tripleOf(s.lblMiro[441]), tripleOf(s.lblValore[1]));
  // The frame's own move takes the first colour on from the middles and brings the second there.
  for (int leader : {397, 433})
    for (int i = leader; i < leader + 4; ++i)
      EXPECT_EQ(tripleOf(s.lblMiro[i]), tripleOf(s.lblValore[1])) << i;
  for (int i : {325, 326, 327, 328, 437, 438, 439, 440})
    EXPECT_EQ(tripleOf(s.lblMiro[i]), tripleOf(s.lblValore[6])) << i;
  EXPECT_EQ(tripleOf(s.lblScegliColTmr), tripleOf(s.lblValore[6]));
  EXPECT_EQ(rig.generator.draws, 4);
}

TEST_F(FreshColours, TiedAndWithTheFrameMovingTheSecondDecisionIsItsOwn) {
  direct("In", "Out");
  s.lblSyn.BackColor = colours::selected;
  rig.pick(3, 5);
  rig.pick(1, 5);
  rig.pick(3, 7);
  TmrGoC_Timer(s);
  EXPECT_EQ(s.lblNumCas.Caption, "1");
  quartetTook(329, 441);  // what the cross held went round
  for (int i : {325, 326, 327, 328, 437, 438, 439, 440})
    EXPECT_EQ(tripleOf(s.lblMiro[i]), tripleOf(s.lblValore[2])) << i;
  EXPECT_EQ(rig.generator.draws, 3);
}

TEST_F(FreshColours, RarityOneBringsOneEveryTickAndDropsWhatWasHeld) {
  s.lblRndC[0].Caption = "1";
  direct("Out", "In");
  rig.generator.otherwise = 0.5F;
  for (int tick = 0; tick < 3; ++tick) {
    TmrGoC_Timer(s);
    EXPECT_EQ(s.lblNumCas.Caption, "1");
    EXPECT_EQ(tripleOf(s.lblMiro[441]), tripleOf(s.lblValore[3]));
    EXPECT_EQ(tripleOf(s.lblMiro[365]), tripleOf(s.lblValore[3]));
  }
  EXPECT_EQ(rig.generator.draws, 12);
}

TEST_F(FreshColours, TheDigitGoesToItsHolderAlwaysAndToACellOnlyWhileDigitsShow) {
  s.lblVoceOpzioni[2].Caption = "N";
  s.lblValore[2].Caption = "9";
  direct("Out", "Off");
  rig.pick(1, 5);
  rig.pick(3, 7);
  MuoviCroce(s);
  EXPECT_EQ(tripleOf(s.lblScegliColTmr), tripleOf(s.lblValore[2]));
  EXPECT_EQ(s.lblMiro[441].Caption, "d441");
  EXPECT_EQ(s.lblMiro[441].BackColor, s.lblValore[2].BackColor);
}

TEST_F(FreshColours, WithTwoSlotsOnlyTheFirstTwoEverEnter) {
  s.lblColCornice.Caption = "2";
  int seen[2] = {};
  for (int k = 0; k < 40; ++k) {
    rig.generator.queue = {static_cast<float>(k) / 40.0F};
    PescaColoreCornice(s);
    const Triple fresh = tripleOf(s.lblScegliColTmr);
    const bool first = fresh == tripleOf(s.lblValore[0]);
    EXPECT_TRUE(first || fresh == tripleOf(s.lblValore[1]));
    ++seen[first ? 0 : 1];
  }
  EXPECT_EQ(seen[0], 20);
  EXPECT_EQ(seen[1], 20);
}

TEST_F(FreshColours, ARarityOrANumberOfSlotsBelowOneEndsTheRun) {
  direct("Out", "Off");
  rig.generator.otherwise = 0.0F;
  s.lblRndC[0].Caption = "0";
  EXPECT_THROW(TmrGoC_Timer(s), RunEnded);
  s.lblRndC[0].Caption = "1";
  s.lblColCornice.Caption = "0";
  EXPECT_THROW(TmrGoC_Timer(s), RunEnded);
  s.lblColCornice.Caption = "many";
  EXPECT_THROW(TmrGoC_Timer(s), RunEnded);
}

}  // namespace
}  // namespace caleidoscopio::test
