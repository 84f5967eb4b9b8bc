// The ticks of a Break and its end: what becomes of colours and field, and to whom it hands over.
#include <gtest/gtest.h>

#include "break_rig.h"
#include "support/run_end.h"

namespace caleidoscopio::test {
namespace {

struct BreakEnd : testing::Test {
  BreakRig rig;
  Store& s = rig.s;
  int goes = 0;

  void running() { s.cmdGoTimer.BackColor = colours::running; }
  void repeat() { s.lblBreakMode[21].BackColor = colours::selected; }
  void wait(const char* ms) { s.lblBreakMode[16].Caption = ms; }
  /// A Break of one kind, stopped before its ending tick.
  void sweep(const char* kind) {
    rig.kind(kind);
    rig.start();
    rig.sweepToLast();
  }
};

TEST_F(BreakEnd, KindTwoDrawsASlotAtEveryTickTheEndingOneToo) {
  rig.kind("C");
  rig.pick(1, 7);
  rig.pick(1, 1);
  click(s.Command7);
  const Colour shown = s.lblColSCelto.BackColor;
  for (int tick = 1; tick <= 12; ++tick) {
    rig.pick(tick % 7 + 1, 7);
    rig.anyDraws();
    rig.tick();
    EXPECT_EQ(s.lblColSCelto.Caption, std::to_string(tick % 7));
    EXPECT_TRUE(rig.generator.queue.empty());
  }
  EXPECT_EQ(s.lblColSCelto.BackColor, shown);
  EXPECT_FALSE(s.TmrBreak.Enabled());
}

TEST_F(BreakEnd, KindTwoSweepsEveryStepInItsOwnColour) {
  rig.kind("C");
  rig.start();
  rig.pick(2, 7);
  rig.tick();
  rig.pick(5, 7);
  rig.tick();
  EXPECT_EQ(s.lblMiro[441].BackColor, s.lblValore[1].BackColor);  // row 10
  EXPECT_EQ(s.lblMiro[361].BackColor, s.lblValore[4].BackColor);  // row 9
}

TEST_F(BreakEnd, KindOneAndThreeDrawNothingAtATick) {
  for (const char* kind : {"U", "N"}) {
    rig.kind(kind);
    rig.start();
    const int before = rig.generator.draws;
    rig.sweepToLast();
    EXPECT_EQ(rig.generator.draws, before);
    rig.tick();
  }
}

TEST_F(BreakEnd, ImmediatoSweepsAtItsFirstTickAndEndsAtItsSecond) {
  rig.only(12);
  rig.kind("N");
  makeEveryCellItsOwn(s);
  s.lblVoceOpzioni[2].Caption = "Y";
  rig.start();
  EXPECT_EQ(s.lblBreak.Caption, "2");
  EXPECT_NE(planeOf(s.lblMiro), planeOf(s.lblMiro2));
  rig.tick();
  EXPECT_EQ(planeOf(s.lblMiro), planeOf(s.lblMiro2));
  EXPECT_TRUE(s.TmrBreak.Enabled());
  rig.tick();
  EXPECT_FALSE(s.TmrBreak.Enabled());
}

TEST_F(BreakEnd, ButtonsAreReleasedRepeatAndGoToo) {
  sweep("N");
  s.lblBreakMode[21].Enabled = s.cmdGoTimer.Enabled = false;
  s.lblBreakMode[4].BackColor = runningPattern;  // one of an earlier start
  s.lblBreakMode[4].ForeColor = colours::unselected;
  s.lblBreakMode[6].ForeColor = {0x80};
  rig.tick();
  for (int i = 0; i <= 26; ++i) EXPECT_TRUE(s.lblBreakMode[i].Enabled) << i;
  EXPECT_TRUE(s.Command7.Enabled);
  EXPECT_TRUE(s.cmdGoTimer.Enabled);
  for (int i : {1, 4}) {
    EXPECT_EQ(s.lblBreakMode[i].BackColor, colours::selected);
    EXPECT_EQ(s.lblBreakMode[i].ForeColor, colours::black);
  }
  EXPECT_EQ(s.lblBreakMode[6].ForeColor, Colour{0x80}) << "only what a sweep marked is put back";
}

TEST_F(BreakEnd, KindThreeMakesTheColoursOfTheDesignCurrentAndDrawsTheNextPause) {
  sweep("N");
  for (int i = 1; i <= 104; ++i) s.lblColore[i].BorderStyle = 1;
  for (int k = 0; k <= 6; ++k) {
    s.lblTavB[k].Caption = std::to_string(20 + k);
    s.lblValoreB[k].Caption = "b";
    s.lblValoreB[k].BackColor = {0x111100U + static_cast<std::uint32_t>(k)};
    s.lblValoreB[k].ForeColor = {0x222200U + static_cast<std::uint32_t>(k)};
  }
  s.lblValore[7].BackColor = {0x77};
  rig.generator.otherwise.reset();
  rig.pick(2, 3);  // among the pauses of two variations
  rig.tick();
  for (int k = 0; k <= 6; ++k) {
    EXPECT_EQ(s.lblTav[k].Caption, std::to_string(20 + k));
    for (const Label* slot : {&s.lblValore[k], &s.lblSfondo[k]}) {
      EXPECT_EQ(slot->BackColor, s.lblValoreB[k].BackColor);
      EXPECT_EQ(slot->ForeColor, s.lblValoreB[k].ForeColor);
    }
    EXPECT_EQ(s.lblValore[k].Caption, std::to_string(k)) << "the digit stays";
  }
  EXPECT_EQ(s.lblValore[7].BackColor, Colour{0x77});
  for (int i = 1; i <= 101; ++i) EXPECT_EQ(s.lblColore[i].BorderStyle, 20 <= i && i <= 26) << i;
  for (int i = 102; i <= 104; ++i) EXPECT_EQ(s.lblColore[i].BorderStyle, 1) << "not cleared";
  EXPECT_EQ(s.lblBrk[5].Caption, "4000");
  EXPECT_EQ(s.TmrBrk.Interval(), 4000);
  EXPECT_FALSE(s.TmrBrk.Enabled());
}

TEST_F(BreakEnd, KindThreeLeavesThePictureItUncovered) {
  makeEveryCellItsOwn(s);
  sweep("N");
  const auto display = planeOf(s.lblMiro);
  const auto design = planeOf(s.lblMiro2);
  rig.tick();
  EXPECT_EQ(planeOf(s.lblMiro), display);
  EXPECT_EQ(planeOf(s.lblMiro2), design);
}

TEST_F(BreakEnd, ABaseBeyondSixteenBitsEndsTheRunAtTheNextDraw) {
  s.lblBrk[0].Caption = "32768";
  s.lblBrk[3].Caption = "0";
  sweep("N");
  EXPECT_THROW(rig.tick(), RunEnded);
}

TEST_F(BreakEnd, KindsOneAndTwoDrawNoPause) {
  s.lblBreakMode[19].BackColor = colours::unselected;
  s.lblBrk[0].Caption = "99999";  // would end the run if it were drawn from
  for (const char* kind : {"U", "C"}) {
    sweep(kind);
    EXPECT_NO_THROW(rig.tick());
  }
}

TEST_F(BreakEnd, WithoutANewDesignTheFieldIsFilledWithTheLastColour) {
  s.lblBreakMode[19].BackColor = colours::unselected;
  for (const char* digits : {"Y", "N"}) {
    s.lblVoceOpzioni[2].Caption = digits;
    makeEveryCellItsOwn(s);
    sweep("C");
    const auto swept = planeOf(s.lblMiro);
    rig.generator.otherwise.reset();
    rig.pick(7, 7);  // a colour that no step has shown
    rig.tick();
    for (int i = 1; i <= 441; ++i) {
      EXPECT_EQ(s.lblMiro[i].BackColor, s.lblValore[6].BackColor);
      EXPECT_EQ(s.lblMiro[i].ForeColor, s.lblValore[6].ForeColor);
      EXPECT_EQ(s.lblMiro[i].Caption,
                *digits == 'Y' ? "6" : swept[static_cast<std::size_t>(i)].caption);
      EXPECT_EQ(tripleOf(s.lblMiro2[i]), tripleOf(s.lblValore[6]));
    }
  }
}

TEST_F(BreakEnd, ANewDesignPutsTheSweptSlotToTheBackgroundAndRestoresItsOption) {
  s.lblCrea[8].Caption = "mine";
  s.lblCrea[8].BackColor = {0x445566};
  s.lblBreakMode[26].BackColor = colours::unselected;
  sweep("U");
  s.lblColSCelto.Caption = "5";
  s.lblSfondoAttivo.Caption = "2";
  const int before = rig.generator.draws;
  rig.tick();
  EXPECT_EQ(s.lblSfondoAttivo.Caption, "5") << "the background tool was clicked";
  EXPECT_EQ(s.lblSfondoMem.Caption, "5");
  EXPECT_EQ(s.lblCrea[8].Caption, "mine");
  EXPECT_EQ(s.lblCrea[8].BackColor, Colour{0x445566});
  EXPECT_EQ(s.lblBreakMode[0].BackColor, Colour{0x445566}) << "what it was kept in";
  EXPECT_EQ(rig.generator.draws, before) << "a design of no sizes draws nothing";
}

TEST_F(BreakEnd, ANewDesignGetsNewColoursFirstIfMarked) {
  sweep("U");
  rig.generator.otherwise.reset();
  for (int p = 31; p <= 37; ++p) rig.pick(p, 101);
  rig.tick();
  EXPECT_TRUE(rig.generator.queue.empty());
  EXPECT_EQ(s.lblTav[0].Caption, "31");
  EXPECT_EQ(s.lblTavB[6].Caption, "37");
}

TEST_F(BreakEnd, ANewDesignIsDrawnAndThenItsGroundTakesTheSweptColour) {
  s.lblBreakMode[26].BackColor = colours::unselected;
  s.lblComCol[7].BackColor = colours::selected;  // the design lays the ground, slot 0
  s.lblSelSfondo[3].Caption = "2";               // the whole picture
  s.lblCrea[1].Caption = "1";
  s.lblCrea[8].Caption = "mine";
  sweep("U");
  s.lblColSCelto.Caption = "5";
  rig.generator.otherwise.reset();
  rig.pick(1, 81);
  rig.pick(2, 81);
  rig.pick(3, 7);
  rig.tick();
  EXPECT_TRUE(rig.generator.queue.empty());
  for (int i = 1; i <= 441; ++i) {
    const Label& slot = s.lblValore[i <= 8 ? 2 : 5];
    EXPECT_EQ(s.lblMiro[i].BackColor, slot.BackColor) << i;
    EXPECT_EQ(tripleOf(s.lblMiro2[i]), tripleOf(slot)) << i;
  }
  EXPECT_EQ(s.lblCrea[8].Caption, "mine");
}

TEST_F(BreakEnd, AWaitBeyondSixteenBitsEndsTheRunWithTheButtonsFreeAndTheFieldAsItWasSwept) {
  s.lblBreakMode[19].BackColor = colours::unselected;
  for (const char* ms : {"40000", "32768"})
    for (const char* kind : {"N", "U"}) {
      wait(ms);
      s.lblBrk[5].Caption = "";
      sweep(kind);
      makeEveryCellItsOwn(s);
      const auto display = planeOf(s.lblMiro);
      EXPECT_TRUE(endsTheRun([&] { rig.tick(); }, {"lblBreakMode(16).Caption", ms, "16 bits"}));
      EXPECT_FALSE(rig.locked());
      EXPECT_FALSE(s.TmrBreak.Enabled() || s.TmrAspetta.Enabled());
      EXPECT_EQ(s.lblBrk[5].Caption, *kind == 'N' ? "4000" : "") << "the pause was drawn before";
      EXPECT_EQ(planeOf(s.lblMiro), display);
    }
}

// ---- hand-over --------------------------------------------------------------------------------

TEST_F(BreakEnd, StartedByHandWhileStoppedItEndsWithNothingMore) {
  sweep("N");
  rig.tick();
  EXPECT_EQ(s.cmdGoTimer.BackColor, colours::idle);
  EXPECT_EQ(s.time.nextDue(), Time::never) << "no timer runs";
}

TEST_F(BreakEnd, WhileRunningItHandsBackByAWholeGo) {
  running();
  s.cmdOnOff[1].BackColor = colours::running;
  s.cmdOnOff[4].BackColor = colours::running;
  sweep("N");
  makeEveryCellItsOwn(s);
  EXPECT_FALSE(s.TmrGoA.Enabled());
  rig.tick();
  EXPECT_EQ(s.cmdGoTimer.BackColor, colours::running);
  EXPECT_TRUE(s.TmrGoA.Enabled());
  EXPECT_TRUE(s.TmrBrk.Enabled());
  EXPECT_FALSE(s.TmrGoB.Enabled()) << "the switches decide";
  EXPECT_EQ(s.lblMiro2[441 + 5].Caption, "p5") << "Go took its snapshot";
}

TEST_F(BreakEnd, WhileRunningKindThreeDrawsItsPauseTwiceWithTheColoursIntervalBetween) {
  running();
  s.lblTmrRndCol[3].Caption = "4";
  sweep("N");
  rig.generator.otherwise.reset();
  rig.pick(1, 3);
  rig.pick(4, 5);  // Go: the interval of F
  rig.pick(3, 3);  // Go: the pause again, and this one holds
  rig.tick();
  EXPECT_TRUE(rig.generator.queue.empty());
  EXPECT_EQ(s.lblTmrRndCol[6].Caption, "4000");
  EXPECT_EQ(s.lblBrk[5].Caption, "5000");
  EXPECT_EQ(s.TmrBrk.Interval(), 5000);
}

TEST_F(BreakEnd, TheDrawsOfGoComeBeforeThoseOfTheNewColoursAndTheNewDesign) {
  for (const char* kind : {"U", "C"}) {
    BreakRig own;
    Store& t = own.s;
    t.cmdGoTimer.BackColor = colours::running;
    t.lblTmrRndCol[3].Caption = "4";
    t.lblCrea[1].Caption = "1";
    own.kind(kind);
    own.start();
    own.sweepToLast();
    t.lblColSCelto.Caption = "5";
    own.generator.otherwise.reset();
    if (*kind == 'C') own.pick(6, 7);  // the colour of the ending tick is drawn first of all
    own.pick(2, 5);
    own.pick(3, 3);
    for (int p = 41; p <= 47; ++p) own.pick(p, 101);
    own.pick(1, 81);
    own.pick(1, 81);
    own.pick(4, 7);
    own.tick();
    EXPECT_TRUE(own.generator.queue.empty()) << kind;
    EXPECT_EQ(t.lblTmrRndCol[6].Caption, "2000");
    EXPECT_EQ(t.lblBrk[5].Caption, "5000");
    for (int k = 0; k <= 6; ++k) EXPECT_EQ(t.lblTav[k].Caption, std::to_string(41 + k));
    EXPECT_EQ(t.lblMiro[1].BackColor, t.lblColore[44].BackColor);
    EXPECT_EQ(t.lblSfondoAttivo.Caption, "5") << kind;
  }
}

TEST_F(BreakEnd, TheGoComesBeforeTheFieldIsFilled) {
  running();
  s.lblBreakMode[19].BackColor = colours::unselected;
  sweep("U");
  makeEveryCellItsOwn(s);
  rig.tick();
  EXPECT_EQ(s.lblMiro2[441 + 5].Caption, "p5");
  EXPECT_EQ(tripleOf(s.lblMiro2[5]), tripleOf(s.lblValore[3]));
}

TEST_F(BreakEnd, RepeatWithoutAWaitStartsTheNextInTheSameTick) {
  running();
  repeat();
  sweep("N");
  rig.tick();
  EXPECT_TRUE(s.TmrBreak.Enabled());
  EXPECT_TRUE(rig.locked());
  EXPECT_EQ(s.lblBreak.Caption, "12");
  EXPECT_FALSE(s.TmrGoA.Enabled());
  s.time.advance(99);
  EXPECT_EQ(s.lblBreak.Caption, "12");
  s.time.advance(1);
  EXPECT_EQ(s.lblBreak.Caption, "11") << "a full period after the start";
}

TEST_F(BreakEnd, AWaitComesFirstWhetherARepeatOrAGoFollows) {
  for (bool repeats : {true, false}) {
    running();
    wait("750");
    s.lblBreakMode[21].BackColor = repeats ? colours::selected : colours::unselected;
    s.cmdOnOff[1].BackColor = colours::running;
    sweep("N");
    rig.tick();
    EXPECT_FALSE(s.TmrBreak.Enabled());
    EXPECT_TRUE(s.TmrAspetta.Enabled());
    EXPECT_EQ(s.TmrAspetta.Interval(), 750);
    EXPECT_FALSE(rig.locked());
    s.time.advance(749);
    EXPECT_FALSE(s.TmrBreak.Enabled() || s.TmrGoA.Enabled());
    s.time.advance(1);
    EXPECT_FALSE(s.TmrAspetta.Enabled());
    EXPECT_EQ(s.TmrBreak.Enabled(), repeats);
    EXPECT_EQ(s.TmrGoA.Enabled(), !repeats);
    rig.runOut();
    s.TmrAspetta.setEnabled(false);
    s.TmrGoA.setEnabled(false);
  }
}

TEST_F(BreakEnd, AWaitWhileStoppedEndsInNothing) {
  wait("250");
  sweep("N");
  rig.tick();
  s.time.advance(250);
  EXPECT_EQ(s.cmdGoTimer.BackColor, colours::idle);
  EXPECT_EQ(s.time.nextDue(), Time::never);
}

TEST_F(BreakEnd, RepeatIsAskedAgainWhenTheWaitIsOver) {
  wait("250");
  repeat();
  sweep("N");
  rig.tick();
  click(s.lblBreakMode, 21);
  s.time.advance(250);
  EXPECT_FALSE(s.TmrBreak.Enabled());
}

TEST_F(BreakEnd, AKindThreeThatARepeatFollowsWithKindOneIsPaintedOver) {
  repeat();
  s.lblBreakMode[19].BackColor = colours::unselected;
  sweep("N");
  makeEveryCellItsOwn(s);
  rig.kind("U");
  rig.tick();  // the Break that has just started decides for the one that ended
  EXPECT_EQ(s.lblTrans.Caption, "1");
  for (int i = 1; i <= 441; ++i) EXPECT_EQ(s.lblMiro[i].BackColor, s.lblValore[3].BackColor);
  EXPECT_EQ(s.lblBreak.Caption, "12") << "the new sweep has not begun";
}

TEST_F(BreakEnd, AKindOneThatARepeatFollowsWithKindThreeIsNotFilled) {
  repeat();
  s.lblBreakMode[19].BackColor = colours::unselected;
  sweep("U");
  makeEveryCellItsOwn(s);
  const auto display = planeOf(s.lblMiro);
  rig.kind("N");
  rig.tick();
  EXPECT_EQ(planeOf(s.lblMiro), display);
}

TEST_F(BreakEnd, TheDesignOfABreakThatARepeatFollowsComesAfterTheNextStartAndOnItsSlot) {
  repeat();
  s.lblBreakMode[26].BackColor = colours::unselected;
  s.lblComCol[7].BackColor = colours::selected;  // the design lays the ground, slot 0
  s.lblSelSfondo[3].Caption = "2";               // the whole picture
  s.lblCrea[1].Caption = "1";
  sweep("U");
  ASSERT_NE(s.lblColSCelto.Caption, "6");
  rig.generator.otherwise.reset();
  rig.pick(7, 7);  // the next start: its slot
  rig.pick(1, 1);  // and its pattern
  rig.pick(1, 81);
  rig.pick(2, 81);
  rig.pick(3, 7);
  rig.tick();
  EXPECT_TRUE(rig.generator.queue.empty());
  EXPECT_TRUE(s.TmrBreak.Enabled());
  EXPECT_TRUE(rig.locked());
  EXPECT_EQ(s.lblBreak.Caption, "12");
  EXPECT_EQ(s.lblSfondoAttivo.Caption, "6");
  // What the first Break swept in is gone: the ground is the colour of the Break that now sweeps.
  for (int i = 1; i <= 441; ++i) {
    const Label& slot = s.lblValore[i <= 8 ? 2 : 6];
    EXPECT_EQ(s.lblMiro[i].BackColor, slot.BackColor) << i;
    EXPECT_EQ(tripleOf(s.lblMiro2[i]), tripleOf(slot)) << i;
  }
}

TEST_F(BreakEnd, EachBreakOfARepeatChoosesItsKindAgain) {
  repeat();
  rig.kind("R");
  rig.generator.otherwise.reset();
  rig.pick(3, 3);
  rig.pick(1, 1);
  click(s.Command7);
  rig.sweepToLast();
  rig.pick(1, 3);  // pause at the end of kind 3
  rig.pick(2, 3);  // kind
  rig.pick(1, 7);  // slot
  rig.pick(1, 1);  // pattern
  s.lblBreakMode[19].BackColor = colours::unselected;
  rig.tick();
  EXPECT_EQ(s.lblTrans.Caption, "2");
  EXPECT_TRUE(rig.generator.queue.empty());
}

}  // namespace
}  // namespace caleidoscopio::test
