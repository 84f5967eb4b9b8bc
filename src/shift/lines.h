#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "mosaic/index_map.h"

namespace caleidoscopio {

/// A quartet of the field by quadrant row and column, each 1 to 9. Growing means towards the
/// centre of the picture, in all four quadrants.
struct Quartet {
  int row = 0;
  int column = 0;
};

/// The 81 quartets of the field, laid out as lines of equal length. In one step what stands on a
/// place of a line goes to the next place, and what stands on the last comes round to the first.
struct Lines {
  std::array<std::int16_t, 81> leaders{};
  int length = 9;
  constexpr int count() const { return 81 / length; }
  constexpr std::span<const std::int16_t> line(int n) const {
    return std::span(leaders).subspan(static_cast<std::size_t>(n * length),
                                      static_cast<std::size_t>(length));
  }
};

/// Which of the nine rows or columns turn, in order: n inward, -n outward.
using Order = std::array<int, 9>;
constexpr Lines rows(const Order& order);
constexpr Lines columns(const Order& order);

/// A walk over the torus of the quadrant: `heads` are the last places of the nine lines, and each
/// place takes what stands `source` away from it, each axis wrapping by itself.
struct Heads {
  Quartet first;
  Quartet step;
};
constexpr Lines diagonals(Heads heads, Quartet source);

/// The serpentine through all 81 quartets from the outer corner to the inner one.
enum class Serpentine { ByRows, ByColumns };
constexpr Lines serpentine(Serpentine by);
/// The same with blocks of three by three quartets: nine lines, one for each place in a block.
constexpr Lines blockSerpentine(Serpentine by);

/// The lines walked the other way: the exact inverse of a step.
constexpr Lines reversed(const Lines& lines);

// ---- how they are made --------------------------------------------------------------------------

namespace lines_detail {

constexpr std::int16_t leader(Quartet q) {
  return static_cast<std::int16_t>(leaderAt(q.row, q.column));
}

constexpr Lines straight(const Order& order, bool byRows) {
  Lines lines;
  std::size_t at = 0;
  for (const int n : order)
    for (int k = 1; k <= 9; ++k) {
      const int along = n > 0 ? k : 10 - k;
      const int line = n > 0 ? n : -n;
      lines.leaders[at++] = leader(byRows ? Quartet{line, along} : Quartet{along, line});
    }
  return lines;
}

constexpr int wrapped(int n) {
  return (n + 8) % 9 + 1;
}

/// The n-th place, from 0, of a serpentine through a square of `size` by `size`.
constexpr Quartet serpentinePlace(int n, int size, Serpentine by) {
  const int line = n / size;
  const int along = line % 2 == 0 ? n % size : size - 1 - n % size;
  return by == Serpentine::ByRows ? Quartet{line + 1, along + 1} : Quartet{along + 1, line + 1};
}

}  // namespace lines_detail

constexpr Lines rows(const Order& order) {
  return lines_detail::straight(order, true);
}
constexpr Lines columns(const Order& order) {
  return lines_detail::straight(order, false);
}

constexpr Lines diagonals(Heads heads, Quartet source) {
  using namespace lines_detail;
  Lines lines;
  for (int n = 0; n < 9; ++n) {
    Quartet q{heads.first.row + n * heads.step.row, heads.first.column + n * heads.step.column};
    for (int k = 8; k >= 0; --k) {
      lines.leaders[static_cast<std::size_t>(n * 9 + k)] = leader(q);
      q = {wrapped(q.row + source.row), wrapped(q.column + source.column)};
    }
  }
  return lines;
}

constexpr Lines serpentine(Serpentine by) {
  Lines lines{.length = 81};
  for (int n = 0; n < 81; ++n)
    lines.leaders[static_cast<std::size_t>(n)] =
        lines_detail::leader(lines_detail::serpentinePlace(n, 9, by));
  return lines;
}

constexpr Lines blockSerpentine(Serpentine by) {
  Lines lines;
  for (int place = 0; place < 9; ++place)
    for (int n = 0; n < 9; ++n) {
      const Quartet block = lines_detail::serpentinePlace(n, 3, by);
      lines.leaders[static_cast<std::size_t>(place * 9 + n)] =
          lines_detail::leader({3 * block.row - 2 + place / 3, 3 * block.column - 2 + place % 3});
    }
  return lines;
}

constexpr Lines reversed(const Lines& lines) {
  Lines turned = lines;
  for (int n = 0; n < lines.count(); ++n)
    for (int k = 0; k < lines.length; ++k)
      turned.leaders[static_cast<std::size_t>(n * lines.length + k)] =
          lines.leaders[static_cast<std::size_t>((n + 1) * lines.length - 1 - k)];
  return turned;
}

}  // namespace caleidoscopio
