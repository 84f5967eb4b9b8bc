#include <gtest/gtest.h>

#include "sequencer/sequencer_rig.h"
#include "support/snapshot.h"

namespace caleidoscopio::test {
namespace {

/// What Go, Stop and the switch do to the programme.
struct ProgrammeRun : SequencerRig {
  ProgrammeRun() { allOff(); }
  void stop() { click(s.cmdGoTimer); }
};

// Row 1 is left out of both loops of Go, so that it keeps what it had.
TEST_F(ProgrammeRun, GoMarksTheTableButForRow1) {
  for (auto* column : {&s.lblTmrA, &s.lblTmrB, &s.lblTmrC}) {
    for (int row = 1; row <= 24; ++row) (*column)[row].BackColor = colours::black;
  }
  for (int row = 1; row <= 24; ++row) s.lblNOrdine[row].BackColor = colours::black;
  lengthIs(6);
  cursorAt(3);
  goWithSequencer();
  EXPECT_EQ(marks(s.lblTmrA), "?+#+++..................");
  EXPECT_EQ(marks(s.lblTmrB), "?+#+++..................");
  EXPECT_EQ(marks(s.lblTmrC), "?+#+++..................");
  EXPECT_EQ(marks(s.lblNOrdine), "?.#.....................");
}

TEST_F(ProgrammeRun, GoMarksRow1WhenTheCursorIsThere) {
  cursorAt(1);
  goWithSequencer();
  EXPECT_EQ(marks(s.lblTmrA), inRange(4, 1));
  EXPECT_EQ(marks(s.lblTmrB), inRange(4, 1));
  EXPECT_EQ(marks(s.lblTmrC), inRange(4, 1));
  EXPECT_EQ(marks(s.lblNOrdine), inRange(0, 1));
}

TEST_F(ProgrammeRun, GoWithTheSequencerOutLeavesTheTable) {
  paint(s.lblTmrA, std::string(24, '#'));
  click(s.cmdGoTimer);
  EXPECT_EQ(marks(s.lblTmrA), std::string(24, '#'));
  EXPECT_FALSE(s.TmrSequencer.Enabled());
}

TEST_F(ProgrammeRun, AfterStopGoRunsTheStepOnceMoreThatWasInForce) {
  put(2, "9-In", "OFF", "OFF");
  put(3, "4-Out", "OFF", "OFF");
  cursorAt(2);
  goWithSequencer();
  s.time.advance(2000);
  EXPECT_EQ(s.lblSomma.Caption, "109");
  stop();
  EXPECT_EQ(s.lblSeq[4].Caption, "2");
  click(s.lblSposta, 1);
  click(s.cmdGoTimer);
  s.time.advance(2000);
  EXPECT_EQ(s.lblSomma.Caption, "109");
}

TEST_F(ProgrammeRun, StopUnmarksTheOtherColumnsInTheRowThatTheCursorGoesTo) {
  struct Case {
    const char* edited;
    bool a, b, c;  ///< marked still
  };
  for (const Case& one : {Case{"A", true, false, false}, Case{"B", false, true, false},
                          Case{"C", false, false, true}}) {
    edit(one.edited);
    cursorAt(2);
    goWithSequencer();
    s.time.advance(2000);  // row 2 is in force, the cursor on row 3
    stop();
    EXPECT_EQ(cursor(), 2);
    EXPECT_EQ(marks(s.lblTmrA), inRange(4, one.a ? 2 : 0)) << one.edited;
    EXPECT_EQ(marks(s.lblTmrB), inRange(4, one.b ? 2 : 0)) << one.edited;
    EXPECT_EQ(marks(s.lblTmrC), inRange(4, one.c ? 2 : 0)) << one.edited;
    EXPECT_EQ(marks(s.lblNOrdine), inRange(0, 2)) << one.edited;
    s.cmdOnOff[5].BackColor = colours::pressed;
  }
}

TEST_F(ProgrammeRun, AStopWithTheSequencerOutMovesTheCursorBackAllTheSame) {
  cursorAt(3);
  click(s.cmdGoTimer);
  stop();
  EXPECT_EQ(cursor(), 2);
}

TEST_F(ProgrammeRun, AStopWithTheSequencerOutAtCursor1PutsItOnTheLastRow) {
  lengthIs(6);
  cursorAt(1);
  paint(s.lblTmrB, std::string(24, '#'));
  click(s.cmdGoTimer);
  stop();
  EXPECT_EQ(s.lblSeq[4].Caption, "6");
  EXPECT_EQ(marks(s.lblTmrB), "#####+##################");
}

TEST_F(ProgrammeRun, SwitchedOutDuringARunItRewindsWithTheMarksOfStop) {
  cursorAt(2);
  goWithSequencer();
  s.time.advance(2000);
  click(s.cmdOnOff, 5);
  EXPECT_FALSE(s.TmrSequencer.Enabled());
  EXPECT_EQ(cursor(), 2);
  EXPECT_EQ(marks(s.lblTmrA), inRange(4, 2));
  EXPECT_EQ(marks(s.lblTmrB), inRange(4));
  EXPECT_EQ(marks(s.lblTmrC), inRange(4));
  stop();
  EXPECT_EQ(cursor(), 1);  // and Stop rewinds once more
}

TEST_F(ProgrammeRun, SwitchedInDuringARunItTurnsTimerAOnWhateverColumnASays) {
  click(s.cmdGoTimer);
  ASSERT_EQ(s.lblTmrA[cursor()].Caption, "OFF");
  click(s.cmdOnOff, 5);
  EXPECT_TRUE(s.TmrSequencer.Enabled());
  EXPECT_TRUE(s.TmrGoA.Enabled());
  EXPECT_FALSE(switchedIn(1));
}

TEST_F(ProgrammeRun, SwitchedInDuringARunUnderAHeadingOfOffItIsTurnedOff) {
  EXPECT_EQ(s.lblTmrA[0].Caption, "24 Out");
  s.lblTmrA[0].Caption = "OFF";
  click(s.cmdGoTimer);
  s.TmrSequencer.setEnabled(true);
  click(s.cmdOnOff, 5);
  EXPECT_TRUE(switchedIn(5));
  EXPECT_FALSE(s.TmrSequencer.Enabled());
  EXPECT_FALSE(s.TmrGoA.Enabled());
}

TEST_F(ProgrammeRun, SwitchedInWhileStoppedItWaitsForGo) {
  click(s.cmdOnOff, 5);
  EXPECT_FALSE(s.TmrSequencer.Enabled());
  s.time.advance(10000);
  EXPECT_EQ(cursor(), 4);
}

/// lblSeq(11): the table hidden, shown while stopped, shown always.
struct TableShown : SequencerRig {
  static constexpr int button = 11;
  void place(double width, double height) {
    platform.screen = {width, height};
    s.FraPannello.geometry(2).Left = {1};
  }
};

TEST_F(TableShown, EachPressStepsThroughTheThreeStates) {
  const std::pair<Colour, bool> states[] = {
      {colours::selected, true}, {colours::pressed, true}, {colours::unselected, false}};
  for (const auto& [back, shown] : states) {
    press(s.lblSeq, button);
    EXPECT_EQ(s.lblSeq[button].BackColor, back);
    EXPECT_EQ(s.FraPannello[2].Visible, shown);
    release(s.lblSeq, button);
    click(s.lblSeq, button);
    EXPECT_EQ(s.lblSeq[button].BackColor, back);
  }
}

TEST_F(TableShown, WithHideSelectedItIsPlacedOverTheFieldsLeftSideOnAnyScreen) {
  struct Case {
    double width, height, left;
  };
  for (const Case& one :
       {Case{15360, 11520, 2730}, Case{20490, 11520, 2565 + 2730}, Case{19200, 14400, 2730 * 1.25},
        Case{20490, 10800, 2730 * 20490 / 15360.}, Case{15360, 8640, 2730}}) {
    s.lblSeq[button].BackColor = colours::unselected;
    for (int visible = 0; visible < 2; ++visible) {
      place(one.width, one.height);
      press(s.lblSeq, button);
      EXPECT_DOUBLE_EQ(s.FraPannello.geometry(2).Left.value, one.left) << one.width;
    }
    place(one.width, one.height);
    press(s.lblSeq, button);  // hidden: it stays where it is
    EXPECT_EQ(s.FraPannello.geometry(2).Left.value, 1);
  }
}

TEST_F(TableShown, WithHideUnselectedItStaysWhereItIs) {
  s.lblHide.BackColor = colours::unselected;
  place(15360, 11520);
  for (int i = 0; i < 3; ++i) {
    press(s.lblSeq, button);
    EXPECT_EQ(s.FraPannello.geometry(2).Left.value, 1);
  }
}

TEST_F(TableShown, AThirdColourIsNoState) {
  s.lblSeq[button].BackColor = colours::black;
  const Snapshot before = snapshotOf(s);
  press(s.lblSeq, button);
  EXPECT_TRUE(unchangedSince(before, s));
}

TEST_F(TableShown, GoHidesItInTheFirstStateAndMovesItToTheEdgeInTheSecond) {
  press(s.lblSeq, button);
  click(s.cmdGoTimer);
  EXPECT_FALSE(s.FraPannello[2].Visible);
  click(s.cmdGoTimer);
  EXPECT_TRUE(s.FraPannello[2].Visible);
  EXPECT_EQ(s.FraPannello.geometry(2).Left.value, 2730);

  press(s.lblSeq, button);
  click(s.cmdGoTimer);
  EXPECT_TRUE(s.FraPannello[2].Visible);
  EXPECT_EQ(s.FraPannello.geometry(2).Left.value, 210);
  click(s.cmdGoTimer);
  EXPECT_EQ(s.FraPannello.geometry(2).Left.value, 2730);

  press(s.lblSeq, button);
  click(s.cmdGoTimer);
  click(s.cmdGoTimer);
  EXPECT_FALSE(s.FraPannello[2].Visible);
}

}  // namespace
}  // namespace caleidoscopio::test
