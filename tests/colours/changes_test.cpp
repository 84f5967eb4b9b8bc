#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/seeded.h"

namespace caleidoscopio::test {
namespace {

std::vector<std::string> swatches(Store& s) {
  std::vector<std::string> all;
  for (int k = 0; k <= 6; ++k) all.push_back(s.lblTav[k].Caption);
  return all;
}
using Swatches = std::vector<std::string>;
const Swatches atLoad{"55", "22", "14", "6", "86", "78", "70"};

struct Changes : testing::Test {
  Rig rig;
  Store& s = rig.s;
  void run(int n) { click(s.lblCambioCol, n); }
};

TEST_F(Changes, DGivesTheActiveSlotAFreeSwatch) {
  rig.pick(50, 101);
  run(0);
  EXPECT_EQ(swatches(s), (Swatches{"55", "22", "14", "50", "86", "78", "70"}));
  EXPECT_EQ(s.lblValore[3].BackColor, (Colour{0xAAAA55}));
  EXPECT_EQ(s.lblValAttivo.Caption, "3");
  EXPECT_EQ(s.lblValAttivo.BackColor, (Colour{0xAAAA55}));
  EXPECT_EQ(s.lblCambioCol[5].Caption, "0");
  EXPECT_EQ(s.lblCambioCol[7].Caption, "3");
  EXPECT_EQ(unnamedSlot(s), -1);
}

TEST_F(Changes, DPassesOverSwatchesInUse) {
  for (int used : {55, 22}) rig.pick(used, 101);
  rig.pick(50, 101);
  run(0);
  EXPECT_EQ(s.lblTav[3].Caption, "50");
  EXPECT_EQ(rig.generator.draws, 3);
}

TEST_F(Changes, DAfterAHundredMissesClicksTheLastPickAllTheSame) {
  for (int i = 0; i < 99; ++i) rig.pick(22, 101);
  rig.pick(55, 101);
  run(0);
  EXPECT_EQ(rig.generator.draws, 100);
  EXPECT_EQ(swatches(s), (Swatches{"6", "22", "14", "55", "86", "78", "70"}));
  EXPECT_EQ(unnamedSlot(s), -1);
}

TEST_F(Changes, DWithThePaletteFullTakesTheLastPickWhateverItsState) {
  for (int i = 1; i <= 104; ++i) s.lblColore[i].BorderStyle = 1;
  for (int i = 0; i < 100; ++i) rig.pick(50, 101);
  run(0);
  EXPECT_EQ(s.lblTav[3].Caption, "50");
  EXPECT_EQ(s.lblValore[3].BackColor, s.lblColore[50].BackColor);
  // No slot had it: the old colour goes to the element that is none.
  EXPECT_EQ(s.lblValore[7].BackColor, (Colour{0x0000FF}));
  EXPECT_EQ(s.lblTav[7].Caption, "6");
}

TEST_F(Changes, FTakesTheActiveDigitForTheNumberOfASlot) {
  s.lblValore[3].Caption = "5";
  click(s.lblValore, 3);
  rig.pick(50, 101);
  run(4);
  EXPECT_EQ(swatches(s), (Swatches{"55", "22", "14", "6", "86", "50", "70"}));
  EXPECT_EQ(s.lblValAttivo.Caption, "5");
  EXPECT_EQ(s.lblCambioCol[7].Caption, "5");
}

TEST_F(Changes, DAndFLeaveTheMarksAsTheyAre) {
  rig.generator.otherwise = 0.5F;
  run(0);
  run(4);
  EXPECT_EQ(s.lblCambioCol[10].BackColor, colours::selected);
  EXPECT_EQ(s.lblCambioCol[0].BackColor, colours::unselected);
  EXPECT_EQ(s.lblCambioCol[4].BackColor, colours::unselected);
}

TEST_F(Changes, TGivesEverySlotOnePickAndStopsAtTheLast) {
  for (int p : {1, 2, 3, 4, 5, 7, 8}) rig.pick(p, 101);
  run(1);
  EXPECT_EQ(swatches(s), (Swatches{"1", "2", "3", "4", "5", "7", "8"}));
  EXPECT_EQ(s.lblValAttivo.Caption, "6") << "no closing click on the slot that was active";
  EXPECT_EQ(s.lblCambioCol[1].BackColor, colours::selected);
  EXPECT_EQ(s.lblCambioCol[10].BackColor, colours::unselected);
}

TEST_F(Changes, TLeavesSlotZeroOutWithoutYAndThoseBeyondN) {
  s.lblCambioCol[6].Caption = "N";
  s.lblNSc.Caption = "4";
  for (int p : {1, 2, 3}) rig.pick(p, 101);
  run(1);
  EXPECT_EQ(swatches(s), (Swatches{"55", "1", "2", "3", "86", "78", "70"}));
}

TEST_F(Changes, TTradesWhereThePickIsInUse) {
  s.lblNSc.Caption = "2";
  rig.pick(22, 101);  // slot 1's, for slot 0: they trade
  rig.pick(50, 101);
  run(1);
  EXPECT_EQ(swatches(s), (Swatches{"22", "50", "14", "6", "86", "78", "70"}));
  EXPECT_EQ(s.lblColore[55].BorderStyle, 0);
}

TEST_F(Changes, IITradesTheColoursOfTwoSlotsAndSelectsTheNumberedOneAgain) {
  rig.pick(2, 7);
  rig.pick(2, 7);  // the same again: another attempt
  rig.pick(5, 7);
  run(2);
  EXPECT_EQ(swatches(s), (Swatches{"55", "86", "14", "6", "22", "78", "70"}));
  EXPECT_EQ(rig.generator.draws, 3);
  EXPECT_EQ(s.lblValAttivo.Caption, "3");
  EXPECT_EQ(s.lblCambioCol[2].BackColor, colours::selected);
  EXPECT_EQ(unnamedSlot(s), -1);
}

TEST_F(Changes, IIClosesOnTheSlotThatTheActiveDigitNumbers) {
  s.lblValore[3].Caption = "6";
  click(s.lblValore, 3);
  rig.pick(2, 7);
  rig.pick(5, 7);
  run(2);
  EXPECT_EQ(s.lblValAttivo.Caption, "6");
}

TEST_F(Changes, IIGivesUpASecondSlotAfterAHundredAttempts) {
  rig.generator.otherwise = 0.5F;
  run(2);
  EXPECT_EQ(rig.generator.draws, 101);
  EXPECT_EQ(swatches(s), atLoad);
}

TEST_F(Changes, IIWithoutYDrawsAmongTheOthers) {
  s.lblCambioCol[6].Caption = "N";
  rig.pick(1, 6);
  rig.pick(6, 6);
  run(2);
  EXPECT_EQ(swatches(s), (Swatches{"55", "70", "14", "6", "86", "78", "22"}));
}

TEST_F(Changes, IIWithOneSlotInPlayDrawsNothingButMakesItsClosingClick) {
  s.lblCambioCol[6].Caption = "N";
  s.lblNSc.Caption = "2";
  s.lblNumAttivo.Caption = "5";
  run(2);
  EXPECT_EQ(rig.generator.draws, 0);
  EXPECT_EQ(swatches(s), atLoad);
  EXPECT_EQ(s.lblValAttivo.Caption, "5");
}

TEST_F(Changes, IIRepeatsAsOftenAsTheRepetitionsSay) {
  s.lblCambioCol[11].Caption = "2";
  for (int k : {1, 2, 1, 3}) rig.pick(k, 7);
  run(2);
  EXPECT_EQ(swatches(s), (Swatches{"14", "55", "22", "6", "86", "78", "70"}));
}

TEST_F(Changes, SMovesEveryColourToTheNextSlot) {
  run(3);
  EXPECT_EQ(swatches(s), (Swatches{"70", "55", "22", "14", "6", "86", "78"}));
  EXPECT_EQ(unnamedSlot(s), -1);
  EXPECT_EQ(s.lblCambioCol[8].Caption, "70");
  EXPECT_EQ(s.lblCambioCol[3].BackColor, colours::selected);
  EXPECT_EQ(s.lblValAttivo.Caption, "0") << "no closing click on the slot that was active";
  EXPECT_EQ(rig.generator.draws, 0);
}

TEST_F(Changes, SMovesTheCellsWithTheirColours) {
  for (int k = 0; k <= 6; ++k) paintQuartet(s, 1 + 4 * k, k);
  run(3);
  for (int k = 0; k <= 6; ++k)
    EXPECT_EQ(s.lblMiro[1 + 4 * k].BackColor, s.lblValore[k].BackColor)
        << "the cells of slot " << k << " are still of slot " << k;
}

TEST_F(Changes, SWithoutYLeavesSlotZeroOut) {
  s.lblCambioCol[6].Caption = "N";
  run(3);
  EXPECT_EQ(swatches(s), (Swatches{"55", "70", "22", "14", "6", "86", "78"}));
  EXPECT_EQ(unnamedSlot(s), -1);
}

TEST_F(Changes, SMovesOnlyTheSlotsInPlayAndRepeats) {
  s.lblNSc.Caption = "3";
  s.lblCambioCol[11].Caption = "2";
  run(3);
  EXPECT_EQ(swatches(s), (Swatches{"22", "14", "55", "6", "86", "78", "70"}));
}

TEST_F(Changes, SOfTwoSlotsTradesThemAndWithoutYMovesNothing) {
  s.lblNSc.Caption = "2";
  run(3);
  EXPECT_EQ(swatches(s), (Swatches{"22", "55", "14", "6", "86", "78", "70"}));
  s.lblCambioCol[6].Caption = "N";
  click(s.lblValore, 4);
  run(3);
  EXPECT_EQ(swatches(s), (Swatches{"22", "55", "14", "6", "86", "78", "70"}));
  EXPECT_EQ(s.lblValAttivo.Caption, "4");
}

TEST_F(Changes, RReplacesADrawnSlotsColourEverywhereAtOnce) {
  paintQuartet(s, 1, 4);
  s.lblTotali[7].BackColor = s.lblValore[4].BackColor;
  rig.pick(5, 7);
  rig.pick(22, 101);  // in use
  rig.pick(1, 101);
  run(10);
  EXPECT_EQ(swatches(s), (Swatches{"55", "22", "14", "6", "1", "78", "70"}));
  EXPECT_EQ(unnamedSlot(s), -1);
  EXPECT_EQ(s.lblColore[86].BorderStyle, 0);
  EXPECT_EQ(s.lblMemoCol.BackColor, (Colour{0xFF00FF}));
  for (int i = 1; i <= 4; ++i) {
    EXPECT_EQ(s.lblMiro[i].BackColor, (Colour{0x404080}));
    EXPECT_EQ(s.lblMiro[i].ForeColor, (Colour{0xFFFFFF}));
    EXPECT_EQ(s.lblMiro2[i].BackColor, (Colour{0x404080}));
    EXPECT_EQ(s.lblMiro2[i].Caption, "4");
  }
  EXPECT_EQ(s.lblMiro[5].BackColor, (Colour{0xC0C000}));
  EXPECT_EQ(s.lblTotali[7].BackColor, (Colour{0x404080}));
  EXPECT_EQ(s.lblTotali[7].ForeColor, (Colour{0xFFFFFF}));
  EXPECT_EQ(s.lblPRovaTotColSel.Caption, "7");
  EXPECT_EQ(s.lblCambioCol[10].BackColor, colours::selected);
}

TEST_F(Changes, RLeavesTheActiveColourAsItWasEvenWhereItReplacesThatSlot) {
  rig.pick(4, 7);
  rig.pick(1, 101);
  run(10);
  EXPECT_EQ(s.lblTav[3].Caption, "1");
  EXPECT_EQ(s.lblValAttivo.Caption, "3");
  EXPECT_EQ(s.lblValAttivo.BackColor, (Colour{0x0000FF})) << "the brush keeps the old colour";
}

TEST_F(Changes, RWithoutYDrawsAmongTheOthersAndRepeats) {
  s.lblCambioCol[6].Caption = "N";
  s.lblNSc.Caption = "3";
  s.lblCambioCol[11].Caption = "2";
  rig.pick(1, 2);
  rig.pick(1, 101);
  rig.pick(2, 2);
  rig.pick(2, 101);
  run(10);
  EXPECT_EQ(swatches(s), (Swatches{"55", "1", "2", "6", "86", "78", "70"}));
}

TEST_F(Changes, RAfterAHundredMissesTakesTheLastPickAllTheSame) {
  rig.pick(5, 7);
  for (int i = 0; i < 100; ++i) rig.pick(22, 101);
  run(10);
  EXPECT_EQ(rig.generator.draws, 101);
  EXPECT_EQ(s.lblTav[4].Caption, "22");
  EXPECT_EQ(s.lblTav[1].Caption, "22");
  EXPECT_EQ(s.lblValore[4].BackColor, s.lblValore[1].BackColor);
  EXPECT_EQ(s.lblPRovaTotColSel.Caption, "6");
}

TEST_F(Changes, WhatASwatchColoursDivertsTheEnginesClicksAlike) {
  s.lblComCol[3].Caption = "Sfondo";
  rig.pick(50, 101);
  run(0);
  EXPECT_EQ(s.form.BackColor, s.lblColore[50].BackColor);
  EXPECT_EQ(swatches(s), atLoad);
  EXPECT_EQ(s.lblColore[50].BorderStyle, 0);
  // R makes no click, and changes the slot.
  rig.pick(5, 7);
  rig.pick(1, 101);
  run(10);
  EXPECT_EQ(s.lblTav[4].Caption, "1");
}

TEST_F(Changes, OnlyTheRepeatedOperationsAndTheHoldersTakeTheMarksOff) {
  rig.generator.otherwise = 0.5F;
  for (int n = 0; n <= 11; ++n) {
    for (int k : {1, 2, 3, 10}) s.lblCambioCol[k].BackColor = colours::selected;
    run(n);
    EXPECT_EQ(s.lblCambioCol[5].Caption, std::to_string(n));
    const bool leaves = n == 0 || n == 4 || n == 6 || n == 9 || n == 11;
    for (int k : {1, 2, 3, 10})
      EXPECT_EQ(s.lblCambioCol[k].BackColor,
                leaves || k == n ? colours::selected : colours::unselected)
          << "element " << k << " after a click on " << n;
  }
}

TEST_F(Changes, YAndATogglesAndTheRepetitionsStepRound) {
  run(6);
  EXPECT_EQ(s.lblCambioCol[6].Caption, "N");
  run(6);
  EXPECT_EQ(s.lblCambioCol[6].Caption, "Y");
  run(9);
  EXPECT_EQ(s.lblCambioCol[9].BackColor, colours::selected);
  run(9);
  EXPECT_EQ(s.lblCambioCol[9].BackColor, colours::unselected);
  for (const char* times : {"2", "3", "4", "5", "6", "1"}) {
    run(11);
    EXPECT_EQ(s.lblCambioCol[11].Caption, times);
  }
}

TEST_F(Changes, FourElementsShowThePressAndTheOthersDoNot) {
  for (int n = 0; n <= 11; ++n) {
    const Colour before = s.lblCambioCol[n].BackColor;
    const bool shows = n == 0 || n == 4 || n == 6 || n == 11;
    s.lblCambioCol.raise(Event::MouseDown, n);
    EXPECT_EQ(s.lblCambioCol[n].BackColor, shows ? colours::pressed : before) << n;
    s.lblCambioCol.raise(Event::MouseUp, n);
    EXPECT_EQ(s.lblCambioCol[n].BackColor, shows ? colours::unselected : before) << n;
  }
}

TEST_F(Changes, WithNoSlotInPlayAPickEndsTheRun) {
  rig.generator.otherwise = 0.5F;
  s.lblNSc.Caption = "0";
  EXPECT_THROW(run(10), RunEnded);
  s.lblNSc.Caption = "1";
  s.lblCambioCol[6].Caption = "N";
  EXPECT_THROW(run(2), RunEnded);
}

}  // namespace
}  // namespace caleidoscopio::test
