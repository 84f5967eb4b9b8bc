#include "transform/angoli.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/seeded.h"

namespace caleidoscopio::test {
namespace {

using Figure = std::vector<int>;

Figure figure(int corner, int size) {
  Figure leaders;
  for (int n = 0; n <= 2 * size; ++n) leaders.push_back(angleLeader(corner, size, n));
  return leaders;
}

TEST(AngoliFigures, AreTheWorkedExamples) {
  EXPECT_EQ(figure(1, 1), (Figure{5, 41, 37}));
  EXPECT_EQ(figure(2, 1), (Figure{69, 65, 29}));
  EXPECT_EQ(figure(3, 1), (Figure{317, 281, 285}));
  EXPECT_EQ(figure(4, 1), (Figure{253, 257, 293}));
  EXPECT_EQ(figure(1, 8), (Figure{33, 69, 105, 141, 177, 213, 249, 285, 321, 317, 313, 309, 305,
                                  301, 297, 293, 289}));
  EXPECT_EQ(figure(4, 8),
            (Figure{1, 5, 9, 13, 17, 21, 25, 29, 33, 69, 105, 141, 177, 213, 249, 285, 321}));
}

TEST(AngoliFigures, OfEveryCornerAndSizeAreTwoArmsDrawnOneByOne) {
  for (int k = 1; k <= 8; ++k) {
    Figure arms[5];
    const auto add = [](Figure& f, int row, int column) { f.push_back(1 + 36 * row + 4 * column); };
    for (int row = 0; row <= k; ++row) add(arms[1], row, k);
    for (int column = k - 1; column >= 0; --column) add(arms[1], k, column);
    for (int column = 8; column >= 8 - k; --column) add(arms[2], k, column);
    for (int row = k - 1; row >= 0; --row) add(arms[2], row, 8 - k);
    for (int row = 8; row >= 8 - k; --row) add(arms[3], row, 8 - k);
    for (int column = 9 - k; column <= 8; ++column) add(arms[3], 8 - k, column);
    for (int column = 0; column <= k; ++column) add(arms[4], 8 - k, column);
    for (int row = 9 - k; row <= 8; ++row) add(arms[4], row, k);
    for (int corner = 1; corner <= 4; ++corner)
      EXPECT_EQ(figure(corner, k), arms[corner]) << "corner " << corner << " size " << k;
  }
}

struct Angoli : testing::Test {
  Rig rig;
  Store& s = rig.s;
  void SetUp() override { s.TmrGoB.setEnabled(true); }
  void step() { PassoAngolo(s); }
  /// The next figure with size k, corner (for "Rnd") and slot.
  void newFigure(int k, int corner, int slot) {
    rig.pick(k, 8);
    if (s.lblAngoli.Caption == "Rnd") rig.pick(corner, 4);
    rig.pick(slot + 1, 7);
    step();
    EXPECT_TRUE(rig.generator.queue.empty());
  }
  std::string at(int i) { return s.lblAngolo[i].Caption; }
};

TEST_F(Angoli, TheVeryFirstTickBeginsAFigure) {
  newFigure(1, 2, 6);
  EXPECT_EQ(at(0), "1");
  EXPECT_EQ(at(1), "69");
  EXPECT_EQ(at(2), "65");
  EXPECT_EQ(at(3), "29");
  for (int i = 4; i <= 17; ++i) EXPECT_EQ(at(i), "");
  EXPECT_EQ(at(18), "3");
  EXPECT_EQ(at(20), "2");
  EXPECT_EQ(at(21), "1");
  EXPECT_EQ(s.lblColSCelto.Caption, "6");
}

TEST_F(Angoli, PaintsOneQuartetATickAndCommitsTheWholePlane) {
  s.lblMiro[400].BackColor = s.lblValore[2].BackColor;
  newFigure(1, 1, 6);
  for (int m = 0; m <= 3; ++m) {
    EXPECT_EQ(s.lblMiro[5 + m].BackColor, s.lblValore[6].BackColor);
    EXPECT_EQ(s.lblMiro2[5 + m].BackColor, s.lblValore[6].BackColor);
    EXPECT_EQ(s.lblMiro2[5 + m].Caption, "6");
    EXPECT_EQ(s.lblMiro[5 + m].Caption, "");
    EXPECT_EQ(s.lblMiro[41 + m].BackColor, s.lblValore[0].BackColor);
  }
  EXPECT_EQ(s.lblMiro2[400].Caption, "2") << "what another engine had drawn on the display alone";
  step();
  step();
  EXPECT_EQ(s.lblMiro[41].BackColor, s.lblValore[6].BackColor);
  EXPECT_EQ(s.lblMiro[37].BackColor, s.lblValore[6].BackColor);
  EXPECT_EQ(rig.generator.draws, 3) << "size, corner and colour once a figure, none a quartet";
}

TEST_F(Angoli, ShowsDigitsWhereTheyAreShown) {
  s.lblVoceOpzioni[2].Caption = "Y";
  newFigure(1, 1, 6);
  for (int m = 0; m <= 3; ++m) EXPECT_EQ(s.lblMiro[5 + m].Caption, "6");
}

TEST_F(Angoli, AFigureOfSizeEightHasSeventeenQuartets) {
  newFigure(8, 1, 6);
  EXPECT_EQ(at(18), "17");
  for (int n = 2; n <= 17; ++n) step();
  EXPECT_EQ(at(0), "17");
  int painted = 0;
  for (int i = 1; i <= cellCount; ++i)
    painted += s.lblMiro[i].BackColor == s.lblValore[6].BackColor ? 1 : 0;
  EXPECT_EQ(painted, 4 * 17);
}

TEST_F(Angoli, TheSizeBeforeIsDrawnAgainAndPassedOver) {
  rig.pick(4, 8);  // the size at load
  rig.pick(4, 8);
  newFigure(2, 1, 0);
  EXPECT_EQ(at(21), "2");
  EXPECT_EQ(at(18), "5");
}

TEST_F(Angoli, AHundredEqualDrawsKeepTheSize) {
  for (int i = 0; i < 100; ++i) rig.pick(4, 8);
  rig.pick(1, 4);
  rig.pick(1, 7);
  step();
  EXPECT_EQ(at(21), "4");
  EXPECT_EQ(at(18), "9");
  EXPECT_EQ(rig.generator.draws, 102);
}

TEST_F(Angoli, TheCornerGoesRoundForwardsBackwardsOrAsDrawn) {
  int size = 1;
  const auto corners = [this, &size](const char* way, std::initializer_list<const char*> expected) {
    s.lblAngoli.Caption = way;
    for (const char* corner : expected) {
      s.lblAngolo[18].Caption = "0";
      newFigure(size = size == 1 ? 2 : 1, 3, 0);
      EXPECT_EQ(at(20), corner) << way;
    }
  };
  corners("Or", {"1", "2", "3", "4", "1"});
  corners("Ao", {"4", "3", "2", "1", "4"});
  corners("Rnd", {"3", "3"});
  corners("whatever", {"3", "3"});
}

TEST_F(Angoli, AFigureUnderWayIsNotMovedByTheCornerOption) {
  newFigure(1, 1, 6);
  click(s.lblAngoli);
  step();
  EXPECT_EQ(s.lblMiro[41].BackColor, s.lblValore[6].BackColor);
}

TEST_F(Angoli, TheCornerOptionGoesRound) {
  for (const char* way : {"Or", "Ao", "Rnd", "Or"}) {
    click(s.lblAngoli);
    EXPECT_EQ(s.lblAngoli.Caption, way);
  }
}

TEST_F(Angoli, TheFigureSurvivesAnotherMode) {
  newFigure(1, 1, 6);
  click(s.lblTransf, 5);
  click(s.lblTransf, 2);
  s.TmrGoB.setEnabled(true);
  step();
  EXPECT_EQ(at(0), "2");
  EXPECT_EQ(s.lblMiro[41].BackColor, s.lblValore[6].BackColor);
}

TEST(AngoliRun, NoTwoFiguresInARowHaveTheSameSize) {
  SeededRig rig(5);
  Store& s = rig.s;
  s.TmrGoB.setEnabled(true);
  std::string last;
  for (int n = 0; n < 5000; ++n) {
    PassoAngolo(s);
    if (s.lblAngolo[0].Caption != "1") continue;
    EXPECT_NE(s.lblAngolo[18].Caption, last);
    last = s.lblAngolo[18].Caption;
  }
}

}  // namespace
}  // namespace caleidoscopio::test
