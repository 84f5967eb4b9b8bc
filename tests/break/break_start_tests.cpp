// The start of a Break: what is chosen, what is drawn and in which order, what is locked.
#include <gtest/gtest.h>

#include "break_rig.h"
#include "support/run_end.h"

namespace caleidoscopio::test {
namespace {

struct BreakStart : testing::Test {
  BreakRig rig;
  Store& s = rig.s;

  void start() { click(s.Command7); }
  void noDrawLeft() { EXPECT_TRUE(rig.generator.queue.empty()); }
};

TEST_F(BreakStart, TheKindFollowsItsButton) {
  const char* const kinds[][2] = {{"U", "1"}, {"C", "2"}, {"N", "3"}};
  rig.anyDraws();
  for (const auto& [choice, kind] : kinds) {
    rig.kind(choice);
    start();
    EXPECT_EQ(s.lblTrans.Caption, kind);
  }
}

TEST_F(BreakStart, ARandomKindIsDrawnFirst) {
  rig.kind("R");
  rig.pick(2, 3);
  rig.pick(6, 7);  // the slot of kinds 1 and 2
  rig.pick(1, 1);  // the pattern
  start();
  EXPECT_EQ(s.lblTrans.Caption, "2");
  EXPECT_EQ(s.lblColSCelto.Caption, "5");
  noDrawLeft();
}

TEST_F(BreakStart, AnUnknownKindLeavesTheLast) {
  rig.kind("x");
  s.lblTrans.Caption = "2";
  rig.anyDraws();
  start();
  EXPECT_EQ(s.lblTrans.Caption, "2");
}

TEST_F(BreakStart, KindsOneAndTwoShowTheSlotDrawnAndPrepareNoDesign) {
  rig.kind("U");
  makeEveryCellItsOwn(s);
  s.lblCrea[10].BackColor = colours::selected;
  const auto design = planeOf(s.lblMiro2);
  s.lblSfondo[2].BackColor = {0x123456};
  rig.pick(3, 7);
  rig.pick(1, 1);
  start();
  EXPECT_EQ(s.lblColSCelto.Caption, "2");
  EXPECT_EQ(s.lblColSCelto.BackColor, Colour{0x123456}) << "from lblSfondo, not from lblValore";
  EXPECT_EQ(planeOf(s.lblMiro2), design);
  noDrawLeft();
}

TEST_F(BreakStart, KindThreeDrawsColoursIfMarkedAndThenTheDesignAndThenThePattern) {
  s.lblCrea[8].BackColor = colours::selected;
  s.lblCrea[10].BackColor = colours::selected;
  for (int p = 11; p <= 17; ++p) rig.pick(p, 101);
  rig.pick(1, 1);
  start();
  noDrawLeft();
  EXPECT_EQ(s.lblValoreB[0].BackColor, s.lblColore[11].BackColor);
  EXPECT_EQ(s.lblMiro2[200].BackColor, s.lblColore[11].BackColor)
      << "the design has the new ground";
  EXPECT_NE(s.lblMiro[200].BackColor, s.lblColore[11].BackColor)
      << "the display still shows the old";
}

TEST_F(BreakStart, KindThreeWithoutNewColoursUsesSetBAsItStands) {
  s.lblCrea[10].BackColor = colours::selected;
  s.lblValoreB[0].BackColor = {0xABCDEF};
  rig.pick(1, 1);
  start();
  EXPECT_EQ(s.lblMiro2[5].BackColor, Colour{0xABCDEF});
  EXPECT_NE(s.lblValore[0].BackColor, Colour{0xABCDEF}) << "until the end of the Break";
  noDrawLeft();
}

TEST_F(BreakStart, ThePatternIsThePthSelectedButtonInIndexOrder) {
  for (int i : {3, 7, 11}) rig.select(i);
  s.lblBreakMode[0].Caption = "4";
  const int selected[] = {1, 3, 7, 11};
  for (int p = 1; p <= 4; ++p) {
    rig.pick(p, 4);
    start();
    EXPECT_EQ(s.lblBreakMode[17].Caption, std::to_string(selected[p - 1]));
    rig.anyDraws();
    rig.runOut();
    rig.generator.otherwise.reset();
  }
}

TEST_F(BreakStart, TheDirectionIsDrawnLast) {
  s.lblBreakMode[14].Caption = "O/I";
  for (int k : {1, 2}) {
    rig.pick(1, 1);
    rig.pick(k, 2);
    start();
    noDrawLeft();
    EXPECT_EQ(s.lblBreak.BackColor, k == 1 ? colours::selected : colours::unselected);
    rig.anyDraws();
    rig.runOut();
    rig.generator.otherwise.reset();
  }
}

TEST_F(BreakStart, InOrderThePatternsFollowOneAnotherAndWrap) {
  s.lblBreakMode[24].Caption = "Seq";
  for (int i : {4, 12}) rig.select(i);
  rig.anyDraws();
  for (const char* next : {"4", "12", "1", "4"}) {
    start();
    EXPECT_EQ(s.lblBreakMode[17].Caption, next);
    EXPECT_EQ(s.lblBreakMode[25].Caption, next);
    rig.runOut();
  }
}

TEST_F(BreakStart, InOrderTheDrawOfThePatternIsMadeAllTheSame) {
  s.lblBreakMode[24].Caption = "Seq";
  rig.pick(1, 1);
  start();
  noDrawLeft();
}

TEST_F(BreakStart, AnUnknownOrderCountsAsInOrder) {
  s.lblBreakMode[24].Caption = "?";
  rig.only(6);
  rig.anyDraws();
  start();
  EXPECT_EQ(s.lblBreakMode[25].Caption, "6");
}

TEST_F(BreakStart, InOrderWithOnePatternItRunsEveryTime) {
  s.lblBreakMode[24].Caption = "Seq";
  rig.only(5);
  s.lblBreakMode[25].Caption = "5";
  rig.anyDraws();
  for (int i = 0; i < 3; ++i) {
    start();
    EXPECT_EQ(s.lblBreakMode[17].Caption, "5");
    EXPECT_EQ(s.lblBreakMode[25].Caption, "5");
    rig.runOut();
  }
}

TEST_F(BreakStart, InOrderWithNoneSelectedTheTwentiethStepDecides) {
  s.lblBreakMode[24].Caption = "Seq";
  rig.select(1, false);
  rig.anyDraws();
  start();
  EXPECT_EQ(s.lblBreakMode[25].Caption, "9") << "1 and twenty steps round twelve";
  EXPECT_EQ(s.lblBreakMode[17].Caption, "9");
  EXPECT_EQ(s.lblBreakMode[9].BackColor, runningPattern);
}

TEST_F(BreakStart, ACountWithoutThatManyButtonsKeepsTheLastPatternCountAndDirection) {
  rig.only(3);
  s.lblBreakMode[0].Caption = "5";
  s.lblBreakMode[14].Caption = "O/I";
  s.lblBreakMode[17].Caption = "8";
  s.lblBreak.Caption = "1";
  s.lblBreak.BackColor = colours::unselected;
  rig.pick(4, 5);
  start();
  noDrawLeft();  // no direction either
  EXPECT_EQ(s.lblBreakMode[17].Caption, "8");
  EXPECT_EQ(s.lblBreak.Caption, "1");
  EXPECT_EQ(s.lblBreak.BackColor, colours::unselected);
  EXPECT_EQ(s.lblBreakMode[20].Caption, "Sant'Andrea (In)");
  EXPECT_TRUE(s.TmrBreak.Enabled());
  EXPECT_TRUE(rig.locked());
  EXPECT_EQ(s.lblBreakMode[3].BackColor, colours::selected);
  rig.anyDraws();
  rig.tick();  // the usual "1" of the last Break: the first tick ends this one
  EXPECT_FALSE(s.TmrBreak.Enabled());
  EXPECT_FALSE(rig.locked());
}

TEST_F(BreakStart, ACountBelowOneOrBeyondSixteenBitsEndsTheRun) {
  rig.anyDraws();
  for (const char* count : {"0", "-1", "40000", ""}) {
    s.lblBreakMode[0].Caption = count;
    EXPECT_THROW(start(), RunEnded) << count;
    EXPECT_FALSE(rig.locked()) << "the buttons are locked only after that draw";
  }
}

TEST_F(BreakStart, ButtonsAreLockedAndNoOthers) {
  rig.start();
  for (int i = 0; i <= 26; ++i) {
    const bool locks = (1 <= i && i <= 14) || i == 18 || i == 19 || i == 24;
    EXPECT_EQ(s.lblBreakMode[i].Enabled, !locks) << i;
  }
  EXPECT_FALSE(s.Command7.Enabled);
  EXPECT_TRUE(s.Command8.Enabled);
  EXPECT_TRUE(s.cmdGoTimer.Enabled);
  EXPECT_TRUE(s.lblTmrBreak[1].Enabled);
  EXPECT_TRUE(s.lblBrk[1].Enabled);
}

TEST_F(BreakStart, TheEnginesStopTheBreakTimerAndGoStayAsTheyAre) {
  for (int k = 0; k <= 5; ++k) s.cmdOnOff[k].BackColor = colours::running;
  s.TmrGoD.setInterval(5000);
  rig.anyDraws();
  click(s.cmdGoTimer);
  ASSERT_TRUE(s.TmrGoA.Enabled() && s.TmrGoB.Enabled() && s.TmrGoC.Enabled() &&
              s.TmrGoD.Enabled() && s.TmrSequencer.Enabled() && s.TmrBrk.Enabled());
  start();
  for (Timer* timer : {&s.TmrGoA, &s.TmrGoB, &s.TmrGoC, &s.TmrGoD, &s.TmrSequencer})
    EXPECT_FALSE(timer->Enabled());
  EXPECT_TRUE(s.TmrBrk.Enabled());
  EXPECT_EQ(s.cmdGoTimer.BackColor, colours::running);
}

TEST_F(BreakStart, EveryPatternHasItsCountItsMarkAndItsNameBothWays) {
  const struct {
    const char *count, *out, *in;
  } expected[] = {{"12", "Orizzontale (Out)", "Orizzontale (In)"},
                  {"12", "Verticale (Out)", "Verticale (In)"},
                  {"22", "Diagonale A (Out)", "Diagonale A (In)"},
                  {"22", "Diagonale B (Out)", "Diagonale B (In)"},
                  {"12", "Cornici (Out)", "Cornici (In)"},
                  {"22", "Rombi (Out)", "Rombi (In)"},
                  {"12", "Croci (Out)", "Croci (In)"},
                  {"12", "Sant'Andrea (Out)", "Sant'Andrea (In)"},
                  {"12", "Zig-Zag Orizz. (Out)", "Zig-Zag Orizz. (In)"},
                  {"12", "Zig-Zag Vert. (Out)", "Zig-Zag Vert. (In)"},
                  {"14", "Spirale (Out)", "Spirale (In)"},
                  {"2", "Immediato", "Immediato"}};
  for (int pattern = 1; pattern <= 12; ++pattern)
    for (bool out : {true, false}) {
      const auto& [count, nameOut, nameIn] = expected[pattern - 1];
      rig.only(pattern);
      s.lblBreakMode[14].Caption = out ? "Out" : "In";
      rig.start();
      EXPECT_EQ(s.lblBreakMode[17].Caption, std::to_string(pattern));
      EXPECT_EQ(s.lblBreak.Caption, count);
      EXPECT_EQ(s.lblBreak.BackColor, out ? colours::selected : colours::unselected);
      EXPECT_EQ(s.lblBreakMode[20].Caption, out ? nameOut : nameIn);
      EXPECT_EQ(s.lblBreakMode[pattern].BackColor, runningPattern);
      EXPECT_EQ(s.lblBreakMode[pattern].ForeColor, Colour{0xFFFFFF});
      // The count is the ticks of the whole Break, the ending one included.
      int ticks = 0;
      for (; s.TmrBreak.Enabled(); ++ticks) rig.tick();
      EXPECT_EQ(std::to_string(ticks), count);
      EXPECT_EQ(s.lblBreakMode[pattern].BackColor, colours::selected);
      EXPECT_EQ(s.lblBreakMode[pattern].ForeColor, colours::black);
    }
}

TEST_F(BreakStart, AlternatingStartsWithOutAndTurnsEveryTime) {
  s.lblBreakMode[14].Caption = "Alt";
  for (const char* direction : {"O", "I", "O", "I"}) {
    rig.start();
    EXPECT_EQ(s.lblBreakMode[15].Caption, direction);
    EXPECT_EQ(s.lblBreak.BackColor, *direction == 'O' ? colours::selected : colours::unselected);
    rig.runOut();
  }
}

TEST_F(BreakStart, AnUnknownDirectionModeLeavesTheLastDirectionAndDrawsNothing) {
  s.lblBreakMode[14].Caption = "?";
  s.lblBreak.BackColor = colours::unselected;
  rig.pick(1, 1);
  start();
  noDrawLeft();
  EXPECT_EQ(s.lblBreak.BackColor, colours::unselected);
  EXPECT_EQ(s.lblBreakMode[15].Caption, "I");
}

TEST_F(BreakStart, TheTickLengthIsTakenAtTheStart) {
  s.lblTmrBreak[0].Caption = "250";
  rig.start();
  EXPECT_EQ(s.TmrBreak.Interval(), 250);
  s.time.advance(249);
  EXPECT_EQ(s.lblBreak.Caption, "12");
  s.time.advance(1);
  EXPECT_EQ(s.lblBreak.Caption, "11");
  s.lblTmrBreak.raise(Event::MouseDown, 2);
  s.lblTmrBreak.raise(Event::MouseUp, 2);
  EXPECT_EQ(s.TmrBreak.Interval(), 250) << "a change is felt at the next Break";
}

TEST_F(BreakStart, ATickLengthBeyondSixteenBitsEndsTheRunWithTheButtonsAlreadyLocked) {
  for (const char* ms : {"40000", "32768", "-32769"}) {
    BreakRig own;
    Store& t = own.s;
    own.anyDraws();
    t.TmrGoA.setEnabled(true);
    t.lblTmrBreak[0].Caption = ms;
    EXPECT_TRUE(endsTheRun([&] { click(t.Command7); }, {"lblTmrBreak(0).Caption", ms, "16 bits"}));
    EXPECT_TRUE(own.locked());
    EXPECT_EQ(t.lblBreakMode[1].BackColor, runningPattern);
    EXPECT_EQ(t.lblBreakMode[20].Caption, "Orizzontale (Out)");
    EXPECT_FALSE(t.TmrGoA.Enabled());
    EXPECT_FALSE(t.TmrBreak.Enabled());
    EXPECT_EQ(t.TmrBreak.Interval(), 3000);
  }
}

TEST(BreakDefaults, AmongElevenPatternsAtRandomAlternatingFromOut) {
  Rig rig;
  Store& s = rig.s;
  rig.pick(1, 3);    // kind
  rig.pick(4, 7);    // slot
  rig.pick(11, 11);  // pattern
  click(s.Command7);
  EXPECT_TRUE(rig.generator.queue.empty());
  EXPECT_EQ(s.lblBreakMode[20].Caption, "Spirale (Out)");
  EXPECT_EQ(s.lblBreak.Caption, "14");
  EXPECT_EQ(s.TmrBreak.Interval(), 100);
}

}  // namespace
}  // namespace caleidoscopio::test
