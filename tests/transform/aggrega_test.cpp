#include "transform/aggrega.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <vector>

#include "support/seeded.h"

namespace caleidoscopio::test {
namespace {

// The table of the scanner as it was drawn up, leader by leader, against the rule in the code.
TEST(AggregaScanner, MovesFromEveryLeaderAsItsTableSays) {
  const std::set<int> columnSeven{29, 65, 101, 137, 173, 209, 245};
  const std::set<int> columnEight{33, 69, 105, 141, 177, 213, 249};
  const std::set<int> rowSeven{253, 257, 261, 265, 269, 273, 277};
  const std::set<int> rowEight{289, 293, 297, 301, 305, 309, 313};
  const std::map<int, std::vector<int>> cornerRows{
      {281, {253, 321, 29}}, {285, {257, 289, 33}}, {317, {289, 33, 65}}, {321, {293, 1, 69}}};
  for (int a = 1; a <= 321; a += 4) {
    std::vector<int> to{a + 8, a + 40, a + 72};
    if (columnSeven.contains(a)) to = {a - 28, a + 40, a + 72};
    if (columnEight.contains(a)) to = {a - 28, a + 4, a + 72};
    if (rowSeven.contains(a)) to = {a + 8, a + 40, a - 252};
    if (rowEight.contains(a)) to = {a + 8, a - 284, a - 252};
    if (cornerRows.contains(a)) to = cornerRows.at(a);
    EXPECT_EQ(scannerMove(a, 1), to[0]) << a;
    EXPECT_EQ(scannerMove(a, 2), to[1]) << a;
    EXPECT_EQ(scannerMove(a, 3), to[1]) << a;
    EXPECT_EQ(scannerMove(a, 4), to[2]) << a;
  }
}

struct Aggrega : testing::Test {
  Rig rig;
  Store& s = rig.s;
  void balance(const char* b) { s.lblMinMax[0].Caption = b; }
  void anchor(int leader) { s.lblAgg2.Caption = std::to_string(leader); }
  static int leader(int r, int c) { return 1 + 36 * ((r + 9) % 9) + 4 * ((c + 9) % 9); }
  /// The colours around the pair, in the order of the count.
  void surround(const std::vector<int>& leaders, const std::vector<int>& slots) {
    for (std::size_t i = 0; i < 6; ++i) paintQuartet(s, leaders[i], slots[i]);
  }
  static std::vector<int> aroundFlat(int r, int c) {
    return {leader(r - 1, c - 1), leader(r - 1, c),     leader(r, c + 1),
            leader(r + 1, c),     leader(r + 1, c - 1), leader(r, c - 2)};
  }
  static std::vector<int> aroundUpright(int r, int c) {
    return {leader(r - 2, c), leader(r - 1, c - 1), leader(r - 1, c + 1),
            leader(r, c - 1), leader(r, c + 1),     leader(r + 1, c)};
  }
  bool isOf(int leaderOfQuartet, int k) {
    for (int m = 0; m <= 3; ++m)
      if (s.lblMiro[leaderOfQuartet + m].BackColor != s.lblValore[k].BackColor ||
          !sameCell(s.lblMiro2[leaderOfQuartet + m], s.lblValore[k]))
        return false;
    return true;
  }
};

TEST_F(Aggrega, CountsTheSixAroundAPairFromEveryAnchorOnTheTorus) {
  rig.generator.otherwise = 0.0F;
  balance("5");
  for (int r = 0; r <= 8; ++r)
    for (int c = 0; c <= 8; ++c) {
      paintField(s, 0);
      surround(aroundFlat(r, c), {1, 2, 3, 4, 5, 6});
      anchor(leader(r, c));
      AggregaOrizz(s);
      for (int i = 1; i <= 6; ++i) {
        EXPECT_EQ(s.lblAggrega[i].BackColor, s.lblValore[i].BackColor);
        EXPECT_EQ(s.lblAggrega[i].Caption, "1");
      }
      EXPECT_TRUE(isOf(leader(r, c), 1));
      EXPECT_TRUE(isOf(leader(r, c - 1), 1));

      paintField(s, 0);
      surround(aroundUpright(r, c), {1, 2, 3, 4, 5, 6});
      AggregaVert(s);
      for (int i = 1; i <= 6; ++i) EXPECT_EQ(s.lblAggrega[i].BackColor, s.lblValore[i].BackColor);
      EXPECT_TRUE(isOf(leader(r, c), 1));
      EXPECT_TRUE(isOf(leader(r - 1, c), 1));
    }
}

TEST_F(Aggrega, AMostFrequentColourIsTakenAtFiveAndARarestAtOne) {
  const std::vector<int> slots{2, 3, 2, 4, 3, 2};
  anchor(leader(4, 4));
  surround(aroundFlat(4, 4), slots);
  balance("5");
  rig.pick(1, 1);
  AggregaOrizz(s);
  EXPECT_TRUE(isOf(leader(4, 4), 2));
  const char* counts[] = {"3", "2", "1", "0", "0", "0"};
  for (int i = 1; i <= 6; ++i) EXPECT_EQ(s.lblAggrega[i].Caption, counts[i - 1]);
  balance("1");
  rig.pick(1, 1);
  AggregaOrizz(s);
  EXPECT_TRUE(isOf(leader(4, 4), 4));
  EXPECT_EQ(rig.generator.draws, 2) << "a search draws even when one place alone has the count";
}

TEST_F(Aggrega, TheBalanceDecidesByOneDraw) {
  const std::vector<int> slots{2, 2, 2, 2, 2, 4};
  anchor(leader(4, 4));
  for (const auto& [b, frequentUpTo] : std::map<std::string, int>{{"2", 1}, {"3", 2}, {"4", 3}})
    for (int q = 1; q <= 4; ++q) {
      surround(aroundFlat(4, 4), slots);
      balance(b.c_str());
      rig.pick(q, 4);
      rig.pick(1, 1);
      AggregaOrizz(s);
      EXPECT_TRUE(rig.generator.queue.empty());
      EXPECT_TRUE(isOf(leader(4, 4), q <= frequentUpTo ? 2 : 4)) << b << ' ' << q;
    }
}

TEST_F(Aggrega, AmongEqualCountsOneIsDrawnInTheOrderOfAppearance) {
  anchor(leader(4, 4));
  for (const char* b : {"1", "5"})
    for (int d = 1; d <= 6; ++d) {
      surround(aroundFlat(4, 4), {6, 5, 4, 3, 2, 1});
      balance(b);
      rig.pick(d, 6);
      AggregaOrizz(s);
      EXPECT_TRUE(isOf(leader(4, 4), 7 - d));
    }
}

TEST_F(Aggrega, APairInsideOneColourTakesItWhateverTheBalance) {
  rig.generator.otherwise = 0.6F;
  anchor(leader(4, 4));
  for (const char* b : {"1", "2", "3", "4", "5"}) {
    surround(aroundFlat(4, 4), {5, 5, 5, 5, 5, 5});
    paintQuartet(s, leader(4, 4), 1);
    paintQuartet(s, leader(4, 3), 2);
    balance(b);
    AggregaOrizz(s);
    EXPECT_TRUE(isOf(leader(4, 4), 5));
    EXPECT_TRUE(isOf(leader(4, 3), 5)) << "the pair's own colours are never counted";
  }
}

TEST_F(Aggrega, TheWorkingElementEndsWithTheCaptionThatTheDisplayShowed) {
  balance("5");
  anchor(leader(4, 4));
  surround(aroundFlat(4, 4), {5, 5, 5, 5, 5, 5});
  rig.pick(1, 1);
  AggregaOrizz(s);
  EXPECT_EQ(s.lblAggrega[0].Caption, "") << "the display shows no digits";
  EXPECT_EQ(s.lblCap[1].Caption, "");
  EXPECT_EQ(s.lblCap[2].Caption, "0");
  EXPECT_EQ(s.lblContaAg.Caption, "0");
  EXPECT_EQ(s.lblAggrega[2].BackColor, TransformControls::freePlace);
  s.lblVoceOpzioni[2].Caption = "Y";
  for (int i = 1; i <= cellCount; ++i) s.lblMiro[i].Caption = s.lblMiro2[i].Caption;
  rig.pick(1, 1);
  AggregaOrizz(s);
  EXPECT_EQ(s.lblAggrega[0].Caption, "5");
  for (int m = 0; m <= 3; ++m) EXPECT_EQ(s.lblMiro[leader(4, 4) + m].Caption, "5");
}

TEST_F(Aggrega, EndsWithTheCommitOfTheWholePlane) {
  s.lblMiro[441].BackColor = s.lblValore[6].BackColor;
  rig.generator.otherwise = 0.5F;
  PassoAggrega(s);
  EXPECT_EQ(s.lblMiro2[441].Caption, "6");
}

TEST_F(Aggrega, TheScannersOneDrawMovesTheAnchorAndLaysThePair) {
  s.lblOpzAggrega[0].Caption = "Scanner";
  balance("5");
  const int to[] = {leader(4, 6), leader(5, 5), leader(5, 5), leader(6, 4)};
  for (int w = 1; w <= 4; ++w) {
    paintField(s, 0);
    anchor(leader(4, 4));
    const int now = to[w - 1];
    const int r = (now - 1) / 36;
    const int c = (now - 1) % 36 / 4;
    const bool flat = w <= 2;
    surround(flat ? aroundFlat(r, c) : aroundUpright(r, c), {6, 6, 6, 6, 6, 6});
    rig.pick(w, 4);
    rig.pick(1, 1);
    PassoAggrega(s);
    EXPECT_EQ(s.lblAgg2.Caption, std::to_string(now));
    EXPECT_TRUE(isOf(now, 6));
    EXPECT_TRUE(isOf(flat ? leader(r, c - 1) : leader(r - 1, c), 6));
    EXPECT_TRUE(rig.generator.queue.empty());
  }
}

TEST_F(Aggrega, TheScannerDrawsItsMoveThenTheBalanceThenThePlace) {
  s.lblOpzAggrega[0].Caption = "Scanner";
  anchor(leader(4, 4));
  surround(aroundFlat(4, 6), {1, 2, 3, 4, 5, 6});
  rig.pick(1, 4);
  rig.pick(4, 4);
  rig.pick(5, 6);
  PassoAggrega(s);
  EXPECT_TRUE(isOf(leader(4, 6), 5));
}

TEST_F(Aggrega, AtRandomTheAnchorThenTheLieThenTheBalanceThenThePlaceAreDrawn) {
  for (const int t : {1, 12, 13, 24}) {
    paintField(s, 0);
    surround(t <= 12 ? aroundFlat(4, 4) : aroundUpright(4, 4), {1, 2, 3, 4, 5, 6});
    rig.pick(41, 81);
    rig.pick(t, 24);
    rig.pick(1, 4);
    rig.pick(6, 6);
    PassoAggrega(s);
    EXPECT_EQ(s.lblAgg2.Caption, "161");
    EXPECT_TRUE(isOf(161, 6)) << t;
    EXPECT_TRUE(rig.generator.queue.empty());
  }
}

TEST_F(Aggrega, AGivenLieIsNotDrawn) {
  balance("5");
  for (const char* lie : {"Orizz.", "Vert."}) {
    s.lblOpzAggrega[1].Caption = lie;
    rig.pick(41, 81);
    rig.pick(1, 1);
    PassoAggrega(s);
    EXPECT_TRUE(rig.generator.queue.empty());
  }
}

TEST_F(Aggrega, UnknownOptionsRunNoBranch) {
  s.lblOpzAggrega[1].Caption = "?";
  const Picture before = picture(s);
  rig.pick(41, 81);
  PassoAggrega(s);
  s.lblOpzAggrega[0].Caption = "Scanner";
  rig.pick(1, 4);
  PassoAggrega(s);
  EXPECT_EQ(picture(s), before);
  EXPECT_EQ(s.lblAgg2.Caption, "169");
  s.lblOpzAggrega[0].Caption = "?";  // anything but the scanner is at random
  rig.pick(2, 81);
  PassoAggrega(s);
  EXPECT_EQ(s.lblAgg2.Caption, "5");
}

TEST_F(Aggrega, TheBalanceIsChosenByItsButtons) {
  for (int i = 1; i <= 5; ++i) {
    s.lblMinMax.raise(Event::MouseDown, i);
    EXPECT_EQ(s.lblMinMax[0].Caption, std::to_string(i));
    for (int j = 1; j <= 5; ++j)
      EXPECT_EQ(s.lblMinMax[j].BackColor, i == j ? colours::selected : colours::unselected);
  }
}

TEST_F(Aggrega, TheChoiceFollowsTheValueEvenWhereAMemoryLitAnotherButton) {
  s.lblMinMax.raise(Event::MouseDown, 5);
  s.lblMinMax[5].BackColor = colours::unselected;
  s.lblMinMax[1].BackColor = colours::selected;
  anchor(leader(4, 4));
  surround(aroundFlat(4, 4), {2, 2, 2, 2, 2, 4});
  rig.pick(1, 1);
  AggregaOrizz(s);
  EXPECT_TRUE(isOf(leader(4, 4), 2));
}

TEST_F(Aggrega, ItsOptionsGoRound) {
  const std::vector<std::string> walks[] = {{"Scanner", "Random", "Scanner"},
                                            {"Orizz.", "Vert.", "Casuale", "Orizz."}};
  for (int i = 0; i <= 1; ++i)
    for (const std::string& option : walks[i]) {
      s.lblOpzAggrega.raise(Event::MouseDown, i);
      EXPECT_EQ(s.lblOpzAggrega[i].Caption, option);
      EXPECT_EQ(s.lblOpzAggrega[i].BackColor, colours::pressed);
      s.lblOpzAggrega.raise(Event::MouseUp, i);
      EXPECT_EQ(s.lblOpzAggrega[i].BackColor, colours::unselected);
    }
}

TEST_F(Aggrega, AClickOnTheAnchorPutsItBackOnTheFirstQuartet) {
  anchor(leader(4, 4));
  click(s.lblAgg2);
  EXPECT_EQ(s.lblAgg2.Caption, "1");
}

}  // namespace
}  // namespace caleidoscopio::test
