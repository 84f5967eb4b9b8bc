#include <gtest/gtest.h>

#include "sequencer/columns.h"
#include "sequencer/sequencer_rig.h"

namespace caleidoscopio::test {
namespace {

constexpr int columnButton = 3, canc = 6, mem = 7;

/// lblSeq(7) "Mem" and lblSeq(6) "Canc": what they write, and where the cursor goes.
struct Writing : SequencerRig {
  /// What "Mem" writes at row 2 of a column.
  std::string stored(const char* column) {
    edit(column);
    cursorAt(2);
    pressAndRelease(s.lblSeq, mem);
    EXPECT_EQ(s.lblSeq[4].Caption, "3");
    return (*column == 'A' ? s.lblTmrA : *column == 'B' ? s.lblTmrB : s.lblTmrC)[2].Caption;
  }
};

TEST_F(Writing, MemInColumnAStoresFamilyAndDirection) {
  switchIn(1);
  for (int family = 1; family <= 12; ++family) {
    click(s.lblSposta, family);
    s.lblOraria.Caption = "Out";
    EXPECT_EQ(stored("A"), text(family) + "-Out");
    s.lblOraria.Caption = "In";
    EXPECT_EQ(stored("A"), text(family) + "-In");
  }
  s.lblOraria.Caption = "out";  // anything but "Out"
  EXPECT_EQ(stored("A"), "12-In");
}

TEST_F(Writing, MemInColumnBStoresTheModesNumber) {
  switchIn(2);
  for (int mode = 1; mode <= 6; ++mode) {
    s.lblTransf[0].Caption = text(mode);
    EXPECT_EQ(stored("B"), text(mode));
  }
}

TEST_F(Writing, MemInColumnCStoresALetterForEachOption) {
  switchIn(3);
  const std::pair<const char*, char> options[] = {{"Out", 'O'}, {"In", 'I'}, {"Off", 'X'}};
  for (const auto& [cross, first] : options)
    for (const auto& [frame, second] : options) {
      s.lblCorniceOpzio[1].Caption = cross;
      s.lblCorniceOpzio[2].Caption = frame;
      EXPECT_EQ(stored("C"), (std::string{first, ' ', '-', ' ', second}));
    }
}

TEST_F(Writing, MemOfAnUnknownFrameOptionLeavesTheCellAndStillAdvances) {
  switchIn(3);
  s.lblTmrC[2].Caption = "I - I";
  s.lblCorniceOpzio[1].Caption = "Out";
  s.lblCorniceOpzio[2].Caption = "out";
  EXPECT_EQ(stored("C"), "I - I");
  s.lblCorniceOpzio[1].Caption = "";
  s.lblCorniceOpzio[2].Caption = "In";
  EXPECT_EQ(stored("C"), "I - I");
}

TEST_F(Writing, MemWithTheTimerSwitchedOutStoresOff) {
  s.lblCorniceOpzio[1].Caption = "unknown";
  for (const char* column : {"A", "B", "C"}) EXPECT_EQ(stored(column), "OFF");
  // Its switch alone tells, and only one colour of it.
  for (int k = 1; k <= 3; ++k) s.cmdOnOff[k].BackColor = colours::selected;
  for (const char* column : {"A", "B", "C"}) EXPECT_EQ(stored(column), "OFF");
}

TEST_F(Writing, CancClearsTheCellOfTheEditedColumnAndAdvances) {
  for (const char* column : {"A", "B", "C"}) {
    edit(column);
    cursorAt(2);
    pressAndRelease(s.lblSeq, canc);
    EXPECT_EQ(s.lblSeq[4].Caption, "3");
  }
  EXPECT_EQ(s.lblTmrA[2].Caption, "- - -");
  EXPECT_EQ(s.lblTmrB[2].Caption, "- - -");
  EXPECT_EQ(s.lblTmrC[2].Caption, "- - -");
  EXPECT_EQ(s.lblTmrA[3].Caption, "12-In");
}

TEST_F(Writing, OnlyTheEditedColumnIsWritten) {
  edit("B");
  cursorAt(3);
  pressAndRelease(s.lblSeq, canc);
  EXPECT_EQ(s.lblTmrA[3].Caption, "12-In");
  EXPECT_EQ(s.lblTmrB[3].Caption, "- - -");
  EXPECT_EQ(s.lblTmrC[3].Caption, "O - O");
}

TEST_F(Writing, TheCursorsMarksGoOnWithIt) {
  edit("C");
  cursorAt(2);
  paint(s.lblTmrC, inRange(4, 2));
  paint(s.lblNOrdine, inRange(0, 2));
  press(s.lblSeq, mem);
  EXPECT_EQ(marks(s.lblTmrC), inRange(4, 3));
  EXPECT_EQ(marks(s.lblNOrdine), inRange(0, 3));
  EXPECT_EQ(marks(s.lblTmrA), inRange(4, 4));  // as they came up
  EXPECT_EQ(marks(s.lblTmrB), inRange(4));
}

TEST_F(Writing, OnTheLastRowMemAndCancGoToTheFirst) {
  for (const int button : {mem, canc}) {
    cursorAt(4);
    pressAndRelease(s.lblSeq, button);
    EXPECT_EQ(s.lblSeq[4].Caption, "1");
    EXPECT_EQ(marks(s.lblTmrA), inRange(4, 1));
    EXPECT_EQ(marks(s.lblNOrdine), inRange(0, 1));
  }
}

TEST_F(Writing, ThePressWritesAndTheReleaseOnlyTurnsTheButtonWhite) {
  for (const int button : {mem, canc}) {
    cursorAt(1);
    press(s.lblSeq, button);
    EXPECT_EQ(s.lblSeq[button].BackColor, colours::pressed);
    EXPECT_EQ(cursor(), 2);
    release(s.lblSeq, button);
    click(s.lblSeq, button);
    EXPECT_EQ(s.lblSeq[button].BackColor, colours::unselected);
    EXPECT_EQ(cursor(), 2);
  }
}

// The fence is the sequencer's own timer, not the run.
TEST_F(Writing, TheTableCanBeWrittenDuringARunWithTheSequencerOut) {
  click(s.cmdGoTimer);
  cursorAt(1);
  pressAndRelease(s.lblSeq, canc);
  EXPECT_EQ(s.lblTmrA[1].Caption, "- - -");
}

struct EditedColumn : SequencerRig {
  std::string headings() const {
    std::string lit;
    for (const int heading : {12, 13, 19}) {
      const Colour back = s.lblScritteVarie[heading].BackColor;
      lit += back == colours::selected ? '#' : back == colours::unselected ? '.' : '?';
    }
    return lit;
  }
};

TEST_F(EditedColumn, EachPressGoesOnFromAToBToCAndBackToA) {
  const std::pair<const char*, const char*> states[] = {{"B", ".#."}, {"C", "..#"}, {"A", "#.."}};
  for (const auto& [column, lit] : states) {
    press(s.lblSeq, columnButton);
    EXPECT_EQ(s.lblSeq[columnButton].BackColor, colours::pressed);
    EXPECT_EQ(s.lblSeq[columnButton].Caption, column);
    EXPECT_EQ(headings(), lit);
    release(s.lblSeq, columnButton);
    click(s.lblSeq, columnButton);
    EXPECT_EQ(s.lblSeq[columnButton].BackColor, colours::unselected);
    EXPECT_EQ(s.lblSeq[columnButton].Caption, column);
  }
}

TEST_F(EditedColumn, TheMarkMovesIntoTheNewColumn) {
  cursorAt(3);
  paint(s.lblTmrA, inRange(4, 3));
  press(s.lblSeq, columnButton);
  EXPECT_EQ(marks(s.lblTmrA), inRange(4));
  EXPECT_EQ(marks(s.lblTmrB), inRange(4, 3));
  EXPECT_EQ(marks(s.lblTmrC), inRange(4));
  press(s.lblSeq, columnButton);
  EXPECT_EQ(marks(s.lblTmrB), inRange(4));
  EXPECT_EQ(marks(s.lblTmrC), inRange(4, 3));
}

TEST_F(EditedColumn, TheColumnLeftIsRepaintedToTheProgrammesLastRowAndNoFurther) {
  paint(s.lblTmrA, "........................");
  s.lblTmrA[5].BackColor = colours::selected;
  press(s.lblSeq, columnButton);
  EXPECT_EQ(marks(s.lblTmrA), "++++#...................");
}

}  // namespace
}  // namespace caleidoscopio::test
