#include "mosaic/tools.h"

#include <gtest/gtest.h>

#include "support/digit_field.h"
#include "support/hands.h"
#include "support/rig.h"
#include "support/run_end.h"

namespace caleidoscopio::test {
namespace {

struct Tools : testing::Test, Rig {};

TEST_F(Tools, LinesDrawAThinLineAroundEveryCell) {
  press(s.lblComCol, 0);
  EXPECT_EQ(s.lblComCol[0].BackColor, colours::selected);
  for (int i = 1; i <= 441; ++i) EXPECT_EQ(s.lblMiro[i].BorderStyle, 1) << i;
  EXPECT_EQ(s.lblMiro[0].BorderStyle, 0);
  press(s.lblComCol, 0);
  EXPECT_EQ(s.lblComCol[0].BackColor, colours::unselected);
  for (int i = 1; i <= 441; ++i) EXPECT_EQ(s.lblMiro[i].BorderStyle, 0) << i;
}

TEST_F(Tools, DigitsCopyTheDesignsCaptionsAndAgainEmptyThem) {
  s.lblMiro2[7].Caption = "5";
  const Colour back = s.lblMiro[7].BackColor;
  press(s.lblComCol, 1);
  EXPECT_EQ(s.lblVoceOpzioni[2].Caption, "Y");
  EXPECT_EQ(s.lblComCol[1].BackColor, colours::selected);
  EXPECT_EQ(s.lblMiro[7].Caption, "5");
  EXPECT_EQ(s.lblMiro[441].Caption, "0");
  EXPECT_EQ(s.lblMiro[7].BackColor, back);
  press(s.lblComCol, 1);
  EXPECT_EQ(s.lblVoceOpzioni[2].Caption, "N");
  EXPECT_EQ(s.lblComCol[1].BackColor, colours::unselected);
  for (int i = 1; i <= 441; ++i) EXPECT_EQ(s.lblMiro[i].Caption, "") << i;
  EXPECT_EQ(s.lblMiro2[7].Caption, "5");
}

TEST_F(Tools, TheContoursWidthGoesFromNoughtToSevenAndNoughtHidesIt) {
  s.lblComCol[2].Caption = "5";
  for (const auto& [caption, width] : {std::pair{"6", 6}, {"7", 7}}) {
    pressAndRelease(s.lblComCol, 2);
    EXPECT_EQ(s.lblComCol[2].Caption, caption);
    EXPECT_TRUE(s.ShpContour.Visible);
    EXPECT_EQ(s.ShpContour.BorderWidth, width);
  }
  pressAndRelease(s.lblComCol, 2);
  EXPECT_EQ(s.lblComCol[2].Caption, "0");
  EXPECT_FALSE(s.ShpContour.Visible);
  pressAndRelease(s.lblComCol, 2);
  EXPECT_EQ(s.lblComCol[2].Caption, "1");
  EXPECT_TRUE(s.ShpContour.Visible);
  EXPECT_EQ(s.ShpContour.BorderWidth, 1);
}

TEST_F(Tools, ThePaletteModeCyclesThroughItsFourWords) {
  for (const char* mode : {"Sfondo", "Titoli", "Contorno", "Disegno"}) {
    pressAndRelease(s.lblComCol, 3);
    EXPECT_EQ(s.lblComCol[3].Caption, mode);
  }
}

TEST_F(Tools, MomentaryToolsFlashWhileHeld) {
  generator.otherwise = 0.5F;  // element 6 makes a design
  for (const int k : {2, 3, 6}) {
    press(s.lblComCol, k);
    EXPECT_EQ(s.lblComCol[k].BackColor, colours::pressed) << k;
    release(s.lblComCol, k);
    EXPECT_EQ(s.lblComCol[k].BackColor, colours::unselected) << k;
  }
}

TEST_F(Tools, TheTwoOptionsOfANewDesignToggle) {
  for (const int k : {7, 8}) {
    s.lblComCol[k].BackColor = colours::unselected;
    pressAndRelease(s.lblComCol, k);
    EXPECT_EQ(s.lblComCol[k].BackColor, colours::selected);
    pressAndRelease(s.lblComCol, k);
    EXPECT_EQ(s.lblComCol[k].BackColor, colours::unselected);
  }
}

TEST_F(Tools, TheReleaseLeavesTogglesAlone) {
  for (const int k : {0, 1, 4}) {
    pressAndRelease(s.lblComCol, k);
    EXPECT_EQ(s.lblComCol[k].BackColor, colours::selected) << k;
  }
}

TEST_F(Tools, AWidthThatIsNoNumberEndsTheRunAndNamesIt) {
  s.lblComCol[2].Caption = "wide";
  EXPECT_TRUE(endsTheRun([&] { press(s.lblComCol, 2); }, {"lblComCol(2).Caption", "\"wide\""}));
}

}  // namespace
}  // namespace caleidoscopio::test
