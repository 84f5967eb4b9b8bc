#include "sequencer/columns.h"

#include <gtest/gtest.h>

#include "sequencer/sequencer_rig.h"

namespace caleidoscopio::test {
namespace {

/// "Dis.": a column in or out of the programme.
using Columns = SequencerRig;

TEST_F(Columns, AClickTakesAColumnOutAndDisablesItsCellsAndTheNextBringsItBack) {
  for (const Column column : columns3) {
    const int k = static_cast<int>(column);
    pressAndRelease(s.lblDisattiva, k);
    EXPECT_EQ(s.lblDisattiva[k].BackColor, colours::selected);
    for (const Column other : columns3)
      for (int row = 1; row <= 24; ++row)
        EXPECT_EQ(cellOf(s, other, row).Enabled, other != column) << row;
    EXPECT_TRUE(cellOf(s, column, 0).Enabled);
    pressAndRelease(s.lblDisattiva, k);
    EXPECT_EQ(s.lblDisattiva[k].BackColor, colours::unselected);
    for (int row = 1; row <= 24; ++row) EXPECT_TRUE(cellOf(s, column, row).Enabled) << row;
  }
}

// A toggle asks whether it is selected: what is neither on nor off goes on.
TEST_F(Columns, AThirdColourCountsAsNotSelected) {
  s.lblDisattiva[1].BackColor = colours::pressed;
  pressAndRelease(s.lblDisattiva, 1);
  EXPECT_EQ(s.lblDisattiva[1].BackColor, colours::selected);
  EXPECT_FALSE(s.lblTmrB[1].Enabled);
}

TEST_F(Columns, AColumnIsTakenOutDuringARunToo) {
  allOff();
  goWithSequencer();
  pressAndRelease(s.lblDisattiva, 0);
  EXPECT_EQ(s.lblDisattiva[0].BackColor, colours::selected);
}

}  // namespace
}  // namespace caleidoscopio::test
