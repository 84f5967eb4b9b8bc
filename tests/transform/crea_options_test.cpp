#include <gtest/gtest.h>

#include <string>

#include "support/rig.h"

namespace caleidoscopio::test {
namespace {

struct CreaOptions : testing::Test {
  Rig rig;
  Store& s = rig.s;
  void down(int k) { s.lblCrea.raise(Event::MouseDown, k); }
  void up(int k) { s.lblCrea.raise(Event::MouseUp, k); }
};

TEST_F(CreaOptions, CountsStepRoundAtTheirEnds) {
  const struct {
    int element, last;
  } counts[] = {{1, 30}, {2, 60}, {3, 10}, {4, 10}, {5, 10}, {6, 10}, {11, 30}};
  for (const auto& count : counts) {
    s.lblCrea[count.element].Caption = "0";
    for (int n = 1; n <= count.last + 1; ++n) {
      down(count.element);
      EXPECT_EQ(s.lblCrea[0].Caption, std::to_string(count.element));
      EXPECT_EQ(s.lblCrea[count.element].BackColor, colours::pressed);
      EXPECT_EQ(s.lblCrea[count.element].Caption, std::to_string(n % (count.last + 1)));
      up(count.element);
      EXPECT_EQ(s.lblCrea[count.element].BackColor, colours::unselected);
    }
  }
}

TEST_F(CreaOptions, ACountHeldRepeatsTenTimesASecondAndGoesRound) {
  for (int k : {1, 2, 3, 4, 5, 6, 11}) {
    const bool wide = k == 1 || k == 11;
    const int last = wide ? 30 : k == 2 ? 60 : 10;
    s.lblCrea[k].Caption = std::to_string(last - 2);
    down(k);
    EXPECT_EQ(s.lblCrea[k].Caption, std::to_string(last - 1));
    s.time.advance(100);
    EXPECT_EQ(s.lblCrea[k].Caption, std::to_string(last));
    s.time.advance(100);
    EXPECT_EQ(s.lblCrea[k].Caption, "0");
    up(k);
    s.time.advance(1000);
    EXPECT_EQ(s.lblCrea[k].Caption, "0");
  }
}

TEST_F(CreaOptions, TheRepeatMarksTheHolderForTheBorderCountsOnly) {
  for (int k : {1, 2, 3, 4, 5, 6, 11}) {
    s.lblCrea[0].BackColor = colours::unselected;
    down(k);
    s.lblCrea[k].BackColor = colours::unselected;
    s.time.advance(100);
    EXPECT_EQ(s.lblCrea[k].BackColor, colours::unselected) << "a repeat writes captions alone";
    EXPECT_EQ(s.lblCrea[0].BackColor, k == 5 || k == 6 ? colours::pressed : colours::unselected);
    up(k);
  }
}

TEST_F(CreaOptions, TheNumberOfColoursStandsWhiteAtLoadAndKeepsItsMarkOnR) {
  EXPECT_EQ(s.lblCrea[7].Caption, "R");
  EXPECT_EQ(s.lblCrea[7].BackColor, colours::unselected);
  for (const char* n : {"2", "3", "4", "5", "6", "7", "R", "2"}) {
    down(7);
    const bool r = std::string(n) == "R";
    EXPECT_EQ(s.lblCrea[7].Caption, n);
    EXPECT_EQ(s.lblCrea[7].BackColor, r ? colours::selected : colours::pressed);
    s.time.advance(300);
    EXPECT_EQ(s.lblCrea[7].Caption, n) << "it does not repeat";
    up(7);
    EXPECT_EQ(s.lblCrea[7].BackColor, r ? colours::selected : colours::unselected);
  }
}

TEST_F(CreaOptions, TogglesKeepTheirCaptionAndDoNotRepeat) {
  for (int k : {8, 9, 10}) {
    const std::string caption = s.lblCrea[k].Caption;
    const bool on = s.lblCrea[k].BackColor == colours::selected;
    EXPECT_EQ(on, k != 9);
    for (const bool now : {!on, on}) {
      down(k);
      s.time.advance(300);
      up(k);
      EXPECT_EQ(s.lblCrea[k].BackColor, now ? colours::selected : colours::unselected);
      EXPECT_EQ(s.lblCrea[k].Caption, caption);
      EXPECT_FALSE(s.TmrCrea.Enabled());
    }
  }
}

}  // namespace
}  // namespace caleidoscopio::test
