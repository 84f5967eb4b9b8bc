#include <gtest/gtest.h>

#include "support/seeded.h"

namespace caleidoscopio::test {
namespace {

/// Timer F with one operation for a long run, under settings that change on the way.
class LongRunOfColours : public testing::TestWithParam<int> {};

TEST_P(LongRunOfColours, KeepsSlotsSwatchesAndQuartetsTogether) {
  const int operation = GetParam();
  SeededRig rig(static_cast<unsigned>(operation) + 1);
  Store& s = rig.s;
  scatter(s, rig.generator);
  s.cmdGoTimer.BackColor = colours::running;
  for (int k : {0, 1, 2, 3, 4, 9, 10}) s.lblCambioCol[k].BackColor = colours::unselected;
  s.lblCambioCol[operation].BackColor = colours::selected;
  for (int n = 0; n < longRun; ++n) {
    if (n % 100 == 0) {
      s.lblNSc.Caption = std::to_string(rig.generator.among(6) + 1);
      s.lblCambioCol[6].Caption = rig.generator.among(2) == 1 ? "Y" : "N";
      s.lblCambioCol[11].Caption = std::to_string(rig.generator.among(6));
      click(s.lblValore, rig.generator.among(7) - 1);
    }
    s.TmrGoD.raise(Event::Tick);
    if (n % 50 != 0) continue;
    ASSERT_EQ(unnamedSlot(s), -1) << "after tick " << n;
    ASSERT_EQ(unequalQuartet(s), 0) << "after tick " << n;
    for (int i = 1; i <= cellCount; ++i) {
      ASSERT_EQ(s.lblMiro[i].BackColor, s.lblMiro2[i].BackColor);
      int slot = 0;
      while (slot <= 6 && s.lblMiro[i].BackColor != s.lblValore[slot].BackColor) ++slot;
      ASSERT_LE(slot, 6) << "cell " << i << " has a colour of no slot after tick " << n;
    }
    int used = 0;
    for (int i = 1; i <= 104; ++i) used += s.lblColore[i].BorderStyle;
    ASSERT_EQ(used, 7);
  }
}

INSTANTIATE_TEST_SUITE_P(EveryOperation, LongRunOfColours, testing::Values(0, 1, 2, 3, 4, 9, 10));

}  // namespace
}  // namespace caleidoscopio::test
