#include "colours/random_active.h"

#include <gtest/gtest.h>

#include "support/digit_field.h"
#include "support/hands.h"
#include "support/rig.h"
#include "support/run_end.h"

namespace caleidoscopio::test {
namespace {

/// Command1 gives the marked slot a free swatch.
struct RandomActive : testing::Test, Rig {};

TEST_F(RandomActive, TheMarkedSlotTakesTheFirstFreeSwatchDrawn) {
  for (const int p : {6, 55, 8}) pick(p, 101);
  click(s.Command1);
  EXPECT_EQ(generator.draws, 3);
  EXPECT_EQ(s.lblTav[3].Caption, "8");
  for (const Label* label :
       {static_cast<Label*>(&s.lblValAttivo), &s.lblValore[3], &s.lblSfondo[3]}) {
    EXPECT_EQ(label->BackColor, Colour{0x000055});
    EXPECT_EQ(label->ForeColor, Colour{0xFFFFFF});
  }
  EXPECT_EQ(s.lblColore[6].BorderStyle, 0);
  EXPECT_EQ(s.lblColore[8].BorderStyle, 1);
  EXPECT_EQ(s.lblMemoCol.BackColor, Colour{0x0000FF});
  EXPECT_EQ(s.lblCambioCol[0].BackColor, colours::selected);
}

TEST_F(RandomActive, TheMarkDecidesAndNotTheActiveIndex) {
  s.lblValore[3].BorderStyle = 0;
  s.lblValore[5].BorderStyle = 1;
  pick(8, 101);
  click(s.Command1);
  EXPECT_EQ(s.lblValAttivo.Caption, "5");
  EXPECT_EQ(s.lblTav[5].Caption, "8");
  EXPECT_EQ(s.lblTav[3].Caption, "6");
  EXPECT_EQ(s.lblColore[78].BorderStyle, 0);
}

TEST_F(RandomActive, RepaintsNoCell) {
  paintQuartet(s, 1, 1, 3);
  pick(8, 101);
  click(s.Command1);
  EXPECT_EQ(s.lblMiro[1].BackColor, Colour{0x0000FF});
  EXPECT_EQ(s.lblMiro2[1].BackColor, Colour{0x0000FF});
}

TEST_F(RandomActive, WithNoFreeSwatchInAHundredDrawsNothingMoreHappens) {
  generator.otherwise = (6 - 0.5F) / 101;
  click(s.Command1);
  EXPECT_EQ(generator.draws, 100);
  EXPECT_EQ(s.lblCambioCol[0].BackColor, colours::selected);
  EXPECT_EQ(s.lblTav[3].Caption, "6");
  EXPECT_EQ(s.lblMemoCol.BackColor, colours::unselected);
}

TEST_F(RandomActive, TheHundredthDrawStillCounts) {
  for (int n = 1; n < 100; ++n) pick(6, 101);
  pick(8, 101);
  click(s.Command1);
  EXPECT_EQ(generator.draws, 100);
  EXPECT_EQ(s.lblTav[3].Caption, "8");
}

TEST_F(RandomActive, WithNoSlotMarkedTheRunEndsOnTheElementThatIsNoSlot) {
  s.lblValore[3].BorderStyle = 0;
  pick(8, 101);
  EXPECT_TRUE(endsTheRun([&] { click(s.Command1); }, {"lblTav(7).Caption"}));
}

}  // namespace
}  // namespace caleidoscopio::test
