#include <gtest/gtest.h>

#include "sequencer/sequencer_rig.h"
#include "support/snapshot.h"

namespace caleidoscopio::test {
namespace {

/// The fills, the cursor's buttons, and what works only while the sequencer is off.
using TableTools = SequencerRig;

TEST_F(TableTools, AFillWritesOffToThe24RowsOfItsColumn) {
  const int buttons[] = {9, 10, 13};
  for (int filled = 0; filled < 3; ++filled) {
    for (int row = 0; row <= 24; ++row) put(row, "a", "b", "c");
    pressAndRelease(s.lblSeq, buttons[filled]);
    for (int row = 1; row <= 24; ++row) {
      EXPECT_EQ(s.lblTmrA[row].Caption, filled == 0 ? "OFF" : "a") << row;
      EXPECT_EQ(s.lblTmrB[row].Caption, filled == 1 ? "OFF" : "b") << row;
      EXPECT_EQ(s.lblTmrC[row].Caption, filled == 2 ? "OFF" : "c") << row;
    }
    // The heading is no row: its "OFF" would keep the sequencer from being switched in.
    EXPECT_EQ(s.lblTmrA[0].Caption + s.lblTmrB[0].Caption + s.lblTmrC[0].Caption, "abc");
  }
}

TEST_F(TableTools, AFillActsAtTheClickAndLightsAtThePress) {
  for (const int button : {9, 10, 13}) {
    const std::string before = s.lblTmrA[1].Caption + s.lblTmrB[1].Caption + s.lblTmrC[1].Caption;
    press(s.lblSeq, button);
    EXPECT_EQ(s.lblSeq[button].BackColor, colours::pressed);
    release(s.lblSeq, button);
    EXPECT_EQ(s.lblSeq[button].BackColor, colours::unselected);
    EXPECT_EQ(s.lblTmrA[1].Caption + s.lblTmrB[1].Caption + s.lblTmrC[1].Caption, before);
    click(s.lblSeq, button);
    EXPECT_NE(s.lblTmrA[1].Caption + s.lblTmrB[1].Caption + s.lblTmrC[1].Caption, before);
  }
}

// The click has no test of the run; the colour of the press has.
TEST_F(TableTools, AFillWorksDuringARunButDoesNotLight) {
  goWithSequencer();
  for (const int button : {9, 10, 13}) {
    press(s.lblSeq, button);
    EXPECT_EQ(s.lblSeq[button].BackColor, colours::unselected);
    release(s.lblSeq, button);
    click(s.lblSeq, button);
  }
  for (int row = 1; row <= 24; ++row)
    EXPECT_EQ(s.lblTmrA[row].Caption + s.lblTmrB[row].Caption + s.lblTmrC[row].Caption,
              "OFFOFFOFF");
}

TEST_F(TableTools, CFillsAllThreeColumnsDuringARunToo) {
  for (const bool inARun : {false, true}) {
    if (inARun) goWithSequencer();
    for (int row = 0; row <= 24; ++row) put(row, "a", "b", "c");
    press(s.lblNOrdine, 25);
    EXPECT_EQ(s.lblNOrdine[25].BackColor, colours::pressed);
    EXPECT_EQ(s.lblTmrA[1].Caption, "a");
    release(s.lblNOrdine, 25);
    EXPECT_EQ(s.lblNOrdine[25].BackColor, colours::unselected);
    EXPECT_EQ(s.lblTmrA[1].Caption, "a");
    click(s.lblNOrdine, 25);
    for (int row = 1; row <= 24; ++row)
      EXPECT_EQ(s.lblTmrA[row].Caption + s.lblTmrB[row].Caption + s.lblTmrC[row].Caption,
                "OFFOFFOFF");
    EXPECT_EQ(s.lblTmrA[0].Caption + s.lblTmrB[0].Caption + s.lblTmrC[0].Caption, "abc");
  }
}

TEST_F(TableTools, WhileTheSequencerIsOnAPressOnAnyToolOfTheTableDoesNothing) {
  goWithSequencer();
  const Snapshot before = snapshotOf(s);
  for (const int button : {3, 5, 6, 7, 9, 10, 11, 13}) {
    press(s.lblSeq, button);
    EXPECT_TRUE(unchangedSince(before, s)) << button;
    release(s.lblSeq, button);
    EXPECT_TRUE(unchangedSince(before, s)) << button;
  }
}

TEST_F(TableTools, AReleaseTurnsAButtonWhiteAlsoWhileTheSequencerIsOn) {
  goWithSequencer();
  for (const int button : {3, 5, 6, 7, 9, 10, 13}) {
    s.lblSeq[button].BackColor = colours::pressed;
    release(s.lblSeq, button);
    EXPECT_EQ(s.lblSeq[button].BackColor, colours::unselected) << button;
  }
}

TEST_F(TableTools, TheShownValuesAndTheSpareButtonsTakeNoPress) {
  const Snapshot before = snapshotOf(s);
  for (const int label : {0, 4, 8, 12}) pressAndRelease(s.lblSeq, label);
  for (int row = 0; row <= 24; ++row) {
    pressAndRelease(s.lblNOrdine, row);
    pressAndRelease(s.lblTmrA, row);
    pressAndRelease(s.lblTmrB, row);
    pressAndRelease(s.lblTmrC, row);
  }
  EXPECT_TRUE(unchangedSince(before, s));
}

/// lblAvanza(0) "-" and lblAvanza(1) "+".
struct Cursor : SequencerRig {
  enum Button { back = 0, on = 1 };
  void hold(Button button, std::uint64_t ms) {
    press(s.lblAvanza, button);
    s.time.advance(ms);
    release(s.lblAvanza, button);
    click(s.lblAvanza, button);
  }
};

TEST_F(Cursor, AClickShorterThanATickMovesNothing) {
  cursorAt(2);
  for (const Button button : {back, on}) {
    press(s.lblAvanza, button);
    EXPECT_EQ(s.lblAvanza[button].BackColor, colours::pressed);
    s.time.advance(99);
    release(s.lblAvanza, button);
    EXPECT_EQ(s.lblAvanza[button].BackColor, colours::idle);
    s.time.advance(1000);
    EXPECT_EQ(cursor(), 2);
  }
}

TEST_F(Cursor, AHeldButtonMovesItEvery100Ms) {
  lengthIs(9);
  cursorAt(4);
  hold(on, 350);
  EXPECT_EQ(cursor(), 7);
  hold(back, 100);
  EXPECT_EQ(cursor(), 6);
}

TEST_F(Cursor, ItWrapsAtBothEndsOfTheProgramme) {
  cursorAt(4);
  hold(on, 100);
  EXPECT_EQ(cursor(), 1);
  hold(back, 100);
  EXPECT_EQ(cursor(), 4);
}

TEST_F(Cursor, ItTakesTheMarksOfItsRowAndOfTheEditedColumnAlong) {
  edit("B");
  cursorAt(1);
  paint(s.lblTmrB, inRange(4, 1));
  paint(s.lblNOrdine, inRange(0, 1));
  hold(back, 100);
  EXPECT_EQ(marks(s.lblTmrB), inRange(4, 4));
  EXPECT_EQ(marks(s.lblNOrdine), inRange(0, 4));
  hold(on, 200);
  EXPECT_EQ(marks(s.lblTmrB), inRange(4, 2));
  EXPECT_EQ(marks(s.lblNOrdine), inRange(0, 2));
  EXPECT_EQ(marks(s.lblTmrA), inRange(4, 4));  // as they came up
  EXPECT_EQ(marks(s.lblTmrC), inRange(4));
}

// Both held, "+" has it.
TEST_F(Cursor, ATickGoesBackUnlessPlusIsHeld) {
  cursorAt(2);
  tick(s.TmrAvanza);
  EXPECT_EQ(cursor(), 1);
  s.lblAvanza[back].BackColor = s.lblAvanza[on].BackColor = colours::pressed;
  tick(s.TmrAvanza);
  EXPECT_EQ(cursor(), 2);
}

TEST_F(Cursor, ItMovesDuringARunToo) {
  allOff();
  lengthIs(6);
  cursorAt(2);
  goWithSequencer();
  hold(on, 200);
  EXPECT_EQ(cursor(), 4);
  s.time.advance(1800);
  EXPECT_EQ(cursor(), 5);
}

// Back from the first row goes by its text, on from the last one by its number.
TEST_F(Cursor, OnlyTheText1IsTheFirstRowButAnyTextOfTheLengthIsTheLast) {
  s.lblSeq[4].Caption = "01";
  hold(back, 100);
  EXPECT_EQ(s.lblSeq[4].Caption, "0");
  s.lblSeq[4].Caption = "04";
  hold(on, 100);
  EXPECT_EQ(s.lblSeq[4].Caption, "1");
}

TEST_F(Cursor, BeyondTheLastRowItDoesNotWrap) {
  cursorAt(6);
  hold(on, 100);
  EXPECT_EQ(cursor(), 7);
  hold(back, 100);
  EXPECT_EQ(cursor(), 6);
}

}  // namespace
}  // namespace caleidoscopio::test
