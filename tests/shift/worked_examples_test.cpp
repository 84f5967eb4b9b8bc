#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "shift/shift.h"
#include "support/digit_field.h"
#include "support/hands.h"
#include "support/rig.h"

namespace caleidoscopio::test {
namespace {

struct At {
  int row, column;
};

/// A field of slot 0 with some quartets painted, moved some steps by a mode.
struct WorkedExamples : testing::Test {
  /// Where a quartet painted at `from` stands after `steps` steps.
  testing::AssertionResult goes(const char* code, At from, int steps, At to) {
    Rig rig;
    paintQuartet(rig.s, from.row, from.column, 3);
    const Rows before = quadrantOf(rig.s);
    Rows expected(9, std::string(9, '0'));
    expected[static_cast<std::size_t>(to.row - 1)][static_cast<std::size_t>(to.column - 1)] = '3';
    rig.s.lblSomma.Caption = code;
    for (int n = 0; n < steps; ++n) tick(rig.s.TmrGoA);
    return becomes(before, quadrantOf(rig.s), expected);
  }
  testing::AssertionResult turns(const char* code, const Rows& before, const Rows& expected) {
    Rig rig;
    drawQuadrant(rig.s, before);
    rig.s.lblSomma.Caption = code;
    tick(rig.s.TmrGoA);
    return becomes(before, quadrantOf(rig.s), expected);
  }
};

TEST_F(WorkedExamples, Mode101BringsTheOuterQuartetToTheInnerEndInEightStepsAndHomeInNine) {
  EXPECT_TRUE(goes("101", {1, 1}, 1, {1, 2}));
  EXPECT_TRUE(goes("101", {1, 1}, 8, {1, 9}));
  EXPECT_TRUE(goes("101", {1, 1}, 9, {1, 1}));
}

TEST_F(WorkedExamples, Mode102MovesRowOneInwardAndRowTwoOutward) {
  EXPECT_TRUE(goes("102", {1, 1}, 1, {1, 2}));
  EXPECT_TRUE(goes("102", {2, 1}, 1, {2, 9}));
}

TEST_F(WorkedExamples, Mode105MovesColumnOneInwardAndColumnTwoOutward) {
  EXPECT_TRUE(goes("105", {1, 1}, 1, {2, 1}));
  EXPECT_TRUE(goes("105", {1, 2}, 1, {9, 2}));
}

TEST_F(WorkedExamples, Mode103MovesTheMiddleBandAgainstTheOthers) {
  const Rows before{"300000000", "000000000", "000000003", "300000000", "030000000",
                    "000000003", "300000000", "000000000", "000000003"};
  const Rows expected{"030000000", "000000000", "300000000", "000000003", "300000000",
                      "000000030", "030000000", "000000000", "300000000"};
  EXPECT_TRUE(turns("103", before, expected));
  EXPECT_TRUE(turns("203", expected, before));
}

TEST_F(WorkedExamples, Mode104MovesTowardsTheCentreInAllFourQuadrants) {
  Rig rig;
  paintQuartet(rig.s, 4, 2, 3);
  rig.s.lblSomma.Caption = "104";
  const Rows before = fieldOf(rig.s);
  tick(rig.s.TmrGoA);
  Rows expected(21, std::string(21, '0'));
  expected[5][2] = expected[5][18] = expected[15][2] = expected[15][18] = '3';
  EXPECT_TRUE(becomes(before, fieldOf(rig.s), expected));
}

TEST_F(WorkedExamples, Mode107RunsDownTheDiagonalAndComesHomeInNine) {
  EXPECT_TRUE(goes("107", {1, 1}, 8, {9, 9}));
  EXPECT_TRUE(goes("107", {1, 1}, 9, {1, 1}));
  EXPECT_TRUE(goes("107", {9, 1}, 1, {1, 2}));
}

TEST_F(WorkedExamples, Mode107WritesItsSecondLineOverTheEdgesOfTheTorus) {
  const At line[] = {{9, 1}, {1, 2}, {2, 3}, {3, 4}, {4, 5}, {5, 6}, {6, 7}, {7, 8}, {8, 9}};
  for (int k = 0; k < 9; ++k) EXPECT_TRUE(goes("107", line[k], 1, line[(k + 1) % 9]));
}

TEST_F(WorkedExamples, Mode108RunsUpTheRisingDiagonal) {
  EXPECT_TRUE(goes("108", {1, 1}, 1, {9, 2}));
  EXPECT_TRUE(goes("108", {5, 5}, 1, {4, 6}));
  EXPECT_TRUE(goes("208", {5, 5}, 1, {6, 4}));
}

TEST_F(WorkedExamples, Mode109GoesDownAtTheEndOfARowAndHomeFromTheInnerCorner) {
  EXPECT_TRUE(goes("109", {1, 9}, 1, {2, 9}));
  EXPECT_TRUE(goes("109", {2, 1}, 1, {3, 1}));
  EXPECT_TRUE(goes("109", {2, 5}, 1, {2, 4}));
  EXPECT_TRUE(goes("109", {9, 9}, 1, {1, 1}));
  EXPECT_TRUE(goes("209", {1, 1}, 1, {9, 9}));
}

TEST_F(WorkedExamples, Mode110GoesAcrossAtTheEndOfAColumn) {
  EXPECT_TRUE(goes("110", {9, 1}, 1, {9, 2}));
  EXPECT_TRUE(goes("110", {1, 2}, 1, {1, 3}));
  EXPECT_TRUE(goes("110", {9, 9}, 1, {1, 1}));
}

TEST_F(WorkedExamples, Mode112MovesBlocksWhole) {
  const Rows lowerMiddle{"000000000", "000000000", "000000000", "000000000", "000000000",
                         "000000000", "000123000", "000456000", "000321000"};
  const Rows middle{"000000000", "000000000", "000000000", "000123000", "000456000",
                    "000321000", "000000000", "000000000", "000000000"};
  EXPECT_TRUE(turns("112", lowerMiddle, middle));
  const Rows upperMiddle{"000123000", "000456000", "000321000", "000000000", "000000000",
                         "000000000", "000000000", "000000000", "000000000"};
  const Rows upperRight{"000000123", "000000456", "000000321", "000000000", "000000000",
                        "000000000", "000000000", "000000000", "000000000"};
  EXPECT_TRUE(turns("112", middle, upperMiddle));
  EXPECT_TRUE(turns("112", upperMiddle, upperRight));
}

TEST_F(WorkedExamples, Mode111BringsTheInnerBlockHomeToTheOuterCorner) {
  const Rows inner{"000000000", "000000000", "000000000", "000000000", "000000000",
                   "000000000", "000000123", "000000456", "000000321"};
  const Rows outer{"123000000", "456000000", "321000000", "000000000", "000000000",
                   "000000000", "000000000", "000000000", "000000000"};
  EXPECT_TRUE(turns("111", inner, outer));
  EXPECT_TRUE(turns("211", outer, inner));
}

TEST_F(WorkedExamples, WithoutDigitsTheDesignsDigitsFollowTheColoursAndTheDisplayHasNone) {
  Rig rig;
  paintQuartet(rig.s, 1, 1, 3);
  rig.s.lblSomma.Caption = "101";
  tick(rig.s.TmrGoA);
  EXPECT_EQ(rig.s.lblMiro2[leaderAt(1, 1)].Caption, "0");
  EXPECT_EQ(rig.s.lblMiro2[leaderAt(1, 2)].Caption, "3");
  EXPECT_EQ(rig.s.lblMiro[leaderAt(1, 2)].Caption, "");
}

TEST_F(WorkedExamples, WithoutDigitsMode111MovesTheDisplaysCaptionsAndMode109LeavesThem) {
  for (const auto& [code, moved] : {std::pair{"111", true}, {"109", false}}) {
    Rig rig;
    const int leader = leaderAt(1, 1);
    rig.s.lblMiro[leader].Caption = "x";
    rig.s.lblSomma.Caption = code;
    tick(rig.s.TmrGoA);
    EXPECT_EQ(rig.s.lblMiro[leader].Caption, moved ? "" : "x") << code;
    EXPECT_EQ(rig.s.lblMiro[leaderAt(1, 4)].Caption, moved ? "x" : "") << code;
    EXPECT_EQ(rig.s.lblMiro[leaderAt(1, 4) + 3].Caption, moved ? "x" : "") << code;
  }
}

TEST_F(WorkedExamples, ASlotsDigitThatWasSteppedIsWhatTheCommitWrites) {
  Rig rig;
  paintQuartet(rig.s, 1, 1, 3);
  rig.s.lblValore[3].Caption = "6";
  rig.s.lblSomma.Caption = "101";
  tick(rig.s.TmrGoA);
  EXPECT_EQ(rig.s.lblMiro2[leaderAt(1, 2)].Caption, "6");
}

}  // namespace
}  // namespace caleidoscopio::test
