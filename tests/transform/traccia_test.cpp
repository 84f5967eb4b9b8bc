#include "transform/traccia.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/seeded.h"

namespace caleidoscopio::test {
namespace {

struct Traccia : testing::Test {
  Rig rig;
  Store& s = rig.s;
  void standOn(int leader) {
    s.lblCasScelta.Caption = std::to_string(leader);
    ElencaSuccessive(s);
  }
  void tick() {
    PassoTraccia(s);
    PassoTracciaCasella(s);
  }
};

TEST_F(Traccia, ListsTheNeighboursOfEveryLeaderInTheOrderOfItsPlace) {
  using Steps = std::vector<int>;
  for (int leader = 1; leader <= 321; leader += 4) {
    Steps steps{-36, 4, 36, -4};
    if (leader == 1)
      steps = {4, 36};
    else if (leader == 33)
      steps = {36, -4};
    else if (leader == 321)
      steps = {-4, -36};
    else if (leader == 289)
      steps = {-36, 4};
    else if (leader <= 29)
      steps = {4, 36, -4};
    else if (leader >= 293)
      steps = {-4, -36, 4};
    else if (leader % 36 == 33)
      steps = {36, -4, -36};
    else if (leader % 36 == 1)
      steps = {-36, 4, 36};
    standOn(leader);
    EXPECT_EQ(s.lblSuccessive[0].Caption, std::to_string(steps.size())) << leader;
    for (int i = 1; i <= 4; ++i) {
      const auto at = static_cast<std::size_t>(i - 1);
      const bool listed = at < steps.size();
      EXPECT_EQ(s.lblDirez[i].Caption, listed ? std::to_string(steps[at]) : "") << leader;
      EXPECT_EQ(s.lblSuccessive[i].Caption, listed ? std::to_string(leader + steps[at]) : "")
          << leader;
    }
  }
}

TEST_F(Traccia, TheFirstTickWorksFromAListThatIsNotItsPlaces) {
  paintQuartet(s, 161, 5);
  rig.pick(4, 4);
  tick();
  EXPECT_EQ(s.lblCasScelta.Caption, "61") << "no neighbour of 161";
  EXPECT_TRUE(sameCell(s.lblMiro2[61], s.lblValore[5]));
  EXPECT_EQ(s.lblSuccessive[1].Caption, "25") << "from here on the list is its place's";
}

TEST_F(Traccia, StrikesNeighboursOfItsOwnColourAndPacksTheRest) {
  standOn(161);
  paintQuartet(s, 165, 4);
  paintQuartet(s, 157, 2);
  PassoTraccia(s);
  EXPECT_EQ(s.lblSuccessive[0].Caption, "2");
  const char* listed[] = {"", "165", "", "157"};
  const char* packed[] = {"165", "157", "", ""};
  const char* steps[] = {"4", "-4", "", ""};
  for (int i = 1; i <= 4; ++i) {
    EXPECT_EQ(s.lblSuccessive[i].Caption, listed[i - 1]);
    EXPECT_EQ(s.lblSuccessiveB[i].Caption, packed[i - 1]);
    EXPECT_EQ(s.lblDirezB[i].Caption, steps[i - 1]);
  }
  EXPECT_EQ(s.lblRisistema.Caption, "2");
}

TEST_F(Traccia, ComparesNoMorePlacesThanItCounted) {
  standOn(1);
  PassoTraccia(s);  // both struck; the empty places would be no numbers
  EXPECT_EQ(s.lblSuccessive[0].Caption, "0");
}

TEST_F(Traccia, WithOneNeighbourLeftItGoesThereWithoutADraw) {
  standOn(161);
  paintQuartet(s, 161, 5);
  for (int equal : {125, 165, 197}) paintQuartet(s, equal, 5);
  tick();
  EXPECT_EQ(s.lblCasScelta.Caption, "157");
  for (int m = 0; m <= 3; ++m) {
    EXPECT_TRUE(sameCell(s.lblMiro2[157 + m], s.lblValore[5]));
    EXPECT_EQ(s.lblMiro[157 + m].BackColor, s.lblValore[5].BackColor);
    EXPECT_EQ(s.lblMiro[157 + m].Caption, "");
  }
  EXPECT_EQ(rig.generator.draws, 0);
}

TEST_F(Traccia, AmongSeveralItDrawsOne) {
  standOn(161);
  paintQuartet(s, 161, 5);
  paintQuartet(s, 125, 5);
  rig.pick(2, 3);
  tick();
  EXPECT_EQ(s.lblRndPoss.Caption, "2");
  EXPECT_EQ(s.lblCasScelta.Caption, "197");
  EXPECT_EQ(s.lblSuccessive[0].Caption, "4");
}

TEST_F(Traccia, InAFieldOfOneColourItRepaintsItsOwnQuartetAndThenLeavesIt) {
  standOn(161);
  rig.pick(1, 4);  // its own colour: drawn again
  rig.pick(4, 4);
  tick();
  EXPECT_EQ(s.lblCasScelta.Caption, "161");
  EXPECT_EQ(s.lblRndColor.Caption, "3");
  for (int m = 0; m <= 3; ++m) {
    EXPECT_TRUE(sameCell(s.lblMiro2[161 + m], s.lblValore[3]));
    EXPECT_EQ(s.lblMiro[161 + m].BackColor, s.lblValore[3].BackColor);
  }
  EXPECT_EQ(s.lblSuccessive[0].Caption, "4");
  PassoTraccia(s);
  EXPECT_EQ(s.lblSuccessive[0].Caption, "4") << "all four differ now";
}

TEST_F(Traccia, TheFreshColourComesFromTheFirstFourSlotsAlone) {
  for (int k = 1; k <= 4; ++k) {
    standOn(161);
    paintField(s, 5);
    rig.pick(k, 4);
    tick();
    EXPECT_EQ(s.lblMiro2[161].Caption, std::to_string(k - 1));
  }
}

TEST_F(Traccia, ThirtyFailuresRepaintTheSameColour) {
  for (int k = 1; k <= 3; ++k) s.lblValore[k].BackColor = s.lblValore[0].BackColor;
  standOn(161);
  for (int i = 0; i < 30; ++i) rig.pick(3, 4);
  tick();
  EXPECT_TRUE(rig.generator.queue.empty());
  EXPECT_EQ(s.lblMiro[161].BackColor, s.lblValore[0].BackColor);
  EXPECT_EQ(s.lblMiro2[161].Caption, "2");
}

TEST_F(Traccia, TheColourThatSpreadsIsTheDesignsThoughTheDisplayIsLookedAt) {
  paintField(s, 0);
  standOn(161);
  s.lblMiro[161].BackColor = s.lblValore[5].BackColor;  // on the display alone
  s.lblMiro[125].BackColor = s.lblValore[6].BackColor;
  rig.pick(1, 4);
  tick();
  EXPECT_EQ(s.lblCasScelta.Caption, "125");
  EXPECT_EQ(s.lblMiro[125].BackColor, s.lblValore[0].BackColor);
}

TEST_F(Traccia, ShowsDigitsWhereTheyAreShown) {
  s.lblVoceOpzioni[2].Caption = "Y";
  standOn(161);
  rig.pick(4, 4);
  tick();
  for (int m = 0; m <= 3; ++m) EXPECT_EQ(s.lblMiro[161 + m].Caption, "3");
  rig.pick(1, 4);
  tick();
  for (int m = 0; m <= 3; ++m) EXPECT_EQ(s.lblMiro[125 + m].Caption, "3");
}

TEST_F(Traccia, KeepsItsPlaceThroughAnotherMode) {
  standOn(33);
  click(s.lblTransf, 4);
  click(s.lblTransf, 5);
  click(s.lblTransf, 4);
  EXPECT_EQ(s.lblCasScelta.Caption, "33");
  EXPECT_EQ(s.lblSuccessive[1].Caption, "69");
}

}  // namespace
}  // namespace caleidoscopio::test
