#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/rig.h"

namespace caleidoscopio::test {
namespace {

struct ColourSteps : testing::Test {
  Rig rig;
  Store& s = rig.s;
  int base() { return std::stoi(s.lblTmrRndCol[0].Caption); }
  int press(int arrow) {
    s.lblTmrRndCol.raise(Event::MouseDown, arrow);
    s.lblTmrRndCol.raise(Event::MouseUp, arrow);
    return base();
  }
};

TEST_F(ColourSteps, NumberOfSlotsWalksFromTwoToSeven) {
  for (const char* n : {"2", "3", "4", "5", "6", "7", "2"}) {
    s.lblNSc.raise(Event::MouseDown);
    EXPECT_EQ(s.lblNSc.BackColor, colours::pressed);
    EXPECT_EQ(s.lblNSc.Caption, n);
    s.lblNSc.raise(Event::MouseUp);
    EXPECT_EQ(s.lblNSc.BackColor, colours::unselected);
  }
}

TEST_F(ColourSteps, TheBaseClimbsByItsBandsUpToFiftySeconds) {
  s.lblTmrRndCol[0].Caption = "50";
  int before = 50;
  int presses = 0;
  for (int now = press(2); now != before; now = press(2), ++presses) {
    const int step = before < 1000 ? 50 : before < 10000 ? 100 : before < 30000 ? 500 : 1000;
    EXPECT_EQ(now - before, step);
    before = now;
  }
  EXPECT_EQ(before, 50000);
  EXPECT_EQ(presses, 19 + 90 + 40 + 20);
}

TEST_F(ColourSteps, TheBaseComesDownTheWayItClimbed) {
  std::vector<int> up{50};
  s.lblTmrRndCol[0].Caption = "50";
  while (press(2) != up.back()) up.push_back(base());
  std::vector<int> down{50000};
  while (press(1) != down.front()) down.insert(down.begin(), base());
  EXPECT_EQ(up, down);
}

TEST_F(ColourSteps, ABaseBetweenTheBandsOrBeyondThemStandsStill) {
  for (const char* odd : {"975", "9950", "29750", "49500", "60000", "40"}) {
    s.lblTmrRndCol[0].Caption = odd;
    EXPECT_EQ(press(2), std::stoi(odd));
  }
  for (const char* odd : {"60", "1050", "10200", "30500", "50500"}) {
    s.lblTmrRndCol[0].Caption = odd;
    EXPECT_EQ(press(1), std::stoi(odd));
  }
}

TEST_F(ColourSteps, AnArrowHeldRepeatsAtItsTimer) {
  s.lblTmrRndCol.raise(Event::MouseDown, 2);
  EXPECT_EQ(s.lblTmrRndCol[2].BackColor, colours::pressed);
  EXPECT_EQ(s.lblTmrRndCol[5].Caption, "2");
  EXPECT_EQ(base(), 1100);
  s.time.advance(225);
  EXPECT_EQ(base(), 1400);
  s.lblTmrRndCol.raise(Event::MouseUp, 2);
  EXPECT_EQ(s.lblTmrRndCol[2].BackColor, colours::idle);
  s.time.advance(1000);
  EXPECT_EQ(base(), 1400);
  s.lblTmrRndCol.raise(Event::MouseDown, 1);
  EXPECT_EQ(s.lblTmrRndCol[5].Caption, "1");
  s.time.advance(75);
  EXPECT_EQ(base(), 1200);
  s.lblTmrRndCol.raise(Event::MouseUp, 1);
  EXPECT_EQ(s.lblTmrRndCol[1].BackColor, colours::idle);
}

TEST_F(ColourSteps, FurtherSecondsWalkToTwelveAndRepeatWhileHeld) {
  for (int n = 1; n <= 13; ++n) {
    s.lblTmrRndCol.raise(Event::MouseDown, 3);
    EXPECT_EQ(s.lblTmrRndCol[3].BackColor, colours::pressed);
    EXPECT_EQ(s.lblTmrRndCol[3].Caption, std::to_string(n % 13));
    s.lblTmrRndCol.raise(Event::MouseUp, 3);
    EXPECT_EQ(s.lblTmrRndCol[3].BackColor, colours::unselected);
  }
  s.lblTmrRndCol.raise(Event::MouseDown, 3);
  s.time.advance(240);
  EXPECT_EQ(s.lblTmrRndCol[3].Caption, "3");
  s.lblTmrRndCol.raise(Event::MouseUp, 3);
  s.time.advance(1000);
  EXPECT_EQ(s.lblTmrRndCol[3].Caption, "3");
}

}  // namespace
}  // namespace caleidoscopio::test
