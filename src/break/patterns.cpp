#include "break/patterns.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "mosaic/index_map.h"

namespace caleidoscopio {

namespace {

constexpr BreakPattern patterns[] = {
    // From Cornici on the text under the mouse has no blank before "(Out)". Meant to stay.
    {"Orizzontale", "Orizzontale (Out)", 11},
    {"Verticale", "Verticale (Out)", 11},
    {"Diagonale A", "Diagonale A (Out)", 21},
    {"Diagonale B", "Diagonale B (Out)", 21},
    {"Cornici", "Cornici(Out)", 11},
    {"Rombi", "Rombi(Out)", 21},
    {"Croci", "Croci(Out)", 11},
    {"Sant'Andrea", "Sant'Andrea(Out)", 11},
    {"Zig-Zag Orizz.", "Zig-Zag Orizz.(Out)", 11},
    {"Zig-Zag Vert.", "Zig-Zag Vert.(Out)", 11},
    {"Spirale", "Spirale(Out)", 13},
    {"Immediato", "Immediato", 1},
};

/// From the centre to top and bottom at once, by blocks of 3 rows and 7 columns.
constexpr int zigZag[7][3] = {
    {11, 10, 9},  //
    {6, 7, 8},    //
    {5, 4, 3},    //
    {2, 1, 2},    //
    {3, 4, 5},    //
    {8, 7, 6},    //
    {9, 10, 11},
};

/// Clockwise from the centre, beginning upward, by blocks of 3 rows and 3 columns.
constexpr int spiral[7][7] = {
    {13, 10, 10, 10, 10, 10, 10},  //
    {13, 9, 6, 6, 6, 6, 11},       //
    {13, 9, 5, 2, 2, 7, 11},       //
    {13, 9, 5, 1, 3, 7, 11},       //
    {13, 9, 4, 4, 3, 7, 11},       //
    {13, 8, 8, 8, 8, 7, 11},       //
    {12, 12, 12, 12, 12, 12, 11},
};

constexpr int distance(int a, int b) {
  return a < b ? b - a : a - b;
}

/// The ring that takes the cell at (r, c), from 1.
constexpr int ringOf(int pattern, int r, int c) {
  const int dr = distance(r, 10);
  const int dc = distance(c, 10);
  switch (pattern) {
    case 1:
      return 1 + dr;
    case 2:
      return 1 + dc;
    case 3:
      return 1 + distance(r + c, 20);
    case 4:
      return 1 + distance(r, c);
    case 5:
      return 1 + std::max(dr, dc);
    case 6:
      return 1 + dr + dc;
    case 7:
      return 1 + std::min(dr, dc);
    case 8:
      return 1 + distance(dr, dc);
    case 9:
      return zigZag[r / 3][c / 7];
    case 10:
      return zigZag[c / 3][r / 7];
    case 11:
      return spiral[r / 3][c / 3];
    default:
      return 1;
  }
}

constexpr int mostRings = 21;

/// All cells of a pattern, ring by ring; ring n begins at starts[n - 1] and ends at starts[n].
struct Rings {
  std::array<std::int16_t, cellCount> cells{};
  std::array<std::int16_t, mostRings + 1> starts{};
};

// Each cell's ring is asked once: a compiler counts the steps that it takes here, and may give up.
constexpr Rings ringsOf(int pattern) {
  Rings rings;
  std::array<std::size_t, cellCount + 1> ringAt{};
  for (int i = 1; i <= cellCount; ++i) {
    const Place place = placeOf(i);
    const auto ring = static_cast<std::size_t>(ringOf(pattern, place.row, place.column));
    ringAt[static_cast<std::size_t>(i)] = ring;
    ++rings.starts[ring];
  }
  for (std::size_t ring = 1; ring <= mostRings; ++ring)
    rings.starts[ring] = static_cast<std::int16_t>(rings.starts[ring] + rings.starts[ring - 1]);
  auto next = rings.starts;  // of each ring, by the ring before it
  for (std::size_t i = 1; i <= cellCount; ++i) {
    std::int16_t& at = next[ringAt[i] - 1];
    rings.cells[static_cast<std::size_t>(at++)] = static_cast<std::int16_t>(i);
  }
  return rings;
}

constexpr auto allRings = [] {
  std::array<Rings, std::size(patterns)> all;
  for (std::size_t n = 0; n < all.size(); ++n) all[n] = ringsOf(static_cast<int>(n) + 1);
  return all;
}();

}  // namespace

const BreakPattern* findBreakPattern(std::int64_t number) {
  if (number < 1 || number > std::ssize(patterns)) return nullptr;
  return &patterns[number - 1];
}

std::span<const std::int16_t> breakRing(std::int64_t number, std::int64_t ring) {
  const BreakPattern* pattern = findBreakPattern(number);
  if (!pattern || ring < 1 || ring > pattern->rings) return {};
  const Rings& rings = allRings[static_cast<std::size_t>(number - 1)];
  const auto n = static_cast<std::size_t>(ring);
  return std::span(rings.cells)
      .subspan(static_cast<std::size_t>(rings.starts[n - 1]),
               static_cast<std::size_t>(rings.starts[n] - rings.starts[n - 1]));
}

}  // namespace caleidoscopio
