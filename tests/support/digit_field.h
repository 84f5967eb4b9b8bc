#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "instrument.h"
#include "mosaic/cells.h"

namespace caleidoscopio::test {

// Fields drawn as rows of digits. A digit is the slot that has the cell's colour; `.` stands for a
// colour of no slot, and in a quadrant `!` for a quartet whose four cells differ.

using Rows = std::vector<std::string>;

inline char digitOf(const Store& s, const Label& cell) {
  for (int k = 0; k <= 6; ++k)
    if (cell.BackColor == s.lblValore[k].BackColor) return static_cast<char>('0' + k);
  return '.';
}

/// The display plane, 21 rows of 21.
inline Rows fieldOf(const Store& s) {
  Rows rows(side, std::string(side, ' '));
  for (int i = 1; i <= cellCount; ++i) {
    const Place at = placeOf(i);
    rows[static_cast<std::size_t>(at.row)][static_cast<std::size_t>(at.column)] =
        digitOf(s, s.lblMiro[i]);
  }
  return rows;
}

/// The 81 quartets of the field, 9 rows of 9, as the top left quadrant shows them.
inline Rows quadrantOf(const Store& s) {
  Rows rows(9, std::string(9, ' '));
  for (int r = 1; r <= 9; ++r)
    for (int c = 1; c <= 9; ++c) {
      char digit = digitOf(s, s.lblMiro[leaderAt(r, c)]);
      for (int m = 1; m <= 3; ++m)
        if (digitOf(s, s.lblMiro[leaderAt(r, c) + m]) != digit) digit = '!';
      rows[static_cast<std::size_t>(r - 1)][static_cast<std::size_t>(c - 1)] = digit;
    }
  return rows;
}

/// Paints cell i of both planes with slot k, as a tool would.
inline void paintCell(Store& s, int i, int k) {
  paintBothPlanes(s, i, s.lblValore[k], s.lblValore[k].Caption);
}

/// Paints one quartet of the field by quadrant row and column.
inline void paintQuartet(Store& s, int row, int column, int k) {
  for (int m = 0; m < 4; ++m) paintCell(s, leaderAt(row, column) + m, k);
}

/// Paints the whole quadrant from 9 rows of 9 digits.
inline void drawQuadrant(Store& s, const Rows& rows) {
  for (int r = 1; r <= 9; ++r)
    for (int c = 1; c <= 9; ++c)
      paintQuartet(s, r, c,
                   rows[static_cast<std::size_t>(r - 1)][static_cast<std::size_t>(c - 1)] - '0');
}

/// Compares two drawings, and on failure prints what stood before, what stands and what was meant.
inline testing::AssertionResult becomes(const Rows& before, const Rows& now, const Rows& expected) {
  if (now == expected) return testing::AssertionSuccess();
  auto failure = testing::AssertionFailure();
  const auto print = [&](std::string_view title, const Rows& rows) {
    failure << "\n" << title << ":\n";
    for (const std::string& row : rows) failure << "  " << row << "\n";
  };
  print("before", before);
  print("now", now);
  print("expected", expected);
  return failure;
}

}  // namespace caleidoscopio::test
