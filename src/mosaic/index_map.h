#pragma once

#include <array>
#include <cstdint>

namespace caleidoscopio {

inline constexpr int side = 21;        ///< cells in a row and in a column
inline constexpr int cellCount = 441;  ///< indices 1 to 441
inline constexpr int centre = 441;
inline constexpr int fieldEnd = 324;  ///< the last index of the four 9 by 9 quadrants

/// Row and column of a cell, 0 to 20 from the top left.
struct Place {
  int row = 0;
  int column = 0;
  constexpr bool operator==(const Place&) const = default;
};

// The numbering, drawn for the top left of the picture. Four consecutive indices b, b+1, b+2, b+3
// are one quartet, the mirror images of one cell in this order:
//
//        col 0   1   2  ..  9   10            b   | b+1
//   row 0  437 365 369 .. 397  325          ------+------
//       1  401   1   5 ..  33  329           b+3  | b+2
//       2  405  37  41 ..  69  333
//      ..                                   (on the arms: top, right, bottom, left)
//       9  433 289 293 .. 321  361
//      10  328 332 336 .. 364  441

/// The index of a cell, 1 to 441.
constexpr int indexAt(Place p) {
  const int r = p.row <= 10 ? p.row : 20 - p.row;
  const int c = p.column <= 10 ? p.column : 20 - p.column;
  if (r == 10 && c == 10) return centre;
  if (c == 10) return 325 + 4 * r + (p.row < 10 ? 0 : 2);
  if (r == 10) return 325 + 4 * c + (p.column > 10 ? 1 : 3);
  const int member = p.row < 10 ? (p.column < 10 ? 0 : 1) : (p.column < 10 ? 3 : 2);
  if (r == 0 && c == 0) return 437 + member;
  if (r == 0) return 365 + 4 * (c - 1) + member;
  if (c == 0) return 401 + 4 * (r - 1) + member;
  return 1 + 4 * (9 * (r - 1) + (c - 1)) + member;
}

/// Where each index lies; element 0 is none. Made from indexAt, so that the two cannot disagree.
inline constexpr std::array<Place, cellCount + 1> places = [] {
  std::array<Place, cellCount + 1> all{};
  for (int row = 0; row < side; ++row)
    for (int column = 0; column < side; ++column)
      all[static_cast<std::size_t>(indexAt({row, column}))] = {row, column};
  return all;
}();

/// Row and column of the cell `index`, 1 to 441.
constexpr Place placeOf(int index) {
  return places[static_cast<std::size_t>(index)];
}

/// The first index of the quartet that a cell, 1 to 440, belongs to.
constexpr int baseOf(int index) {
  return index - (index - 1) % 4;
}

/// The leader of the field quartet at quadrant row and column, each 1 to 9; 1 lies next to the
/// frame, 9 next to the cross.
constexpr int leaderAt(int row, int column) {
  return 1 + 36 * (row - 1) + 4 * (column - 1);
}

}  // namespace caleidoscopio
