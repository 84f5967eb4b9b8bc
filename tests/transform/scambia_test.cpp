#include "transform/scambia.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "support/seeded.h"

namespace caleidoscopio::test {
namespace {

struct Scambia : testing::Test {
  Rig rig;
  Store& s = rig.s;
};

TEST_F(Scambia, TwoQuartetsTradeTheirCells) {
  s.lblNScambi.Caption = "1";
  paintQuartet(s, 5, 3);
  paintQuartet(s, 321, 6);
  rig.pick(2, 81);
  rig.pick(80, 80);  // the last of the pool that is left
  PassoScambia(s);
  for (int m = 0; m <= 3; ++m) {
    EXPECT_TRUE(sameCell(s.lblMiro2[5 + m], s.lblValore[6]));
    EXPECT_TRUE(sameCell(s.lblMiro2[321 + m], s.lblValore[3]));
    EXPECT_EQ(s.lblMiro[5 + m].BackColor, s.lblValore[6].BackColor);
    EXPECT_EQ(s.lblMiro[321 + m].ForeColor, s.lblValore[3].ForeColor);
    EXPECT_EQ(s.lblMiro[5 + m].Caption, "");
  }
}

TEST_F(Scambia, TheListKeepsTheLeadersDrawnAndTheColoursThatWaited) {
  s.lblNScambi.Caption = "1";
  paintQuartet(s, 5, 5);
  rig.pick(2, 81);
  rig.pick(2, 80);  // 5 is gone: the second left is 9
  PassoScambia(s);
  EXPECT_EQ(s.lblScelta[1].Caption, "5");
  EXPECT_EQ(s.lblScelta[2].Caption, "9");
  EXPECT_EQ(s.lblScelta[3].Caption, "");
  EXPECT_EQ(s.lblScelta[2].BackColor, s.lblValore[5].BackColor);
  EXPECT_EQ(s.lblScelta[2].ForeColor, s.lblValore[5].ForeColor);
  EXPECT_EQ(s.lblScelta[1].BackColor, colours::unselected);
  EXPECT_EQ(s.lblRimaste.Caption, "79");
  EXPECT_EQ(s.lblCountScelte.Caption, "2");
  EXPECT_EQ(s.lblRndCasella.Caption, "2");
  EXPECT_EQ(s.lblSceltaN[79].Caption, "321");
  for (int i : {80, 81, 82}) EXPECT_EQ(s.lblSceltaN[i].Caption, "");
}

TEST_F(Scambia, TwelveSwapsDrawTwentyFourDifferentLeaders) {
  rig.generator.otherwise = 0.3F;
  PassoScambia(s);
  EXPECT_EQ(rig.generator.draws, 24);
  std::set<std::string> leaders;
  for (int i = 1; i <= 24; ++i) leaders.insert(s.lblScelta[i].Caption);
  EXPECT_EQ(leaders.size(), 24U);
  EXPECT_FALSE(leaders.contains(""));
}

TEST_F(Scambia, EqualColoursSwapUnseenAndStillCount) {
  rig.generator.otherwise = 0.3F;
  paintField(s, 0);
  const Picture before = picture(s);
  PassoScambia(s);
  EXPECT_EQ(picture(s), before);
  EXPECT_EQ(s.lblCountScelte.Caption, "24");
}

TEST_F(Scambia, NothingBeyondTheFieldChanges) {
  SeededDraws draws(3);
  scatter(s, draws);
  for (int i = fieldEnd + 1; i <= cellCount; ++i) s.lblMiro[i].BackColor = {0x010203};
  const Picture before = picture(s, fieldEnd + 1);
  rig.generator.otherwise = 0.7F;
  PassoScambia(s);
  EXPECT_EQ(picture(s, fieldEnd + 1), before);
}

TEST_F(Scambia, TheRedrawDiscardsWhatStoodOnTheDisplayAloneAndEqualsTheMembers) {
  rig.generator.otherwise = 0.3F;
  paintField(s, 0);
  s.lblMiro[322].BackColor = s.lblValore[5].BackColor;
  s.lblMiro2[2].BackColor = s.lblValore[5].BackColor;  // a member: the leader decides
  PassoScambia(s);
  EXPECT_EQ(s.lblMiro[322].BackColor, s.lblValore[0].BackColor);
  EXPECT_EQ(s.lblMiro2[2].BackColor, s.lblValore[0].BackColor);
  EXPECT_EQ(unequalQuartet(s), 0);
}

TEST_F(Scambia, ShowsDigitsWhereTheyAreShown) {
  s.lblVoceOpzioni[2].Caption = "Y";
  paintQuartet(s, 5, 3);
  s.lblNScambi.Caption = "1";
  rig.pick(2, 81);
  rig.pick(2, 80);
  PassoScambia(s);
  for (int m = 0; m <= 3; ++m) EXPECT_EQ(s.lblMiro[9 + m].Caption, "3");
  EXPECT_EQ(s.lblMiro[5].Caption, "0");
}

TEST_F(Scambia, MoreThanTwelveSwapsEndTheRun) {
  rig.generator.otherwise = 0.3F;
  s.lblNScambi.Caption = "13";
  EXPECT_THROW(PassoScambia(s), RunEnded);
}

TEST_F(Scambia, TheNumberOfSwapsWalksFromOneToTwelve) {
  for (int n = 1; n <= 13; ++n) {
    s.lblNScambi.raise(Event::MouseDown);
    EXPECT_EQ(s.lblNScambi.BackColor, colours::pressed);
    EXPECT_EQ(s.lblNScambi.Caption, std::to_string((n - 1) % 12 + 1));
    s.lblNScambi.raise(Event::MouseUp);
    EXPECT_EQ(s.lblNScambi.BackColor, colours::unselected);
  }
}

}  // namespace
}  // namespace caleidoscopio::test
