#include <gtest/gtest.h>

#include "mosaic/painting.h"
#include "support/digit_field.h"
#include "support/hands.h"
#include "support/rig.h"
#include "support/run_end.h"

namespace caleidoscopio::test {
namespace {

struct Background : testing::Test, Rig {
  void scope(int k) { click(s.lblSelSfondo, k); }
  /// How many cells of a range have a slot's colour on the display, and on the design.
  int count(char digit, int first, int last) const {
    int n = 0;
    for (int i = first; i <= last; ++i) n += digitOf(s, s.lblMiro[i]) == digit;
    return n;
  }
};

TEST_F(Background, AClickOnAScopeMarksItAloneAndHoldsItsIndex) {
  scope(2);
  EXPECT_EQ(s.lblSelSfondo[3].Caption, "2");
  for (int k = 0; k <= 2; ++k)
    EXPECT_EQ(s.lblSelSfondo[k].BackColor, k == 2 ? colours::selected : colours::unselected);
}

TEST_F(Background, ANewSlotReplacesTheOldBackgroundWithinTheFrame) {
  paintCell(s, 325, 3);
  click(s.lblSfondo, 5);
  EXPECT_EQ(s.lblClickSfondo.Caption, "0");
  EXPECT_EQ(s.lblSfondoAttivo.Caption, "5");
  EXPECT_EQ(s.lblSfondoMem.Caption, "5");
  for (int k = 0; k <= 6; ++k) EXPECT_EQ(s.lblSfondo[k].BorderStyle, k == 5 ? 1 : 0);
  EXPECT_EQ(count('5', 325, 441), 116);
  EXPECT_EQ(count('3', 325, 441), 1);
  EXPECT_EQ(count('0', 1, 324), 324);
  EXPECT_EQ(s.lblMiro2[441].BackColor, Colour{0xFF0080});
  EXPECT_EQ(s.lblMiro2[441].ForeColor, Colour{0xFFFFFF});
  EXPECT_EQ(s.lblMiro2[441].Caption, "5");
}

TEST_F(Background, TheSlotThatIsTheBackgroundFillsTheWholeScope) {
  paintCell(s, 325, 3);
  click(s.lblSfondo, 0);
  EXPECT_EQ(s.lblClickSfondo.Caption, "1");
  EXPECT_EQ(count('0', 325, 441), 117);
}

TEST_F(Background, TheFieldAloneIsTheScopeQuadro) {
  scope(0);
  paintCell(s, 10, 3);
  click(s.lblSfondo, 5);
  EXPECT_EQ(count('5', 1, 324), 323);
  EXPECT_EQ(count('0', 325, 441), 117);
  click(s.lblSfondo, 5);
  EXPECT_EQ(count('5', 1, 324), 324);
}

TEST_F(Background, EveryCellIsTheScopeTutto) {
  scope(2);
  click(s.lblSfondo, 5);
  EXPECT_EQ(count('5', 1, 441), 441);
}

TEST_F(Background, AReplacementInTheFieldReachesTheSpareCellAndNoOtherOperationDoes) {
  scope(2);
  click(s.lblSfondo, 5);
  EXPECT_EQ(s.lblMiro[0].BackColor, Colour{0xC0C000});
  scope(0);
  s.lblMiro[0].BackColor = {0xFF0080};
  click(s.lblSfondo, 5);  // a fill
  EXPECT_EQ(s.lblMiro[0].ForeColor, Colour{0x000000});
  click(s.lblSfondo, 2);  // a replacement: meant so, nobody sees that cell
  EXPECT_EQ(s.lblMiro[0].BackColor, Colour{0x0080FF});
  EXPECT_EQ(count('2', 1, 324), 324);
}

TEST_F(Background, TheColourReplacedIsThatOfTheBackgroundBeforeAndNotOfTheActiveOne) {
  s.lblSfondoMem.Caption = "3";
  paintCell(s, 325, 3);
  click(s.lblSfondo, 5);
  EXPECT_EQ(count('5', 325, 441), 1);
  EXPECT_EQ(count('0', 325, 441), 116);
}

TEST_F(Background, TheDigitComesFromTheSlotAndShowsOnlyUnderY) {
  s.lblValore[5].Caption = "1";
  click(s.lblSfondo, 5);
  EXPECT_EQ(s.lblMiro2[330].Caption, "1");
  EXPECT_EQ(s.lblMiro[330].Caption, "");
  press(s.lblComCol, 1);
  s.lblValore[4].Caption = "6";
  click(s.lblSfondo, 4);
  EXPECT_EQ(s.lblMiro[330].Caption, "6");
}

TEST_F(Background, TheTestLooksAtTheDisplayAlone) {
  s.lblMiro2[330].BackColor = {0x0000FF};
  click(s.lblSfondo, 5);
  EXPECT_EQ(s.lblMiro2[330].BackColor, Colour{0xFF0080});
}

TEST_F(Background, ABackgroundThatIsNoNumberEndsTheRunAndNamesIt) {
  s.lblSfondoMem.Caption = "?";
  EXPECT_TRUE(endsTheRun([&] { click(s.lblSfondo, 5); }, {"lblSfondoMem.Caption", "\"?\""}));
}

TEST_F(Background, AFillDoesNotAskForTheBackgroundBefore) {
  for (const char* before : {"?", "8"}) {
    s.lblSfondoAttivo.Caption = "5";
    s.lblSfondoMem.Caption = before;
    click(s.lblSfondo, 5);
    EXPECT_EQ(count('5', 325, 441), 117) << before;
    EXPECT_EQ(s.lblSfondoMem.Caption, "5");
  }
}

TEST_F(Background, AnUnknownScopePaintsNothingAndDoesNotAskForTheBackgroundBefore) {
  s.lblSelSfondo[3].Caption = "7";
  s.lblSfondoMem.Caption = "?";
  click(s.lblSfondo, 5);
  EXPECT_EQ(count('5', 0, 441), 0);
  EXPECT_EQ(s.lblSfondoMem.Caption, "5");
}

}  // namespace
}  // namespace caleidoscopio::test
