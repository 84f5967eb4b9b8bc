#include <gtest/gtest.h>

#include <vector>

#include "sequencer/sequencer_rig.h"
#include "support/run_end.h"

namespace caleidoscopio::test {
namespace {

/// Which row comes when, and how the table shows it.
struct StepOrder : SequencerRig {
  StepOrder() {
    // Each row names itself by its shift.
    for (int row = 1; row <= 24; ++row)
      put(row, (text((row - 1) % 12 + 1) + (row <= 12 ? "-In" : "-Out")).c_str(), "OFF", "OFF");
  }
  int rowInForce() const {
    return static_cast<int>(number(s, s.lblShift)) + (s.lblOraria.Caption == "In" ? 0 : 12);
  }
  std::vector<int> rowsOf(int steps) {
    std::vector<int> rows;
    for (int i = 0; i < steps; ++i) {
      s.time.advance(static_cast<std::uint64_t>(s.TmrSequencer.Interval()));
      rows.push_back(rowInForce());
    }
    return rows;
  }
};

TEST_F(StepOrder, TheProgrammeLoopsForEver) {
  lengthIs(3);
  cursorAt(1);
  goWithSequencer();
  EXPECT_EQ(rowsOf(10), (std::vector{1, 2, 3, 1, 2, 3, 1, 2, 3, 1}));
}

TEST_F(StepOrder, All24RowsComeInOrder) {
  lengthIs(24);
  cursorAt(1);
  goWithSequencer();
  const std::vector<int> rows = rowsOf(25);
  for (int i = 0; i < 25; ++i) EXPECT_EQ(rows[static_cast<std::size_t>(i)], i % 24 + 1);
}

TEST_F(StepOrder, TwoRowsWithTheCursorOnTheSecondRunTwoOneTwo) {
  lengthIs(2);
  cursorAt(2);
  goWithSequencer();
  EXPECT_EQ(rowsOf(1), std::vector{2});
  EXPECT_EQ(marks(s.lblTmrA), inRange(2, 2));
  // The row before the first is the last one.
  EXPECT_EQ(rowsOf(1), std::vector{1});
  EXPECT_EQ(marks(s.lblTmrA), inRange(2, 1));
  EXPECT_EQ(rowsOf(1), std::vector{2});
  EXPECT_EQ(marks(s.lblTmrA), inRange(2, 2));
}

TEST_F(StepOrder, AProgrammeOfOneRowRepeatsItAndMarksIt) {
  lengthIs(1);
  cursorAt(1);
  goWithSequencer();
  EXPECT_EQ(rowsOf(3), (std::vector{1, 1, 1}));
  EXPECT_EQ(marks(s.lblTmrA), inRange(1, 1));
}

TEST_F(StepOrder, TheFirstStepComesOneIntervalAfterGoAndEachLastsOneInterval) {
  cursorAt(2);
  goWithSequencer();
  s.time.advance(1999);
  EXPECT_EQ(rowInForce(), 13);  // as the panel came up
  s.time.advance(1);
  EXPECT_EQ(rowInForce(), 2);
  s.time.advance(1999);
  EXPECT_EQ(rowInForce(), 2);
  s.time.advance(1);
  EXPECT_EQ(rowInForce(), 3);
}

TEST_F(StepOrder, BetweenStepsTheCursorIsOnTheStepToComeAndTheMarksOnTheStepInForce) {
  lengthIs(4);
  cursorAt(3);
  goWithSequencer();
  rowsOf(1);
  EXPECT_EQ(s.lblSeq[4].Caption, "4");
  EXPECT_EQ(marks(s.lblTmrA), inRange(4, 3));
  EXPECT_EQ(marks(s.lblTmrB), inRange(4, 3));
  EXPECT_EQ(marks(s.lblTmrC), inRange(4, 3));
  EXPECT_EQ(marks(s.lblNOrdine), inRange(0, 3));
  rowsOf(1);
  EXPECT_EQ(s.lblSeq[4].Caption, "1");
  EXPECT_EQ(marks(s.lblTmrC), inRange(4, 4));
  EXPECT_EQ(marks(s.lblNOrdine), inRange(0, 4));
}

// Only a memory can put the cursor beyond the last row.
TEST_F(StepOrder, ACursorBeyondTheLastRowRunsItsRowOnceAndGoesToTheFirst) {
  lengthIs(4);
  cursorAt(6);
  goWithSequencer();
  EXPECT_EQ(rowsOf(3), (std::vector{6, 1, 2}));
}

TEST_F(StepOrder, ACursorOutsideTheTableEndsTheRunNamingTheRow) {
  goWithSequencer();
  cursorAt(25);
  EXPECT_TRUE(endsTheRun([this] { tick(s.TmrSequencer); }, {"lblTmrA(25)", "0 to 24"}));
  s.lblSeq[4].Caption = "last";
  EXPECT_TRUE(endsTheRun([this] { tick(s.TmrSequencer); }, {"lblSeq(4)", "\"last\""}));
}

// The length is asked for where the step needs it: before the marks on row 1, else at its end.
TEST_F(StepOrder, ALengthThatIsNoNumberEndsTheRunOnceTheStepIsDone) {
  goWithSequencer();
  cursorAt(3);
  s.lblSeq[5].Caption = "many";
  EXPECT_TRUE(endsTheRun([this] { tick(s.TmrSequencer); }, {"lblSeq(5)", "\"many\""}));
  EXPECT_EQ(rowInForce(), 3);
  cursorAt(1);
  EXPECT_TRUE(endsTheRun([this] { tick(s.TmrSequencer); }, {"lblSeq(5)", "\"many\""}));
  EXPECT_EQ(rowInForce(), 3);
}

}  // namespace
}  // namespace caleidoscopio::test
