#include <gtest/gtest.h>

#include "desktop/window_rig.h"

namespace caleidoscopio::test {

namespace {

/// Section D as a person uses it.
struct BreakWindow : testing::Test {
  WindowRig rig;
  Store& s = rig.s();
  BreakWindow() { rig.click("cmdGoTimer"); }  // the start ended in a run

  void choosePattern(int wanted) {
    for (int i = 1; i <= 12; ++i)
      if ((s.lblBreakMode[i].BackColor == colours::selected) != (i == wanted))
        rig.click(s.lblBreakMode.nameOf(i).c_str());
  }
};

TEST_F(BreakWindow, ThePointerOverAPatternSaysWhatItDoes) {
  QTest::mouseMove(&rig.widget("lblBreakMode(3)"), QPoint(3, 3));
  QTest::mouseMove(&rig.widget("lblBreakMode(3)"), QPoint(5, 5));
  EXPECT_EQ(s.lblBreakMode[20].Caption, "Diagonale A (Out or In)");
  QTest::mouseMove(&rig.widget("lblBreakMode(12)"), QPoint(5, 5));
  EXPECT_EQ(s.lblBreakMode[20].Caption, "Immediato");
}

TEST_F(BreakWindow, TheButtonSweepsTheFieldAndIsHeldBackUntilTheBreakIsOver) {
  choosePattern(7);
  s.lblTmrBreak[0].Caption = "10";
  rig.click("Command7");
  EXPECT_TRUE(s.TmrBreak.Enabled());
  EXPECT_FALSE(rig.widget("Command7").isEnabled());
  const long long before = rig.field().paintedCells();
  EXPECT_TRUE(QTest::qWaitFor([&] { return !s.TmrBreak.Enabled(); }, 5000));
  EXPECT_TRUE(QTest::qWaitFor([&] { return rig.widget("Command7").isEnabled(); }, 5000));
  EXPECT_GT(rig.field().paintedCells(), before);
}

TEST_F(BreakWindow, AHeldArrowStepsTheSpeedOfTheSweepUntilItIsLetGo) {
  const std::string before = s.lblTmrBreak[0].Caption;
  rig.press("lblTmrBreak(2)");
  EXPECT_TRUE(QTest::qWaitFor(
      [&] { return std::stoi(s.lblTmrBreak[0].Caption) >= std::stoi(before) + 30; }, 5000));
  rig.release("lblTmrBreak(2)");
  const std::string let = s.lblTmrBreak[0].Caption;
  QTest::qWait(400);
  EXPECT_EQ(s.lblTmrBreak[0].Caption, let);
}

}  // namespace

}  // namespace caleidoscopio::test
