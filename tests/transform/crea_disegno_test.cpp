#include <gtest/gtest.h>

#include <string>

#include "support/seeded.h"

namespace caleidoscopio::test {
namespace {

/// A pick: k among n.
struct Pick {
  int k, n;
};

struct CreaDisegno : testing::Test {
  Rig rig;
  Store& s = rig.s;

  void SetUp() override {
    for (int k : {1, 2, 3, 4, 5, 6, 11}) s.lblCrea[k].Caption = "0";
  }
  void counts(int minimum, const char* least, const char* extra) {
    s.lblCrea[minimum].Caption = least;
    s.lblCrea[minimum + 1].Caption = extra;
  }
  /// One design, made with exactly these picks.
  void make(std::initializer_list<Pick> picks = {}) {
    for (const Pick& p : picks) rig.pick(p.k, p.n);
    s.TmrGoB.raise(Event::Tick);
    EXPECT_TRUE(rig.generator.queue.empty()) << rig.generator.queue.size() << " picks left over";
  }
  /// The slot whose colour cell i has on both planes, or -1.
  int slotAt(int i) {
    for (int k = 0; k <= 6; ++k)
      if (s.lblMiro[i].BackColor == s.lblValore[k].BackColor &&
          s.lblMiro2[i].BackColor == s.lblValore[k].BackColor &&
          s.lblMiro2[i].Caption == s.lblValore[k].Caption)
        return k;
    return -1;
  }
  /// How many cells are of another slot than the ground.
  int painted() {
    int count = 0;
    for (int i = 1; i <= cellCount; ++i) count += slotAt(i) != 0 ? 1 : 0;
    return count;
  }
};

TEST_F(CreaDisegno, WithAllCountsAtZeroOnlyFillsTheGround) {
  for (int i = 1; i <= cellCount; i += 3) s.lblMiro[i].BackColor = s.lblValore[5].BackColor;
  s.lblSfondoAttivo.Caption = "2";
  make();
  for (int i = 1; i <= cellCount; ++i) {
    EXPECT_EQ(slotAt(i), 2);
    EXPECT_EQ(s.lblMiro[i].Caption, "") << "no digits are shown";
  }
  EXPECT_EQ(rig.generator.draws, 0);
}

TEST_F(CreaDisegno, TheFillShowsDigitsWhereTheyAreShown) {
  s.lblVoceOpzioni[2].Caption = "Y";
  s.lblSfondoAttivo.Caption = "2";
  make();
  for (int i = 1; i <= cellCount; ++i) EXPECT_EQ(s.lblMiro[i].Caption, "2");
}

TEST_F(CreaDisegno, WithoutTheFillThePictureStays) {
  s.lblComCol[7].BackColor = colours::unselected;
  paintQuartet(s, 5, 6);
  const Picture before = picture(s);
  make();
  EXPECT_EQ(picture(s), before);
}

TEST_F(CreaDisegno, NoRectanglesButOneExtraIsOneRectangle) {
  counts(1, "0", "1");
  make({{1, 1}, {11, 81}, {31, 81}, {3, 7}});  // extra, both corners, slot
  for (int i = 1; i <= cellCount; ++i) {
    const Place p = placeOf(baseOf(i));
    const bool inside = i <= fieldEnd && p.row >= 2 && p.row <= 4 && p.column >= 2 && p.column <= 4;
    EXPECT_EQ(slotAt(i), inside ? 2 : 0) << "cell " << i;
  }
}

TEST_F(CreaDisegno, ARectangleLiesBetweenItsCornersWhicheverWayRound) {
  counts(1, "1", "0");
  make({{31, 81}, {11, 81}, {3, 7}});
  EXPECT_EQ(painted(), 36);
  counts(1, "1", "0");
  make({{29, 81}, {13, 81}, {3, 7}});  // top right and bottom left of the same
  EXPECT_EQ(painted(), 36);
}

TEST_F(CreaDisegno, RectanglesOverpaintAndDoNotErase) {
  counts(1, "2", "0");
  make({{1, 81}, {2, 81}, {3, 7}, {1, 81}, {2, 81}, {3, 7}});
  EXPECT_EQ(slotAt(1), 2);
  EXPECT_EQ(slotAt(5), 2);
}

TEST_F(CreaDisegno, TheCentreTakesTheActiveSlotAndCostsOneDot) {
  counts(3, "1", "0");
  make({{2, 2}});
  EXPECT_EQ(slotAt(441), 3);
  EXPECT_EQ(painted(), 1);
}

TEST_F(CreaDisegno, DotsOnTheCrossLeaveItsTipsOut) {
  for (int q = 1; q <= 9; ++q) {
    counts(3, "1", "0");
    make({{1, 2}, {6, 7}, {q, 9}});  // no centre, slot, quartet
    for (int m = 0; m <= 3; ++m) EXPECT_EQ(slotAt(325 + 4 * q + m), 5);
    EXPECT_EQ(painted(), 4);
  }
}

TEST_F(CreaDisegno, ADotsExtraComesOnTopOfItsMinimum) {
  counts(3, "1", "2");
  make({{2, 2}, {1, 2}, {2, 7}, {1, 9}, {3, 7}, {2, 9}, {4, 7}, {3, 9}});
  EXPECT_EQ(slotAt(329), 1);
  EXPECT_EQ(slotAt(333), 2);
  EXPECT_EQ(slotAt(337), 3);
}

TEST_F(CreaDisegno, CornersAndTipsCanBothCostTheOneDotThereIs) {
  counts(5, "1", "0");
  make({{1, 3}, {1, 3}});
  for (int m = 0; m <= 3; ++m) {
    EXPECT_EQ(slotAt(437 + m), 3);
    EXPECT_EQ(slotAt(325 + m), 3);
  }
  EXPECT_EQ(painted(), 8);
}

TEST_F(CreaDisegno, ABorderDotPaintsItsRowAloneWhereAClickPaintsTheColumnToo) {
  for (int q = 1; q <= 9; ++q) {
    counts(5, "1", "0");
    make({{2, 3}, {3, 3}, {6, 7}, {q, 9}});
    for (int m = 0; m <= 3; ++m) EXPECT_EQ(slotAt(361 + 4 * q + m), 5);
    EXPECT_EQ(painted(), 4);
    EXPECT_EQ(s.lblIndex.Caption, std::to_string(361 + 4 * q));
  }
  click(s.lblMiro, 369);
  EXPECT_EQ(slotAt(405), 3);
}

TEST_F(CreaDisegno, ABorderDotHitTwiceIsErased) {
  counts(5, "2", "0");
  make({{2, 3}, {3, 3}, {6, 7}, {4, 9}, {6, 7}, {4, 9}});
  EXPECT_EQ(painted(), 0);
}

TEST_F(CreaDisegno, FieldDotsAreFromNoneToTheirBound) {
  s.lblCrea[11].Caption = "5";
  make({{1, 6}});
  EXPECT_EQ(painted(), 0);
  make({{3, 6}, {2, 7}, {81, 81}, {5, 7}, {1, 81}});
  EXPECT_EQ(slotAt(321), 1);
  EXPECT_EQ(slotAt(1), 4);
  EXPECT_EQ(painted(), 8);
}

TEST_F(CreaDisegno, ASecondHitOfTheSameColourErases) {
  s.lblCrea[11].Caption = "2";
  make({{3, 3}, {5, 7}, {40, 81}, {5, 7}, {40, 81}});
  EXPECT_EQ(painted(), 0);
}

TEST_F(CreaDisegno, DrawsAmongTheSlotsInPlay) {
  s.lblNSc.Caption = "2";
  s.lblCrea[11].Caption = "1";
  make({{2, 2}, {2, 2}, {40, 81}});
  EXPECT_EQ(slotAt(157), 1);
}

TEST_F(CreaDisegno, LeavesTheActiveSlotAsItWasAndTheRectangleToolOff) {
  s.lblComCol.raise(Event::MouseDown, 4);
  EXPECT_TRUE(s.ShpRettangolo.Visible);
  counts(1, "1", "0");
  make({{1, 81}, {2, 81}, {6, 7}});
  EXPECT_EQ(s.lblValAttivo.Caption, "3");
  EXPECT_EQ(s.lblValAttivo.BackColor, s.lblValore[3].BackColor);
  EXPECT_EQ(s.lblComCol[4].BackColor, colours::unselected);
  EXPECT_EQ(s.lblComCol[4].Caption, "R");
  EXPECT_FALSE(s.ShpRettangolo.Visible);
}

TEST_F(CreaDisegno, AColourChangeAfterItRunsTheSelectedOperation) {
  s.lblComCol[8].BackColor = colours::selected;
  rig.generator.otherwise = 0.5F;
  for (int k : {1, 2, 3, 4, 10}) {
    for (int j : {0, 1, 2, 3, 4, 10}) s.lblCambioCol[j].BackColor = colours::unselected;
    s.lblCambioCol[k].BackColor = colours::selected;
    make();
    EXPECT_EQ(s.lblProva.Caption, std::to_string(k));
    EXPECT_EQ(s.lblCambioCol[5].Caption, std::to_string(k));
  }
}

TEST_F(CreaDisegno, OfSeveralOperationsTheFirstRunsUnlessRIsAmongThem) {
  s.lblComCol[8].BackColor = colours::selected;
  rig.generator.otherwise = 0.5F;
  for (int k : {3, 4}) s.lblCambioCol[k].BackColor = colours::selected;
  s.lblCambioCol[10].BackColor = colours::unselected;
  make();
  EXPECT_EQ(s.lblProva.Caption, "3");
  s.lblCambioCol[10].BackColor = colours::selected;
  make();
  EXPECT_EQ(s.lblProva.Caption, "10");
}

TEST_F(CreaDisegno, WithNoOperationSelectedTheColourChangeIsTheClickOnTheFirst) {
  s.lblComCol[8].BackColor = colours::selected;
  s.lblCambioCol[10].BackColor = colours::unselected;
  make({{50, 101}});
  EXPECT_EQ(s.lblProva.Caption, "0");
  EXPECT_EQ(s.lblTav[3].Caption, "50");
}

TEST_F(CreaDisegno, WithAAnOperationIsDrawn) {
  s.lblComCol[8].BackColor = colours::selected;
  s.lblCambioCol[9].BackColor = colours::selected;
  const int drawn[] = {1, 2, 3, 10};
  for (int k = 1; k <= 4; ++k) {
    rig.pick(k, 4);
    rig.generator.otherwise = 0.5F;
    make();
    EXPECT_EQ(s.lblCambioCol[5].Caption, std::to_string(drawn[k - 1]));
    EXPECT_EQ(s.lblProva.Caption, "") << "only the other way writes it";
  }
}

TEST_F(CreaDisegno, TheToolCreaRunsIt) {
  paintQuartet(s, 5, 6);
  s.lblComCol.raise(Event::MouseDown, 6);
  EXPECT_EQ(s.lblComCol[6].BackColor, colours::pressed);
  EXPECT_EQ(painted(), 0);
  s.lblComCol.raise(Event::MouseUp, 6);
  EXPECT_EQ(s.lblComCol[6].BackColor, colours::unselected);
}

TEST_F(CreaDisegno, ACountBeyondAThousandEndsTheRunWhereItIsUsed) {
  rig.generator.otherwise = 0.5F;
  for (int k : {1, 2, 3, 4, 5, 6, 11}) {
    s.lblCrea[k].Caption = "1001";
    try {
      s.TmrGoB.raise(Event::Tick);
      ADD_FAILURE() << "lblCrea(" << k << ") did not end the run";
    } catch (const RunEnded& ended) {
      EXPECT_EQ(std::string(ended.what()), "lblCrea(" + std::to_string(k) +
                                               ").Caption is \"1001\"; expected a count of 1000 "
                                               "at most");
    }
    s.lblCrea[k].Caption = "0";
  }
  s.lblCrea[7].Caption = "5000";  // no count of a design
  make();
}

TEST_F(CreaDisegno, AThousandAndAThousandMoreAreStillMade) {
  rig.generator.otherwise = 0.999F;
  counts(1, "1000", "1000");
  make();
  EXPECT_EQ(rig.generator.draws, 1 + 3 * 2000);
}

TEST_F(CreaDisegno, ACountThatIsNoNumberEndsTheRun) {
  s.lblCrea[3].Caption = "x";
  EXPECT_THROW(s.TmrGoB.raise(Event::Tick), RunEnded);
}

}  // namespace
}  // namespace caleidoscopio::test
