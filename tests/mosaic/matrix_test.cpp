#include <gtest/gtest.h>

#include "mosaic/slots.h"
#include "support/hands.h"
#include "support/rig.h"

namespace caleidoscopio::test {
namespace {

struct Matrix : testing::Test, Rig {
  void put(int element, int slot) {
    click(s.lblValore, slot);
    click(s.lblTotali, element);
  }
  void expectMarksAtRest() {
    for (int i = 0; i <= 24; ++i) {
      EXPECT_EQ(s.lblTot[i].BackColor, colours::unselected) << i;
      EXPECT_EQ(s.lblTot[i].ForeColor, colours::black) << i;
    }
  }
};

TEST_F(Matrix, AClickGivesAnElementTheActiveColourInkAndDigit) {
  put(12, 5);
  EXPECT_EQ(s.lblTotali[12].BackColor, Colour{0xFF0080});
  EXPECT_EQ(s.lblTotali[12].ForeColor, Colour{0xFFFFFF});
  EXPECT_EQ(s.lblTot[12].Caption, "5");
  EXPECT_EQ(s.lblTotali[11].BackColor, Colour{0xC0C000});
}

TEST_F(Matrix, ASwapTradesTheTwoColoursInOneGo) {
  put(0, 6);
  put(1, 3);
  put(2, 6);
  put(3, 2);
  click(s.lblValore, 3);
  click(s.lblColore, 70);
  EXPECT_EQ(s.lblTotali[0].BackColor, Colour{0x0000FF});
  EXPECT_EQ(s.lblTotali[0].ForeColor, Colour{0x000000});
  EXPECT_EQ(s.lblTotali[1].BackColor, Colour{0xFF0000});
  EXPECT_EQ(s.lblTotali[1].ForeColor, Colour{0xFFFFFF});
  EXPECT_EQ(s.lblTotali[2].BackColor, Colour{0x0000FF});
  EXPECT_EQ(s.lblTotali[3].BackColor, Colour{0x0080FF});
  EXPECT_EQ(s.lblTot[1].Caption, "3");
  expectMarksAtRest();
}

TEST_F(Matrix, ASwapForAWhiteSwatchTurnsTheWholeMatrixWhite) {
  // The resting mark is white, and the second pass compares colours: meant so.
  click(s.lblValore, 6);
  click(s.lblColore, 97);
  put(1, 3);
  click(s.lblValore, 3);
  click(s.lblColore, 97);
  for (int i = 0; i <= 24; ++i) EXPECT_EQ(s.lblTotali[i].BackColor, Colour{0xFFFFFF}) << i;
  expectMarksAtRest();
}

}  // namespace
}  // namespace caleidoscopio::test
