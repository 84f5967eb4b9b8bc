#include <gtest/gtest.h>

#include "mosaic/slots.h"
#include "mosaic/tools.h"
#include "support/digit_field.h"
#include "support/hands.h"
#include "support/rig.h"
#include "support/run_end.h"

namespace caleidoscopio::test {
namespace {

/// A picture of slots 0 to 6, taken as a Go takes it.
struct Return : testing::Test, Rig {
  Return() {
    generator.otherwise = 0.0F;
    drawQuadrant(s, before);
    click(s.lblTotali, 3);
    click(s.cmdGoTimer);
  }
  void back() { press(s.lblBack); }
  const Rows before{"123456012", "000000000", "666666666", "000000000", "111111111",
                    "000000000", "050505050", "000000000", "222333444"};
};

TEST_F(Return, GoLightsTheButtonUntilItsNextRelease) {
  EXPECT_EQ(s.lblBack.BackColor, colours::pressed);
  back();
  EXPECT_EQ(s.lblBack.BackColor, colours::pressed);
  release(s.lblBack);
  EXPECT_EQ(s.lblBack.BackColor, colours::unselected);
}

TEST_F(Return, GoTakesDesignSlotsHoldersAndMatrix) {
  for (int i = 1; i <= 441; ++i) {
    EXPECT_EQ(s.lblMiro2[441 + i].Caption, s.lblMiro2[i].Caption) << i;
    EXPECT_EQ(s.lblMiro2[441 + i].BackColor, s.lblMiro2[i].BackColor) << i;
    EXPECT_EQ(s.lblMiro2[441 + i].ForeColor, s.lblMiro2[i].ForeColor) << i;
  }
  EXPECT_EQ(s.lblCopia[1].Caption, "3");
  EXPECT_EQ(s.lblCopia[1].BackColor, Colour{0x0000FF});
  EXPECT_EQ(s.lblCopia[2].Caption, "3");
  EXPECT_EQ(s.lblCopia[3].Caption, "0");
  EXPECT_EQ(s.lblCopia[4].Caption, "0");
  EXPECT_EQ(s.lblTotaliC[3].BackColor, Colour{0x0000FF});
}

TEST_F(Return, RightAfterAGoRestoresPictureAndPalette) {
  click(s.lblValore, 5);
  click(s.lblColore, 1);   // a free swatch
  click(s.lblColore, 22);  // and a trade
  pressAndRelease(s.lblPiù, 2);
  click(s.lblMiro, 1);
  click(s.lblSfondo, 4);
  click(s.lblTotali, 3);
  back();
  EXPECT_TRUE(becomes(before, quadrantOf(s), before));
  const char* const swatches[] = {"55", "22", "14", "6", "86", "78", "70"};
  for (int k = 0; k <= 6; ++k) {
    EXPECT_EQ(s.lblTav[k].Caption, swatches[k]);
    EXPECT_EQ(s.lblValore[k].BackColor, s.lblColore[std::stoi(swatches[k])].BackColor);
    EXPECT_EQ(s.lblSfondo[k].BackColor, s.lblValore[k].BackColor);
    EXPECT_EQ(s.lblSfondo[k].ForeColor, s.lblValore[k].ForeColor);
    EXPECT_EQ(s.lblValore[k].Caption, std::to_string(k));
    EXPECT_EQ(s.lblValore[k].BorderStyle, k == 3 ? 1 : 0);
    EXPECT_EQ(s.lblSfondo[k].BorderStyle, k == 0 ? 1 : 0);
  }
  int used = 0;
  for (int i = 1; i <= 104; ++i) used += s.lblColore[i].BorderStyle;
  EXPECT_EQ(used, 7);
  EXPECT_EQ(s.lblValAttivo.Caption, "3");
  EXPECT_EQ(s.lblValAttivo.BackColor, Colour{0x0000FF});
  EXPECT_EQ(s.lblNumAttivo.Caption, "3");
  EXPECT_EQ(s.lblSfondoAttivo.Caption, "0");
  EXPECT_EQ(s.lblSfondoMem.Caption, "0");
  EXPECT_EQ(s.lblTotali[3].BackColor, Colour{0x0000FF});
}

TEST_F(Return, RestoresTheDesignPlaneWithItsDigits) {
  click(s.lblMiro, 1);
  back();
  EXPECT_EQ(s.lblMiro2[1].Caption, "1");
  EXPECT_EQ(s.lblMiro2[1].BackColor, Colour{0x00FFFF});
  EXPECT_EQ(s.lblMiro[1].Caption, "");
}

TEST_F(Return, BringsTheDigitsBackWhileTheyAreShown) {
  press(s.lblComCol, 1);
  click(s.lblMiro, 1);
  back();
  EXPECT_EQ(s.lblMiro[1].Caption, "1");
}

TEST_F(Return, ADesignThatTheDisplayNeverShowedIsWhatComesBack) {
  s.lblMiro2[441 + 9].BackColor = {0xFF0000};
  back();
  EXPECT_EQ(s.lblMiro[9].BackColor, Colour{0xFF0000});
}

TEST_F(Return, LeavesTheMarkOfSwatch101WhichNoSlotHas) {
  s.lblColore[100].BorderStyle = s.lblColore[101].BorderStyle = s.lblColore[104].BorderStyle = 1;
  back();
  EXPECT_EQ(s.lblColore[100].BorderStyle, 0);
  EXPECT_EQ(s.lblColore[101].BorderStyle, 1);
  EXPECT_EQ(s.lblColore[104].BorderStyle, 1);
}

TEST_F(Return, ARunGoesOn) {
  back();
  EXPECT_EQ(s.cmdGoTimer.BackColor, colours::running);
}

TEST_F(Return, AnotherGoMakesAnotherPointToReturnTo) {
  click(s.cmdGoTimer);
  click(s.lblMiro, 5);
  const Rows later = quadrantOf(s);
  click(s.cmdGoTimer);
  click(s.lblMiro, 9);
  back();
  EXPECT_TRUE(becomes(before, quadrantOf(s), later));
}

TEST(ReturnWithoutAGo, EndsTheRunSinceThereIsNoPointToReturnTo) {
  Rig rig;
  EXPECT_TRUE(endsTheRun([&] { press(rig.s.lblBack); }, {"lblValAttivo.Caption", "\"\""}));
}

}  // namespace
}  // namespace caleidoscopio::test
