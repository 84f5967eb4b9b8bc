#pragma once

#include <gtest/gtest.h>

#include <string>

#include "panel/numbers.h"
#include "support/hands.h"
#include "support/rig.h"

namespace caleidoscopio::test {

/// An instrument before its start, with what the tests of the sequencer ask of its table.
struct SequencerRig : testing::Test, Rig {
  SequencerRig() { generator.otherwise = 0.0F; }

  std::int64_t cursor() const { return number(s, s.lblSeq[4]); }
  std::int64_t length() const { return number(s, s.lblSeq[5]); }
  void cursorAt(int row) { s.lblSeq[4].Caption = text(row); }
  void lengthIs(int rows) { s.lblSeq[5].Caption = text(rows); }
  void edit(const char* column) { s.lblSeq[3].Caption = column; }
  void put(int row, const char* a, const char* b, const char* c) {
    s.lblTmrA[row].Caption = a;
    s.lblTmrB[row].Caption = b;
    s.lblTmrC[row].Caption = c;
  }
  /// Every step holds all three timers off.
  void allOff() {
    for (int row = 1; row <= 24; ++row) put(row, "OFF", "OFF", "OFF");
  }
  void switchIn(int k) { s.cmdOnOff[k].BackColor = colours::running; }
  bool switchedIn(int k) const { return s.cmdOnOff[k].BackColor == colours::running; }
  /// Runs with the sequencer in.
  void goWithSequencer() {
    switchIn(5);
    click(s.cmdGoTimer);
  }

  /// The 24 rows of a column by their colours: `#` marked, `+` in range, `.` white, `?` any other.
  template <class Column>
  static std::string marks(const Column& column) {
    std::string rows;
    for (int row = 1; row <= 24; ++row) {
      const Colour back = column[row].BackColor;
      rows += back == colours::selected     ? '#'
              : back == colours::inRange    ? '+'
              : back == colours::unselected ? '.'
                                            : '?';
    }
    return rows;
  }
  /// What marks() says of a column whose first rows are in range, and one of its rows marked.
  static std::string inRange(int rows, int marked = 0) {
    std::string all(24, '.');
    for (int row = 1; row <= rows; ++row) all[static_cast<std::size_t>(row - 1)] = '+';
    if (marked) all[static_cast<std::size_t>(marked - 1)] = '#';
    return all;
  }
  /// Paints a column as marks() reads it.
  template <class Column>
  static void paint(Column& column, const std::string& rows) {
    for (int row = 1; row <= 24; ++row) {
      const char mark = rows[static_cast<std::size_t>(row - 1)];
      column[row].BackColor = mark == '#'   ? colours::selected
                              : mark == '+' ? colours::inRange
                                            : colours::unselected;
    }
  }
};

}  // namespace caleidoscopio::test
