#include <gtest/gtest.h>

#include "sequencer/sequencer_rig.h"
#include "support/snapshot.h"

namespace caleidoscopio::test {
namespace {

/// lblSeq(5), the number of rows in the programme.
struct Length : SequencerRig {
  static constexpr int button = 5;
  const std::string allInRange = inRange(24);

  void paintAll(const std::string& rows) {
    paint(s.lblTmrA, rows);
    paint(s.lblTmrB, rows);
    paint(s.lblTmrC, rows);
  }
  void fullTableWithCursorAt(int row) {
    lengthIs(24);
    cursorAt(row);
    paintAll(allInRange);
  }
};

TEST_F(Length, AShortPressGrowsItByExactlyOneAtTheRelease) {
  press(s.lblSeq, button);
  EXPECT_EQ(s.lblSeq[button].BackColor, colours::pressed);
  s.time.advance(149);
  EXPECT_EQ(length(), 4);
  release(s.lblSeq, button);
  click(s.lblSeq, button);
  EXPECT_EQ(s.lblSeq[button].BackColor, colours::unselected);
  EXPECT_EQ(length(), 5);
  s.time.advance(1000);
  EXPECT_EQ(length(), 5);
}

TEST_F(Length, HeldItGrowsEvery150MsAndOnceMoreAtTheRelease) {
  press(s.lblSeq, button);
  s.time.advance(450);
  EXPECT_EQ(length(), 7);
  release(s.lblSeq, button);
  EXPECT_EQ(length(), 8);
}

TEST_F(Length, ATickPutsTheNewRowInRangeInAllThreeColumns) {
  paintAll(inRange(4, 2));
  tick(s.TmrStepTotali);
  EXPECT_EQ(marks(s.lblTmrA), inRange(5, 2));
  EXPECT_EQ(marks(s.lblTmrB), inRange(5, 2));
  EXPECT_EQ(marks(s.lblTmrC), inRange(5, 2));
}

TEST_F(Length, From24ATickFallsBackToTheCursor) {
  fullTableWithCursorAt(7);
  edit("C");
  tick(s.TmrStepTotali);
  EXPECT_EQ(s.lblSeq[5].Caption, "7");
  EXPECT_EQ(marks(s.lblTmrA), inRange(7));
  EXPECT_EQ(marks(s.lblTmrB), inRange(7));
  EXPECT_EQ(marks(s.lblTmrC), inRange(7, 7));
}

// The rows above stay cyan in column C alone: a trait of the tick.
TEST_F(Length, From24WithTheCursorAt1ATickGives2RowsAndLeavesColumnCAsItWas) {
  fullTableWithCursorAt(1);
  s.lblTmrC[2].BackColor = colours::unselected;
  tick(s.TmrStepTotali);
  EXPECT_EQ(s.lblSeq[5].Caption, "2");
  EXPECT_EQ(marks(s.lblTmrA), inRange(2, 1));
  EXPECT_EQ(marks(s.lblTmrB), inRange(2));
  EXPECT_EQ(marks(s.lblTmrC), allInRange);
}

TEST_F(Length, From24WithTheCursorAt2ATickRepaintsAllThreeColumns) {
  fullTableWithCursorAt(2);
  tick(s.TmrStepTotali);
  EXPECT_EQ(s.lblSeq[5].Caption, "2");
  EXPECT_EQ(marks(s.lblTmrC), inRange(2));
}

TEST_F(Length, TheCursorOnRow24KeepsAllRows) {
  fullTableWithCursorAt(24);
  tick(s.TmrStepTotali);
  EXPECT_EQ(length(), 24);
}

TEST_F(Length, AReleaseRepaintsTheWholeTableAlsoWhereATickLeftColumnC) {
  fullTableWithCursorAt(1);
  press(s.lblSeq, button);
  s.time.advance(150);
  EXPECT_EQ(marks(s.lblTmrC), allInRange);
  release(s.lblSeq, button);
  EXPECT_EQ(length(), 3);
  EXPECT_EQ(marks(s.lblTmrA), inRange(3, 1));
  EXPECT_EQ(marks(s.lblTmrB), inRange(3));
  EXPECT_EQ(marks(s.lblTmrC), inRange(3));
}

TEST_F(Length, AReleaseThatWrapsTo2RepaintsAllThreeColumns) {
  fullTableWithCursorAt(1);
  edit("B");
  pressAndRelease(s.lblSeq, button);
  EXPECT_EQ(length(), 2);
  EXPECT_EQ(marks(s.lblTmrA), inRange(2));
  EXPECT_EQ(marks(s.lblTmrB), inRange(2, 1));
  EXPECT_EQ(marks(s.lblTmrC), inRange(2));
}

TEST_F(Length, AReleaseRepaintsWhateverColoursStoodThere) {
  paintAll(std::string(24, '#'));
  cursorAt(3);
  pressAndRelease(s.lblSeq, button);
  EXPECT_EQ(marks(s.lblTmrA), inRange(5, 3));
  EXPECT_EQ(marks(s.lblTmrB), inRange(5));
  EXPECT_EQ(marks(s.lblTmrC), inRange(5));
}

TEST_F(Length, AReleaseInARunStopsTheRepeatTurnsWhiteAndDoesNothingElse) {
  press(s.lblSeq, button);
  goWithSequencer();
  const Snapshot expected = snapshotOf(s);
  release(s.lblSeq, button);
  EXPECT_FALSE(s.TmrStepTotali.Enabled());
  EXPECT_EQ(s.lblSeq[button].BackColor, colours::unselected);
  s.lblSeq[button].BackColor = colours::pressed;
  s.TmrStepTotali.setEnabled(true);
  EXPECT_TRUE(unchangedSince(expected, s));
}

// Only a memory brings a length above 24: it neither grows nor wraps.
TEST_F(Length, Above24ATickDoesNothing) {
  lengthIs(25);
  const Snapshot before = snapshotOf(s);
  tick(s.TmrStepTotali);
  EXPECT_TRUE(unchangedSince(before, s));
}

}  // namespace
}  // namespace caleidoscopio::test
