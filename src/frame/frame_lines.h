#pragma once

#include <array>
#include <cstdint>
#include <initializer_list>
#include <span>

#include "mosaic/index_map.h"

namespace caleidoscopio {

/// One place of a line: the cells that always get one colour, the one that is read first.
struct FramePlace {
  std::array<std::int16_t, 12> cells{};
  std::uint8_t count = 0;
  constexpr std::int16_t read() const { return cells[0]; }
  constexpr std::span<const std::int16_t> all() const { return std::span(cells).first(count); }
  constexpr void add(int cell) { cells[count++] = static_cast<std::int16_t>(cell); }
};

/// Ten places along which colours flow, the first next to the frame's corner or edge, the last in
/// the middle.
using FrameLine = std::array<FramePlace, 10>;

// Where the lines run, in the top left of the picture (the other quadrants mirror it):
//
//   437 365 369 .. 397 325      top of the frame: quartets 365 to 397
//   401                329      side of the frame: 401 to 433
//   405                333      cross arm: 329 to 361, then the centre 441
//    ..                 ..      middle of the sides: quartet 325; corners: 437 to 440
//   433                361
//   328 332 336 .. 364 441

/// A line of nine places of quartets, which begin at `leaders` and go on side by side, and of the
/// single cells `last` as the tenth.
constexpr FrameLine frameLine(std::initializer_list<int> leaders, std::initializer_list<int> last) {
  FrameLine line;
  for (int k = 0; k < 9; ++k)
    for (const int leader : leaders)
      for (int mirror = 0; mirror <= 3; ++mirror)
        line[static_cast<std::size_t>(k)].add(leader + 4 * k + mirror);
  for (const int cell : last) line[9].add(cell);
  return line;
}

inline constexpr FrameLine crossLine = frameLine({329}, {centre});
inline constexpr FrameLine borderLine =
    frameLine({365, 401}, {325, 326, 327, 328, 437, 438, 439, 440});
inline constexpr FrameLine tiedLine =
    frameLine({329, 365, 401}, {centre, 325, 326, 327, 328, 437, 438, 439, 440});

}  // namespace caleidoscopio
