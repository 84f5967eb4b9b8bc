// The D section of the panel: pattern buttons, options, and the held steps.
#include <gtest/gtest.h>

#include "support/rig.h"

namespace caleidoscopio::test {
namespace {

struct BreakPanel : testing::Test {
  Rig rig;
  Store& s = rig.s;
  Labels<0, 26>& mode = s.lblBreakMode;

  void down(int i) { mode.raise(Event::MouseDown, i); }
  void up(int i) { mode.raise(Event::MouseUp, i); }
  std::string countAndCheck() {
    int selected = 0;
    for (int i = 1; i <= 12; ++i) selected += mode[i].BackColor == colours::selected;
    EXPECT_EQ(mode[0].Caption, std::to_string(selected));
    return mode[0].Caption;
  }
};

TEST_F(BreakPanel, PatternButtonsToggleAndAreCounted) {
  EXPECT_EQ(countAndCheck(), "11");
  click(mode, 3);
  EXPECT_EQ(mode[3].BackColor, colours::unselected);
  EXPECT_EQ(countAndCheck(), "10");
  click(mode, 12);
  EXPECT_EQ(mode[12].BackColor, colours::selected);
  EXPECT_EQ(countAndCheck(), "11");
}

TEST_F(BreakPanel, TheLastSelectedPatternStays) {
  for (int i = 1; i <= 11; ++i) click(mode, i);
  EXPECT_EQ(countAndCheck(), "1");
  EXPECT_EQ(mode[11].BackColor, colours::selected);
  click(mode, 11);
  EXPECT_EQ(countAndCheck(), "1");
  EXPECT_EQ(mode[11].BackColor, colours::selected);
}

TEST_F(BreakPanel, TwelveOneByOneDoNotLightAllAndElevenPutItOut) {
  click(mode, 12);
  EXPECT_EQ(countAndCheck(), "12");
  EXPECT_EQ(mode[13].BackColor, colours::unselected);
  mode[13].BackColor = colours::selected;
  click(mode, 5);
  EXPECT_EQ(mode[13].BackColor, colours::unselected);
}

TEST_F(BreakPanel, APatternButtonOfAThirdColourDoesNothing) {
  mode[13].BackColor = colours::selected;
  mode[4].BackColor = {0x0000FF};
  click(mode, 4);
  EXPECT_EQ(mode[4].BackColor, Colour{0x0000FF});
  EXPECT_EQ(mode[0].Caption, "11");
  EXPECT_EQ(mode[13].BackColor, colours::selected);
}

TEST_F(BreakPanel, AllSelectsAllAndThenImmediatoAlone) {
  click(mode, 13);
  EXPECT_EQ(countAndCheck(), "12");
  EXPECT_EQ(mode[13].BackColor, colours::selected);
  click(mode, 13);
  EXPECT_EQ(countAndCheck(), "1");
  EXPECT_EQ(mode[12].BackColor, colours::selected);
  EXPECT_EQ(mode[13].BackColor, colours::unselected);
  mode[13].BackColor = colours::pressed;
  click(mode, 13);
  EXPECT_EQ(countAndCheck(), "1");
}

TEST_F(BreakPanel, DirectionAndKindCycle) {
  for (const char* next : {"Out", "In", "O/I", "Alt", "Out"}) {
    click(mode, 14);
    EXPECT_EQ(mode[14].Caption, next);
  }
  for (const char* next : {"U", "C", "N", "R", "U"}) {
    click(mode, 18);
    EXPECT_EQ(mode[18].Caption, next);
  }
  for (int i : {14, 18}) {
    mode[i].Caption = "?";
    click(mode, i);
    EXPECT_EQ(mode[i].Caption, "?");
  }
}

TEST_F(BreakPanel, NewDesignAndRepeatToggleAndTheLampFollowsRepeat) {
  click(mode, 19);
  EXPECT_EQ(mode[19].BackColor, colours::unselected);
  click(mode, 19);
  EXPECT_EQ(mode[19].BackColor, colours::selected);
  EXPECT_EQ(s.lblSpiaBreak.BackColor, colours::unselected);
  click(mode, 21);
  EXPECT_EQ(mode[21].BackColor, colours::selected);
  EXPECT_EQ(s.lblSpiaBreak.BackColor, colours::selected);
  click(mode, 21);
  EXPECT_EQ(mode[21].BackColor, colours::unselected);
  EXPECT_EQ(s.lblSpiaBreak.BackColor, colours::unselected);
}

TEST_F(BreakPanel, ElementsWithoutAHandlerKeepTheirState) {
  for (int i : {0, 15, 16, 17, 20, 22, 23, 24, 25, 26}) {
    const std::string caption = mode[i].Caption;
    const Colour back = mode[i].BackColor;
    click(mode, i);
    EXPECT_EQ(mode[i].Caption, caption) << i;
    EXPECT_EQ(mode[i].BackColor, back) << i;
  }
}

TEST_F(BreakPanel, OnlyFiveElementsFlash) {
  for (int i = 0; i <= 26; ++i) {
    const Colour before = mode[i].BackColor;
    const bool choice = i == 14 || i == 18 || i == 24;
    const bool step = i == 22 || i == 23;
    down(i);
    EXPECT_EQ(mode[i].BackColor, choice || step ? colours::pressed : before) << i;
    up(i);
    EXPECT_EQ(mode[i].BackColor, choice ? colours::unselected : step ? colours::idle : before) << i;
  }
}

TEST_F(BreakPanel, TheOrderChangesAtThePress) {
  down(24);
  EXPECT_EQ(mode[24].Caption, "Seq");
  up(24);
  EXPECT_EQ(mode[24].Caption, "Seq");
  down(24);
  EXPECT_EQ(mode[24].Caption, "Rnd");
  mode[24].Caption = "?";  // counts as "Seq"
  down(24);
  EXPECT_EQ(mode[24].Caption, "Rnd");
}

TEST_F(BreakPanel, TheWaitStepsByQuartersOfASecondWithoutRepeat) {
  for (int ms = 250; ms <= 5000; ms += 250) {
    down(23);
    s.time.advance(1000);
    EXPECT_EQ(mode[16].Caption, std::to_string(ms));
  }
  down(23);
  EXPECT_EQ(mode[16].Caption, "5000");
  mode[16].Caption = "4000";
  for (int ms = 3750; ms >= 0; ms -= 250) {
    down(22);
    EXPECT_EQ(mode[16].Caption, std::to_string(ms));
  }
  down(22);
  EXPECT_EQ(mode[16].Caption, "0");
}

TEST_F(BreakPanel, FromAboveTheWaitEndsInACycleAndNeverComesDownToFourSeconds) {
  mode[16].Caption = "5000";
  for (const char* next : {"4750", "4500", "4250", "4500", "4250", "4500"}) {
    down(22);
    EXPECT_EQ(mode[16].Caption, next);
  }
}

TEST_F(BreakPanel, AWaitOutsideTheLadderIsLeftAlone) {
  for (const char* odd : {"100", "5250", "-250", "", "0250", "x"}) {
    mode[16].Caption = odd;
    down(22);
    down(23);
    EXPECT_EQ(mode[16].Caption, odd);
  }
}

// ---- tick length ------------------------------------------------------------------------------

TEST_F(BreakPanel, TheTickLengthStepsByTenAtThePressAndWhileHeld) {
  s.lblTmrBreak.raise(Event::MouseDown, 2);
  EXPECT_EQ(s.lblTmrBreak[2].BackColor, colours::pressed);
  EXPECT_EQ(s.lblTmrBreak[0].Caption, "110");
  s.time.advance(150);
  EXPECT_EQ(s.lblTmrBreak[0].Caption, "130");
  s.lblTmrBreak.raise(Event::MouseUp, 2);
  EXPECT_EQ(s.lblTmrBreak[2].BackColor, colours::idle);
  s.time.advance(1000);
  EXPECT_EQ(s.lblTmrBreak[0].Caption, "130");
  s.lblTmrBreak.raise(Event::MouseDown, 1);
  s.time.advance(75);
  EXPECT_EQ(s.lblTmrBreak[0].Caption, "110");
  EXPECT_EQ(s.TmrBreak.Interval(), 3000) << "felt at the next Break";
}

TEST_F(BreakPanel, TheTickLengthStopsAtItsLimitsAndAPressThereDoesNotRepeat) {
  for (int i : {1, 2}) {
    const char* const limit = i == 1 ? "10" : "1000";
    s.lblTmrBreak[0].Caption = limit;
    s.lblTmrBreak.raise(Event::MouseDown, i);
    EXPECT_EQ(s.lblTmrBreak[0].Caption, limit);
    EXPECT_EQ(s.lblTmrBreak[i].BackColor, colours::pressed);
    EXPECT_FALSE(s.TmrVeloBreak.Enabled());
    s.lblTmrBreak.raise(Event::MouseUp, i);
  }
  s.lblTmrBreak[0].Caption = "30";
  s.lblTmrBreak.raise(Event::MouseDown, 1);
  s.time.advance(1000);
  EXPECT_EQ(s.lblTmrBreak[0].Caption, "10");
}

TEST_F(BreakPanel, TheTickLengthItselfTakesNoPress) {
  s.lblTmrBreak.raise(Event::MouseDown, 0);
  EXPECT_EQ(s.lblTmrBreak[0].BackColor, colours::unselected);
  EXPECT_FALSE(s.TmrVeloBreak.Enabled());
}

// ---- pause between Breaks ---------------------------------------------------------------------

TEST_F(BreakPanel, VariationsGoRoundFromTwelveToNone) {
  for (int n = 3; n <= 12; ++n) {
    s.lblBrk.raise(Event::MouseDown, 3);
    EXPECT_EQ(s.lblBrk[3].Caption, std::to_string(n));
    EXPECT_EQ(s.lblBrk[3].BackColor, colours::pressed);
  }
  s.lblBrk.raise(Event::MouseDown, 3);
  EXPECT_EQ(s.lblBrk[3].Caption, "0");
  s.lblBrk.raise(Event::MouseUp, 3);
  EXPECT_EQ(s.lblBrk[3].BackColor, colours::unselected);
  EXPECT_FALSE(s.TmrScorriBrk.Enabled());
}

/// Walks the ladder from end to end and notes where the step changes: {from, step}.
std::vector<std::pair<int, int>> bands(Store& s, int button, int from, int to) {
  std::vector<std::pair<int, int>> found;
  s.lblBrk[0].Caption = std::to_string(from);
  for (int at = from; at != to;) {
    s.lblBrk.raise(Event::MouseDown, button);
    const int next = std::stoi(s.lblBrk[0].Caption);
    if (next == at) return found;
    if (found.empty() || found.back().second != next - at) found.emplace_back(at, next - at);
    at = next;
  }
  return found;
}

TEST_F(BreakPanel, TheBaseIntervalStepsByItsLadder) {
  using Bands = std::vector<std::pair<int, int>>;
  EXPECT_EQ(bands(s, 2, 100, 50000), (Bands{{100, 50}, {1000, 100}, {10000, 500}, {30000, 1000}}));
  EXPECT_EQ(s.lblBrk[0].Caption, "50000");
  EXPECT_EQ(bands(s, 1, 50000, 100),
            (Bands{{50000, -1000}, {30000, -500}, {10000, -100}, {1000, -50}}));
  EXPECT_EQ(s.lblBrk[0].Caption, "100");
}

TEST_F(BreakPanel, TheLadderStopsAtItsEndsAndAValueOutsideEveryBandStands) {
  const struct {
    int button;
    std::vector<const char*> stand;
  } cases[] = {
      {1, {"100", "50", "120", "149", "1050", "10200", "30500", "51000", "-200", "0"}},
      {2, {"50000", "99", "970", "9950", "29800", "49500", "51000", "100000"}},
  };
  for (const auto& [button, stand] : cases)
    for (const char* value : stand) {
      s.lblBrk[0].Caption = value;
      s.lblBrk.raise(Event::MouseDown, button);
      EXPECT_EQ(s.lblBrk[0].Caption, value) << button;
    }
}

TEST_F(BreakPanel, TheBandsAreClosedAtBothEnds) {
  const struct {
    int button;
    const char *from, *to;
  } steps[] = {{1, "150", "100"},     {1, "1000", "950"},    {1, "1100", "1000"},
               {1, "10000", "9900"},  {1, "10500", "10000"}, {1, "30000", "29500"},
               {1, "31000", "30000"}, {2, "950", "1000"},    {2, "1000", "1100"},
               {2, "9900", "10000"},  {2, "10000", "10500"}, {2, "29500", "30000"},
               {2, "30000", "31000"}, {2, "49000", "50000"}, {1, "163", "113"}};
  for (const auto& [button, from, to] : steps) {
    s.lblBrk[0].Caption = from;
    s.lblBrk.raise(Event::MouseDown, button);
    EXPECT_EQ(s.lblBrk[0].Caption, to) << from;
  }
}

TEST_F(BreakPanel, AHeldStepReTimesTheTimerAtThePressAlone) {
  s.lblBrk.raise(Event::MouseDown, 2);
  EXPECT_EQ(s.lblBrk[2].BackColor, colours::pressed);
  EXPECT_EQ(s.lblBrk[4].Caption, "2");
  EXPECT_EQ(s.lblBrk[0].Caption, "3100");
  EXPECT_EQ(s.TmrBrk.Interval(), 3100);
  s.time.advance(225);
  EXPECT_EQ(s.lblBrk[0].Caption, "3400");
  EXPECT_EQ(s.TmrBrk.Interval(), 3100);
  s.lblBrk.raise(Event::MouseUp, 2);
  EXPECT_EQ(s.lblBrk[2].BackColor, colours::idle);
  s.time.advance(1000);
  EXPECT_EQ(s.lblBrk[0].Caption, "3400");
  s.lblBrk.raise(Event::MouseDown, 1);
  EXPECT_EQ(s.lblBrk[4].Caption, "1");
  EXPECT_EQ(s.TmrBrk.Interval(), 3300);
  s.time.advance(75);
  EXPECT_EQ(s.lblBrk[0].Caption, "3200");
}

TEST_F(BreakPanel, APressThatMakesNoStepReTimesTheTimerToo) {
  s.lblBrk[0].Caption = "50000";
  s.TmrBrk.setInterval(3000);
  s.lblBrk.raise(Event::MouseDown, 2);
  EXPECT_EQ(s.lblBrk[0].Caption, "50000");
  EXPECT_EQ(s.TmrBrk.Interval(), 50000) << "read beyond 16 bits";
  EXPECT_TRUE(s.TmrScorriBrk.Enabled());
}

}  // namespace
}  // namespace caleidoscopio::test
