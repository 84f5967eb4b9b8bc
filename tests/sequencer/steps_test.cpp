#include <gtest/gtest.h>

#include "sequencer/sequencer_rig.h"
#include "support/run_end.h"
#include "support/snapshot.h"

namespace caleidoscopio::test {
namespace {

/// What one step does to timers A, B and C. Each step here is one that falls due in a run.
struct Steps : SequencerRig {
  Steps() {
    allOff();
    goWithSequencer();
  }
  /// Runs one step of these three cells, with the cursor on row 3.
  void run(const char* a, const char* b, const char* c) {
    cursorAt(3);
    put(3, a, b, c);
    s.time.advance(2000);
  }
  void runA(const std::string& code) { run(code.c_str(), "OFF", "OFF"); }
  void runB(const std::string& code) { run("OFF", code.c_str(), "OFF"); }
  void runC(const std::string& code) { run("OFF", "OFF", code.c_str()); }

  /// The selector of a timer as one line, to see that a step left it alone.
  std::string shiftSettings() const {
    return s.lblOraria.Caption + " " + s.lblShift.Caption + " " + s.lblSomma.Caption + " " +
           s.lblMode[1].Caption + " " + s.lblVelo[1].Caption + " " + s.lblIntervalA[0].Caption;
  }
  std::string frameSettings() const {
    std::string all;
    for (int i = 1; i <= 2; ++i)
      all += s.lblCorniceOpzio[i].Caption + " " + toText(&backOfOption(i)) + " ";
    return all;
  }
  Colour& backOfOption(int i) const { return const_cast<Colour&>(s.lblCorniceOpzio[i].BackColor); }
};

TEST_F(Steps, EachOfThe24ShiftCodesSetsDirectionAndFamilyAndTurnsTimerAOn) {
  for (int family = 1; family <= 12; ++family)
    for (const std::string direction : {"In", "Out"}) {
      const std::string code = text(family) + "-" + direction;
      s.lblOraria.Caption = direction == "In" ? "Out" : "In";
      s.lblIntervalA[family].Caption = text(5000 + family);
      runA("OFF");
      runA(code);
      EXPECT_EQ(s.lblOraria.Caption, direction) << code;
      EXPECT_EQ(s.lblShift.Caption, text(family)) << code;
      EXPECT_EQ(s.lblSomma.Caption, text(family + (direction == "In" ? 100 : 200))) << code;
      for (int i = 1; i <= 24; ++i)
        EXPECT_EQ(s.lblSposta[i].BackColor, i == family ? colours::selected : colours::unselected)
            << code;
      EXPECT_TRUE(switchedIn(1)) << code;
      EXPECT_TRUE(s.TmrGoA.Enabled()) << code;
      EXPECT_EQ(s.TmrGoA.Interval(), 5000 + family) << code;
      EXPECT_EQ(s.lblVelo[1].Caption, text(5000 + family)) << code;
    }
}

TEST_F(Steps, EachOfTheSixModesIsChosenByItsNumberWithItsPanelAndSpeed) {
  struct Mode {
    const char* name;
    int panel;
  };
  const Mode modes[] = {{"Crea Disegno", 1}, {"Angoli", 7},   {"Lineare", 9},
                        {"Traccia", 3},      {"Aggrega", 10}, {"Scambia", 2}};
  for (int mode = 1; mode <= 6; ++mode) {
    s.lblInterv[mode].Caption = text(5000 + mode);
    runB("OFF");
    runB(text(mode));
    EXPECT_EQ(s.lblTransf[0].Caption, text(mode));
    EXPECT_EQ(s.lblMode[2].Caption, modes[mode - 1].name);
    for (int i = 1; i <= 12; ++i) {
      EXPECT_EQ(s.lblTransf[i].BackColor, i == mode ? colours::selected : colours::unselected)
          << mode;
      EXPECT_EQ(s.FraTransf[i].Visible, i == modes[mode - 1].panel) << mode;
    }
    EXPECT_TRUE(switchedIn(2)) << mode;
    EXPECT_TRUE(s.TmrGoB.Enabled()) << mode;
    EXPECT_EQ(s.TmrGoB.Interval(), 5000 + mode);
  }
}

// The spare elements 7 to 12 are buttons like the others, but no mode is behind them.
TEST_F(Steps, ANumberFrom7To12TurnsTimerBOnWithNoModeBehindIt) {
  for (int spare = 7; spare <= 12; ++spare) {
    runB("2");
    runB("OFF");
    runB(text(spare));
    EXPECT_EQ(s.lblTransf[0].Caption, text(spare));
    EXPECT_EQ(s.lblTransf[spare].BackColor, colours::selected);
    EXPECT_EQ(s.lblTransf[2].BackColor, colours::unselected);
    EXPECT_EQ(s.lblMode[2].Caption, "Angoli");
    for (int i = 1; i <= 12; ++i) EXPECT_FALSE(s.FraTransf[i].Visible) << spare;
    EXPECT_TRUE(s.TmrGoB.Enabled()) << spare;
    const Snapshot before = snapshotOf(s);
    tick(s.TmrGoB);
    EXPECT_TRUE(unchangedSince(before, s)) << spare;
  }
}

// A mode is chosen anew at each of its steps: Timer B begins a full period with the step.
TEST_F(Steps, AModeStepRestartsThePeriodOfTimerB) {
  lengthIs(2);
  cursorAt(1);
  put(1, "OFF", "7", "OFF");
  put(2, "OFF", "8", "OFF");
  s.lblVelo[2].Caption = "1500";
  s.time.advance(2000);
  EXPECT_EQ(s.time.nextDue(), 3500U);
  s.time.advance(2000);
  EXPECT_EQ(s.time.nextDue(), 5500U);
}

TEST_F(Steps, EachOfTheNineFrameCodesWritesBothOptionsAndTurnsTimerCOn) {
  struct Letter {
    char letter;
    const char* caption;
    Colour back;
  };
  const Letter letters[] = {
      {'O', "Out", colours::selected}, {'I', "In", colours::selected}, {'X', "Off", colours::idle}};
  for (const Letter& cross : letters)
    for (const Letter& frame : letters) {
      const std::string code = {cross.letter, ' ', '-', ' ', frame.letter};
      for (int i = 1; i <= 2; ++i) {
        s.lblCorniceOpzio[i].Caption = "?";
        s.lblCorniceOpzio[i].BackColor = colours::black;
      }
      runC("OFF");
      runC(code);
      EXPECT_EQ(s.lblCorniceOpzio[1].Caption, cross.caption) << code;
      EXPECT_EQ(s.lblCorniceOpzio[1].BackColor, cross.back) << code;
      EXPECT_EQ(s.lblCorniceOpzio[2].Caption, frame.caption) << code;
      EXPECT_EQ(s.lblCorniceOpzio[2].BackColor, frame.back) << code;
      EXPECT_TRUE(switchedIn(3)) << code;
      EXPECT_TRUE(s.TmrGoC.Enabled()) << code;
    }
}

// The frame's options are written as they stand, whatever ties them under the hand.
TEST_F(Steps, TheTieOfCrossAndFrameDoesNotReachASteppedOption) {
  s.lblSyn.BackColor = colours::selected;
  runC("I - X");
  EXPECT_EQ(s.lblCorniceOpzio[1].Caption, "In");
  EXPECT_EQ(s.lblCorniceOpzio[2].Caption, "Off");
}

TEST_F(Steps, OffSwitchesATimerOutAndLeavesItsSettings) {
  run("5-In", "OFF", "I - X");
  const std::string shift = shiftSettings();
  const std::string frame = frameSettings();
  for (int k = 1; k <= 3; ++k) switchIn(k);
  for (Timer* timer : {&s.TmrGoA, &s.TmrGoB, &s.TmrGoC}) timer->setEnabled(true);
  run("OFF", "OFF", "OFF");
  for (int k = 1; k <= 3; ++k) EXPECT_EQ(s.cmdOnOff[k].BackColor, colours::pressed) << k;
  for (const Timer* timer : {&s.TmrGoA, &s.TmrGoB, &s.TmrGoC}) EXPECT_FALSE(timer->Enabled());
  EXPECT_EQ(shiftSettings(), shift);
  EXPECT_EQ(frameSettings(), frame);
}

TEST_F(Steps, WhatIsNoShiftCodeLeavesTheShiftInForceAndTurnsTimerAOn) {
  runA("7-In");
  const std::string before = shiftSettings();
  for (const char* cell : {"- - -", "", "13-In", "0-In", "1-in", "01-In", "1-Out ", " 1-Out", "1",
                           "1-", "-In", "off", "24 Out"}) {
    runA("OFF");
    runA(cell);
    EXPECT_EQ(shiftSettings(), before) << '"' << cell << '"';
    EXPECT_TRUE(switchedIn(1)) << '"' << cell << '"';
    EXPECT_TRUE(s.TmrGoA.Enabled()) << '"' << cell << '"';
  }
}

TEST_F(Steps, WhatIsNoFrameCodeLeavesTheOptionsInForceAndTurnsTimerCOn) {
  runC("I - X");
  const std::string before = frameSettings();
  for (const char* cell :
       {"- - -", "", "O-O", "o - o", "O - Q", "Q - O", "O - O ", "O -  O", "O", "Off", "O - OO"}) {
    runC("OFF");
    runC(cell);
    EXPECT_EQ(frameSettings(), before) << '"' << cell << '"';
    EXPECT_TRUE(switchedIn(3)) << '"' << cell << '"';
    EXPECT_TRUE(s.TmrGoC.Enabled()) << '"' << cell << '"';
  }
}

TEST_F(Steps, AClearedTransformEndsTheRunAtTheStepThatReachesItNamingTheRowAndTheText) {
  lengthIs(4);
  cursorAt(1);
  put(2, "9-In", "- - -", "I - I");
  s.time.advance(2000);  // row 1 is harmless
  EXPECT_TRUE(endsTheRun([this] { s.time.advance(2000); }, {"lblTmrB(2)", "\"- - -\""}));
  // Column A had its turn, column C had not.
  EXPECT_EQ(s.lblSomma.Caption, "109");
  EXPECT_EQ(s.lblCorniceOpzio[1].Caption, "Out");
  EXPECT_EQ(cursor(), 2);
}

TEST_F(Steps, NoOtherTextOfColumnBIsMadeSafeEither) {
  for (const char* cell : {"", "x", "1-In", "1.5", "O - O", "off"})
    EXPECT_TRUE(endsTheRun([&] { runB(cell); }, {"lblTmrB(3)"})) << '"' << cell << '"';
  EXPECT_TRUE(endsTheRun([&] { runB("13"); }, {"lblTransf(13)"}));
}

TEST_F(Steps, AColumnTakenOutLeavesItsSelectionAloneAndForcesItsTimerOffAtEveryStep) {
  run("7-In", "OFF", "I - X");
  const std::string shift = shiftSettings();
  const std::string frame = frameSettings();
  for (int k = 0; k <= 2; ++k) pressAndRelease(s.lblDisattiva, k);
  for (int round = 0; round < 2; ++round) {
    for (int k = 1; k <= 3; ++k) switchIn(k);
    for (Timer* timer : {&s.TmrGoA, &s.TmrGoB, &s.TmrGoC}) timer->setEnabled(true);
    // With its column out, the cleared transform is harmless.
    run("12-Out", "- - -", "O - O");
    EXPECT_EQ(shiftSettings(), shift);
    EXPECT_EQ(frameSettings(), frame);
    for (int k = 1; k <= 3; ++k) EXPECT_EQ(s.cmdOnOff[k].BackColor, colours::pressed) << k;
    for (const Timer* timer : {&s.TmrGoA, &s.TmrGoB, &s.TmrGoC}) EXPECT_FALSE(timer->Enabled());
  }
}

TEST_F(Steps, AnyColourButWhiteTakesAColumnOut) {
  s.lblDisattiva[0].BackColor = colours::pressed;
  runA("12-In");
  EXPECT_FALSE(s.TmrGoA.Enabled());
  EXPECT_EQ(s.lblOraria.Caption, "Out");
}

}  // namespace
}  // namespace caleidoscopio::test
