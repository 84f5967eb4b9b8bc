#include <gtest/gtest.h>

#include <set>
#include <string>

#include "mosaic/painting.h"
#include "support/digit_field.h"
#include "support/hands.h"
#include "support/rig.h"
#include "support/run_end.h"

namespace caleidoscopio::test {
namespace {

struct Brush : testing::Test, Rig {
  /// The cells that hold slot 3, the active one.
  std::set<int> painted() const {
    std::set<int> all;
    for (int i = 0; i <= 441; ++i)
      if (digitOf(s, s.lblMiro[i]) == '3') all.insert(i);
    return all;
  }
  using Cells = std::set<int>;
};

TEST_F(Brush, AClickOnAnyMemberPaintsTheQuartetOfTheField) {
  for (const int i : {101, 102, 103, 104}) {
    Rig rig;
    click(rig.s.lblMiro, i);
    for (int m = 101; m <= 104; ++m) {
      EXPECT_EQ(rig.s.lblMiro[m].BackColor, Colour{0x0000FF});
      EXPECT_EQ(rig.s.lblMiro2[m].BackColor, Colour{0x0000FF});
      EXPECT_EQ(rig.s.lblMiro2[m].Caption, "3");
    }
    EXPECT_EQ(rig.s.lblIndex.Caption, std::to_string(i));
  }
  click(s.lblMiro, 102);
  EXPECT_EQ(painted(), (Cells{101, 102, 103, 104}));
}

TEST_F(Brush, ThePaintedQuartetIsSymmetricInBothAxes) {
  click(s.lblMiro, indexAt({3, 2}));
  const Rows now = fieldOf(s);
  Rows expected(21, std::string(21, '0'));
  expected[3][2] = expected[3][18] = expected[17][18] = expected[17][2] = '3';
  EXPECT_TRUE(becomes(Rows(21, std::string(21, '0')), now, expected));
}

TEST_F(Brush, OnAnArmItPaintsTheFourArms) {
  click(s.lblMiro, 327);
  EXPECT_EQ(painted(), (Cells{325, 326, 327, 328}));
}

TEST_F(Brush, OnTheBorderItPaintsRowsAndColumnsTogether) {
  const Cells both{369, 370, 371, 372, 405, 406, 407, 408};
  click(s.lblMiro, 371);
  EXPECT_EQ(painted(), both);
  Rig other;
  click(other.s.lblMiro, 406);
  for (const int i : both) EXPECT_EQ(other.s.lblMiro[i].BackColor, Colour{0x0000FF}) << i;
}

TEST_F(Brush, TheBordersEndsPaintWithinTheBorder) {
  click(s.lblMiro, 400);
  EXPECT_EQ(painted(), (Cells{397, 398, 399, 400, 433, 434, 435, 436}));
}

TEST_F(Brush, OnACornerItPaintsTheFourCorners) {
  click(s.lblMiro, 438);
  EXPECT_EQ(painted(), (Cells{437, 438, 439, 440}));
}

TEST_F(Brush, OnTheCentreItPaintsTheCentreAlone) {
  click(s.lblMiro, 441);
  EXPECT_EQ(painted(), Cells{441});
}

TEST_F(Brush, AClickOnAPaintedCellErasesItsQuartetToTheBackground) {
  s.lblSfondoAttivo.Caption = "5";
  s.lblValore[5].Caption = "2";
  click(s.lblMiro, 101);
  click(s.lblMiro, 103);
  for (int i = 101; i <= 104; ++i) {
    EXPECT_EQ(s.lblMiro[i].BackColor, Colour{0xFF0080});
    EXPECT_EQ(s.lblMiro[i].ForeColor, Colour{0xFFFFFF});
    EXPECT_EQ(s.lblMiro2[i].BackColor, Colour{0xFF0080});
    EXPECT_EQ(s.lblMiro2[i].Caption, "2");
  }
}

TEST_F(Brush, OneMemberOfAQuartetWhoseMembersDifferDecidesAlone) {
  paintCell(s, 102, 3);
  click(s.lblMiro, 101);  // not the active colour: paints all four
  EXPECT_EQ(painted(), (Cells{101, 102, 103, 104}));
  paintCell(s, 102, 4);
  click(s.lblMiro, 104);  // the active colour: erases all four, 102 too
  EXPECT_EQ(painted(), Cells{});
  EXPECT_EQ(digitOf(s, s.lblMiro[102]), '0');
}

TEST_F(Brush, OnTheBorderTheTestIsMadeOnceForBothQuartets) {
  for (int i = 405; i <= 408; ++i) paintCell(s, i, 3);
  click(s.lblMiro, 369);
  EXPECT_EQ(painted(), (Cells{369, 370, 371, 372, 405, 406, 407, 408}));
}

TEST_F(Brush, WithTheActiveSlotAsBackgroundAClickErasesToTheSameColour) {
  s.lblSfondoAttivo.Caption = "3";
  click(s.lblMiro, 101);
  click(s.lblMiro, 101);
  EXPECT_EQ(painted(), (Cells{101, 102, 103, 104}));
}

TEST_F(Brush, WritesTheDisplaysDigitOnlyWhileDigitsAreShown) {
  click(s.lblMiro, 101);
  EXPECT_EQ(s.lblMiro[101].Caption, "");
  press(s.lblComCol, 1);
  click(s.lblMiro, 201);
  EXPECT_EQ(s.lblMiro[201].Caption, "3");
  click(s.lblMiro, 201);
  EXPECT_EQ(s.lblMiro[201].Caption, "0");
}

TEST_F(Brush, PaintsWithTheActiveHoldersWhateverTheSlotSays) {
  s.lblValAttivo.BackColor = {0x123456};
  s.lblValAttivo.ForeColor = {0x654321};
  s.lblNumAttivo.Caption = "9";
  click(s.lblMiro, 101);
  EXPECT_EQ(s.lblMiro[101].BackColor, Colour{0x123456});
  EXPECT_EQ(s.lblMiro[101].ForeColor, Colour{0x654321});
  EXPECT_EQ(s.lblMiro2[101].Caption, "9");
}

TEST_F(Brush, TheDiagonalsOfTheFieldAreNotMirrored) {
  click(s.lblMiro, indexAt({3, 2}));
  EXPECT_EQ(digitOf(s, s.lblMiro[indexAt({2, 3})]), '0');
}

TEST_F(Brush, ABackgroundOutsideTheSlotsEndsTheRunAndNamesIt) {
  click(s.lblMiro, 101);
  s.lblSfondoAttivo.Caption = "8";
  EXPECT_TRUE(endsTheRun([&] { click(s.lblMiro, 101); }, {"(8)", "0 to 7"}));
}

}  // namespace
}  // namespace caleidoscopio::test
