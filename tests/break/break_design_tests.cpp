// The picture of a kind 3 Break: every section draw by draw, and what it may not touch.
#include <gtest/gtest.h>

#include <set>

#include "break/design.h"
#include "support/field.h"
#include "support/rig.h"

namespace caleidoscopio::test {
namespace {

struct BreakDesign : testing::Test {
  Rig rig;
  Store& s = rig.s;

  void SetUp() override {
    for (int k : {1, 2, 3, 4, 5, 6}) s.lblCrea[k].Caption = "0";
    s.lblCrea[7].Caption = "7";
    for (int k = 0; k <= 6; ++k) {
      s.lblValoreB[k].Caption = "b" + std::to_string(k);
      s.lblValoreB[k].BackColor = {0xB00000U + static_cast<std::uint32_t>(k)};
      s.lblValoreB[k].ForeColor = {0xF00000U + static_cast<std::uint32_t>(k)};
    }
    makeEveryCellItsOwn(s);
    s.lblCrea[10].BackColor = colours::unselected;
  }
  /// Design cells that hold slot k of set B.
  std::set<int> cellsOf(int k) {
    std::set<int> cells;
    for (int i = 1; i <= 441; ++i)
      if (tripleOf(s.lblMiro2[i]) == tripleOf(s.lblValoreB[k])) cells.insert(i);
    return cells;
  }
  std::set<int> paintedCells() {
    std::set<int> cells;
    for (int k = 0; k <= 6; ++k) cells.merge(cellsOf(k));
    return cells;
  }
  void noDrawLeft() { EXPECT_TRUE(rig.generator.queue.empty()); }
};

std::set<int> quartets(std::initializer_list<int> leaders) {
  std::set<int> cells;
  for (int leader : leaders)
    for (int i = 0; i < 4; ++i) cells.insert(leader + i);
  return cells;
}

TEST_F(BreakDesign, WithAllCountsZeroTheGroundAloneIsLaid) {
  s.lblCrea[10].BackColor = colours::selected;
  s.lblSfondoAttivo.Caption = "5";
  DisegnoBreak(s);
  EXPECT_EQ(cellsOf(5).size(), 441U);
  EXPECT_EQ(rig.generator.draws, 0);
}

TEST_F(BreakDesign, WithoutTheGroundTheNewDesignIsDrawnOverTheLast) {
  const auto before = planeOf(s.lblMiro2);
  DisegnoBreak(s);
  EXPECT_EQ(planeOf(s.lblMiro2), before);
}

TEST_F(BreakDesign, TheDisplayIsNotTouched) {
  const auto display = planeOf(s.lblMiro);
  s.lblVoceOpzioni[2].Caption = "Y";
  s.lblCrea[10].BackColor = colours::selected;
  for (int k : {1, 3, 5}) s.lblCrea[k].Caption = "9";
  rig.generator.otherwise = 0.1F;
  DisegnoBreak(s);
  EXPECT_EQ(planeOf(s.lblMiro), display);
}

TEST_F(BreakDesign, ARectangleLiesBetweenItsTwoCornersWhicheverComesFirst) {
  for (bool swapped : {false, true}) {
    makeEveryCellItsOwn(s);
    s.lblCrea[1].Caption = "1";
    // Row 2 column 4 is quartet 13, row 4 column 3 quartet 30; leaders 49 and 117.
    rig.pick(swapped ? 30 : 13, 81);
    rig.pick(swapped ? 13 : 30, 81);
    rig.pick(3, 7);
    DisegnoBreak(s);
    EXPECT_EQ(cellsOf(2), quartets({45, 49, 81, 85, 117, 121}));
    EXPECT_EQ(paintedCells(), cellsOf(2));
    noDrawLeft();
  }
}

TEST_F(BreakDesign, ARectangleWithOneCornerIsOneQuartet) {
  s.lblCrea[1].Caption = "1";
  rig.pick(81, 81);
  rig.pick(81, 81);
  rig.pick(1, 7);
  DisegnoBreak(s);
  EXPECT_EQ(cellsOf(0), quartets({321}));
}

TEST_F(BreakDesign, TheExtraOfRectanglesIsAtLeastOneUnlessItIsTheTextZero) {
  s.lblCrea[2].Caption = "4";
  rig.pick(2, 4);
  for (int i = 0; i < 2; ++i) {
    rig.pick(1 + i, 81);
    rig.pick(1 + i, 81);
    rig.pick(2, 7);
  }
  DisegnoBreak(s);
  EXPECT_EQ(cellsOf(1), quartets({1, 5}));
  noDrawLeft();
  s.lblCrea[2].Caption = "00";  // not the text "0": a pick among none
  rig.generator.otherwise = 0.5F;
  EXPECT_THROW(DisegnoBreak(s), RunEnded);
}

TEST_F(BreakDesign, RDrawsTheSlotsInUseForEachRectangleAfterItsCorners) {
  s.lblCrea[7].Caption = "R";
  s.lblCrea[1].Caption = "2";
  rig.pick(1, 81);
  rig.pick(1, 81);
  rig.pick(6, 6);  // seven slots
  rig.pick(7, 7);
  rig.pick(2, 81);
  rig.pick(2, 81);
  rig.pick(1, 6);  // two slots
  rig.pick(2, 2);
  rig.pick(3, 6);  // arms and border: drawn though there are no dots
  DisegnoBreak(s);
  EXPECT_EQ(cellsOf(6), quartets({1}));
  EXPECT_EQ(cellsOf(1), quartets({5}));
  noDrawLeft();
}

TEST_F(BreakDesign, WithTwoSlotsOnlyTheFirstTwoAppear) {
  s.lblCrea[7].Caption = "2";
  for (int k : {1, 3, 5}) s.lblCrea[k].Caption = "10";
  for (int n = 0; n < 200; ++n)
    rig.generator.queue.push_back(static_cast<float>((n * 37) % 100) / 100.0F);
  DisegnoBreak(s);
  EXPECT_FALSE(cellsOf(0).empty());
  EXPECT_FALSE(cellsOf(1).empty());
  for (int k = 2; k <= 6; ++k) EXPECT_TRUE(cellsOf(k).empty()) << k;
}

TEST_F(BreakDesign, OneArmDotCanGoToTheCentreWithTheSlotDrawnForIt) {
  s.lblCrea[3].Caption = "2";
  rig.pick(4, 7);
  rig.pick(2, 2);  // the centre, which costs a dot
  rig.pick(6, 7);
  rig.pick(9, 9);
  DisegnoBreak(s);
  EXPECT_EQ(cellsOf(3), (std::set<int>{441}));
  EXPECT_EQ(cellsOf(5), quartets({361}));
  noDrawLeft();
}

TEST_F(BreakDesign, ArmDotsWithoutTheCentreDropTheSlotDrawnForIt) {
  s.lblCrea[3].Caption = "1";
  rig.pick(4, 7);
  rig.pick(1, 2);
  rig.pick(6, 7);
  rig.pick(1, 9);
  DisegnoBreak(s);
  EXPECT_EQ(paintedCells(), quartets({329}));
  EXPECT_EQ(cellsOf(5), quartets({329}));
  noDrawLeft();
}

TEST_F(BreakDesign, TwoDotsOfOneSlotOnOneQuartetStayPainted) {
  // A second hit of a person's brush would take the dot away; nothing toggles here.
  s.lblCrea[3].Caption = s.lblCrea[5].Caption = "2";
  s.lblCrea[4].Caption = s.lblCrea[6].Caption = "00";  // of dots the number counts, not the text
  rig.pick(1, 7);
  rig.pick(1, 2);
  for (int dot = 0; dot < 2; ++dot) {
    rig.pick(4, 7);
    rig.pick(1, 9);
  }
  rig.pick(2, 3);
  rig.pick(2, 3);
  for (int dot = 0; dot < 2; ++dot) {
    rig.pick(6, 7);
    rig.pick(9, 9);
  }
  DisegnoBreak(s);
  EXPECT_EQ(cellsOf(3), quartets({329}));
  EXPECT_EQ(cellsOf(5), quartets({397, 433}));
  EXPECT_EQ(paintedCells().size(), 12U);
  noDrawLeft();
}

TEST_F(BreakDesign, TwoRectanglesOfOneSlotOnOnePlaceStayPainted) {
  s.lblCrea[1].Caption = "2";
  for (int rectangle = 0; rectangle < 2; ++rectangle) {
    rig.pick(1, 81);
    rig.pick(2, 81);
    rig.pick(3, 7);
  }
  DisegnoBreak(s);
  EXPECT_EQ(cellsOf(2), quartets({1, 5}));
  EXPECT_EQ(paintedCells(), cellsOf(2));
  noDrawLeft();
}

TEST_F(BreakDesign, TheOnlyArmDotCanBeTheCentre) {
  s.lblCrea[4].Caption = "3";
  rig.pick(1, 3);
  rig.pick(2, 7);
  rig.pick(2, 2);
  DisegnoBreak(s);
  EXPECT_EQ(paintedCells(), (std::set<int>{441}));
  noDrawLeft();
}

TEST_F(BreakDesign, CornersAndTipsCanBothFireOnOneDotAndLeaveLessThanNone) {
  s.lblCrea[5].Caption = "1";
  rig.pick(1, 3);
  rig.pick(1, 3);
  DisegnoBreak(s);
  EXPECT_EQ(cellsOf(1), quartets({437, 325})) << "always slot 1";
  EXPECT_EQ(paintedCells(), cellsOf(1));
  noDrawLeft();
}

TEST_F(BreakDesign, ABorderDotLandsInRowsAndColumnsAtOnce) {
  s.lblCrea[6].Caption = "2";
  rig.pick(2, 2);
  rig.pick(3, 3);
  rig.pick(2, 3);
  rig.pick(7, 7);
  rig.pick(1, 9);
  rig.pick(5, 7);
  rig.pick(9, 9);
  DisegnoBreak(s);
  EXPECT_EQ(cellsOf(6), quartets({365, 401}));
  EXPECT_EQ(cellsOf(4), quartets({397, 433}));
  EXPECT_EQ(paintedCells().size(), 16U);
  noDrawLeft();
}

TEST_F(BreakDesign, TheSlotsInUseAreDrawnOnceForArmsAndBorder) {
  s.lblCrea[7].Caption = "R";
  s.lblCrea[3].Caption = s.lblCrea[5].Caption = "1";
  rig.pick(2, 6);  // three slots
  rig.pick(1, 3);
  rig.pick(1, 2);
  rig.pick(3, 3);
  rig.pick(2, 9);
  rig.pick(2, 3);
  rig.pick(2, 3);
  rig.pick(1, 3);  // a slot among the same three
  rig.pick(2, 9);
  DisegnoBreak(s);
  EXPECT_EQ(cellsOf(2), quartets({333}));
  EXPECT_EQ(cellsOf(0), quartets({369, 405}));
  noDrawLeft();
}

TEST_F(BreakDesign, FieldDotsStayIdleUnlessTheirElementIsMarked) {
  s.lblCrea[11].Caption = "5";
  DisegnoBreak(s);
  EXPECT_EQ(rig.generator.draws, 0);
  s.lblCrea[11].BackColor = colours::selected;
  s.lblCrea[7].Caption = "R";
  rig.pick(1, 6);  // for arms and border
  rig.pick(3, 6);  // two dots
  rig.pick(6, 6);
  rig.pick(5, 7);
  rig.pick(81, 81);
  rig.pick(1, 6);
  rig.pick(2, 2);
  rig.pick(2, 81);
  DisegnoBreak(s);
  EXPECT_EQ(cellsOf(4), quartets({321}));
  EXPECT_EQ(cellsOf(1), quartets({5}));
  noDrawLeft();
}

TEST_F(BreakDesign, ACountAboveAThousandEndsTheRunWithItsName) {
  rig.generator.otherwise = 0.5F;
  for (int k : {1, 2, 3, 4, 5, 6}) {
    s.lblCrea[k].Caption = "1001";
    try {
      DisegnoBreak(s);
      ADD_FAILURE() << "lblCrea(" << k << ") was taken";
    } catch (const RunEnded& end) {
      EXPECT_NE(std::string(end.what()).find("lblCrea(" + std::to_string(k) + ")"),
                std::string::npos)
          << end.what();
      EXPECT_NE(std::string(end.what()).find("1001"), std::string::npos);
    }
    s.lblCrea[k].Caption = "0";
  }
  s.lblCrea[11].Caption = "1001";
  EXPECT_NO_THROW(DisegnoBreak(s)) << "not used, not refused";
  s.lblCrea[11].BackColor = colours::selected;
  EXPECT_THROW(DisegnoBreak(s), RunEnded);
  s.lblCrea[11].BackColor = colours::unselected;
  s.lblCrea[3].Caption = "1000";
  EXPECT_NO_THROW(DisegnoBreak(s));
}

TEST_F(BreakDesign, ACountOrASlotThatIsNoNumberEndsTheRun) {
  rig.generator.otherwise = 0.5F;
  s.lblCrea[5].Caption = "";
  EXPECT_THROW(DisegnoBreak(s), RunEnded);
  s.lblCrea[5].Caption = "0";
  s.lblCrea[7].Caption = "r";
  EXPECT_THROW(DisegnoBreak(s), RunEnded);
  s.lblCrea[7].Caption = "2";
  s.lblCrea[10].BackColor = colours::selected;
  s.lblSfondoAttivo.Caption = "7";
  EXPECT_THROW(DisegnoBreak(s), RunEnded);
}

}  // namespace
}  // namespace caleidoscopio::test
