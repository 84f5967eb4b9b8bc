#pragma once

#include <array>
#include <cstdint>
#include <deque>

#include "mosaic/index_map.h"
#include "panel/values.h"

namespace caleidoscopio::console {

// How much the field flashes, by the rule that is common for pictures on screens: what flashes more
// than three times in a second over a quarter of the middle of the view can bring on a seizure.

/// The light that a colour gives off, 0 for black to 1 for white.
double luminanceOf(Colour colour);

/// How red a colour is.
struct Redness {
  double amount = 0;       ///< what red stands above green and blue together, 0 to 320
  bool saturated = false;  ///< red alone makes up four fifths of it or more
};
Redness rednessOf(Colour colour);

/// The cells of the field row by row from the top left.
using Picture = std::array<Colour, cellCount>;

/// The worst second: that in which the cells of one block flash the most.
struct WorstSecond {
  std::uint64_t start = 0;  ///< ms: the first change in it
  int flashes = 0;          ///< what at least `enoughCells` cells of one block do, each
  int cells = 0;            ///< how many cells of that block do so
  bool breaksTheRule() const { return flashes > 3; }
};

/// Watches the cells. A change is one of light, or of red, that is large enough; it begins where
/// the last one ended, so that many small steps one way count as one. Two changes of a cell one way
/// and back, within one second, are a flash.
class FlashWatch {
 public:
  // A block is what the middle of the view takes in on a screen of 1024 by 768, cells of 32 pixels.
  static constexpr int blockColumns = 11;
  static constexpr int blockRows = 8;
  static constexpr int enoughCells = blockColumns * blockRows / 4;
  static constexpr std::uint64_t second = 1000;

  explicit FlashWatch(std::uint64_t now, const Picture& picture);
  /// The picture as it stands at `now`, ms. Moments must not go back.
  void see(std::uint64_t now, const Picture& picture);
  /// Of two alike the one with more cells, else the earlier.
  const WorstSecond& worst() const { return worst_; }

 private:
  enum Kind { Light, Red, kinds };
  struct State {
    double value = 0;
    bool saturated = false;
  };
  /// The turns of one value of one cell.
  struct Swing {
    State low, high;    // since the last change
    int direction = 0;  // of the last change: 1 up, -1 down, 0 none yet
    bool changes(const State& now, bool (*isChange)(const State& low, const State& high));
  };
  struct Cell {
    Colour colour;
    std::array<Swing, kinds> swings;
    std::array<int, kinds> changes{};  // within the last second
    int flashes() const;
  };
  struct Change {
    std::uint64_t moment;
    std::size_t cell;
    Kind kind;
  };

  static State stateOf(Colour colour, Kind kind);
  static bool isChangeOfLight(const State& low, const State& high);
  static bool isChangeOfRed(const State& low, const State& high);
  /// The most cells of one block that flash `flashes` times or more.
  int cellsInWorstBlock(int flashes) const;
  void judge();

  std::array<Cell, cellCount> cells_;
  std::deque<Change> changes_;  // those of the last second
  WorstSecond worst_;
};

}  // namespace caleidoscopio::console
