#include <gtest/gtest.h>

#include "mosaic/painting.h"
#include "mosaic/tools.h"
#include "support/digit_field.h"
#include "support/hands.h"
#include "support/rig.h"

namespace caleidoscopio::test {
namespace {

/// The tool is on; the active slot is 3.
struct ToolOn : Rig {
  ToolOn() { press(s.lblComCol, 4); }
  void corner(int row, int column) { click(s.lblMiro, leaderAt(row, column)); }
};
struct Rectangle : testing::Test, ToolOn {
  const Rows empty = Rows(9, std::string(9, '0'));
};

TEST_F(Rectangle, TheToolAwaitsTheFirstCornerAndMarksTheQuadrant) {
  EXPECT_EQ(s.lblComCol[4].BackColor, colours::selected);
  EXPECT_EQ(s.lblComCol[4].Caption, "1");
  EXPECT_TRUE(s.ShpRettangolo.Visible);
  press(s.lblComCol, 4);
  EXPECT_EQ(s.lblComCol[4].BackColor, colours::unselected);
  EXPECT_EQ(s.lblComCol[4].Caption, "R");
  EXPECT_FALSE(s.ShpRettangolo.Visible);
}

TEST_F(Rectangle, TheFirstCornerPaintsItsQuartetAndIsRemembered) {
  corner(2, 3);
  Rows expected = empty;
  expected[1][2] = '3';
  EXPECT_TRUE(becomes(empty, quadrantOf(s), expected));
  EXPECT_EQ(s.lblComCol[5].Caption, std::to_string(leaderAt(2, 3)));
  EXPECT_EQ(s.lblComCol[4].Caption, "2");
}

TEST_F(Rectangle, TheSecondCornerFillsWhatLiesBetweenInFourFoldMirror) {
  corner(2, 3);
  corner(4, 6);
  const Rows expected{"000000000", "003333000", "003333000", "003333000", "000000000",
                      "000000000", "000000000", "000000000", "000000000"};
  EXPECT_TRUE(becomes(empty, quadrantOf(s), expected));
  EXPECT_EQ(s.lblComCol[4].Caption, "1");
  EXPECT_EQ(s.lblMiro2[leaderAt(3, 4) + 2].BackColor, Colour{0x0000FF});
  EXPECT_EQ(s.lblMiro2[leaderAt(3, 4) + 2].Caption, "3");
}

TEST_F(Rectangle, TheCornersMayLieAnyWayRound) {
  const Rows expected{"000000000", "003333000", "003333000", "003333000", "000000000",
                      "000000000", "000000000", "000000000", "000000000"};
  const int corners[][4] = {{4, 6, 2, 3}, {2, 6, 4, 3}, {4, 3, 2, 6}};
  for (const auto& c : corners) {
    ToolOn other;
    other.corner(c[0], c[1]);
    other.corner(c[2], c[3]);
    EXPECT_TRUE(becomes(empty, quadrantOf(other.s), expected));
  }
}

TEST_F(Rectangle, TheWholeQuadrantCanBeFilled) {
  corner(1, 1);
  corner(9, 9);
  EXPECT_TRUE(becomes(empty, quadrantOf(s), Rows(9, std::string(9, '3'))));
  for (int i = 325; i <= 441; ++i) EXPECT_EQ(digitOf(s, s.lblMiro[i]), '0') << i;
}

TEST_F(Rectangle, AClickOutsideTheTopLeftQuadrantDoesNothingAndTheToolKeepsWaiting) {
  corner(2, 3);
  const Rows after = quadrantOf(s);
  for (const int i :
       {leaderAt(4, 6) + 1, leaderAt(4, 6) + 2, leaderAt(4, 6) + 3, 325, 365, 437, 441})
    click(s.lblMiro, i);
  EXPECT_TRUE(becomes(empty, quadrantOf(s), after));
  EXPECT_EQ(s.lblComCol[4].Caption, "2");
  EXPECT_EQ(s.lblIndex.Caption, "441");
  corner(2, 4);
  EXPECT_EQ(s.lblComCol[4].Caption, "1");
}

TEST_F(Rectangle, AClickOutsideTheQuadrantAsFirstCornerDoesNothing) {
  click(s.lblMiro, 325);
  EXPECT_EQ(s.lblComCol[4].Caption, "1");
  EXPECT_EQ(digitOf(s, s.lblMiro[325]), '0');
}

TEST_F(Rectangle, PaintsFromTheSlotAndNotFromTheActiveHolders) {
  s.lblValAttivo.BackColor = {0x123456};
  s.lblNumAttivo.Caption = "9";
  corner(1, 1);
  EXPECT_EQ(s.lblMiro[1].BackColor, Colour{0x0000FF});
  EXPECT_EQ(s.lblMiro2[1].Caption, "3");
}

TEST_F(Rectangle, PaintsAndNeverErases) {
  corner(1, 1);
  corner(1, 1);
  EXPECT_EQ(quadrantOf(s)[0][0], '3');
}

TEST_F(Rectangle, AnyColourButWhiteMeansThatTheToolIsOn) {
  s.lblComCol[4].BackColor = colours::pressed;
  corner(5, 5);
  EXPECT_EQ(s.lblComCol[4].Caption, "2");
}

TEST_F(Rectangle, WritesTheDisplaysDigitsOnlyWhileTheyAreShown) {
  corner(1, 1);
  EXPECT_EQ(s.lblMiro[1].Caption, "");
  press(s.lblComCol, 1);
  corner(2, 2);
  EXPECT_EQ(s.lblMiro[leaderAt(1, 2)].Caption, "3");
}

}  // namespace
}  // namespace caleidoscopio::test
