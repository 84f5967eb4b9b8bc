#include "console/flashes.h"

#include <algorithm>
#include <cmath>

namespace caleidoscopio::console {

namespace {

/// The colours of the system as the window shows them.
constexpr struct {
  std::uint32_t number, shown;
} systemColours[] = {
    {0x80000005, 0xFFFFFF}, {0x80000008, 0x000000}, {0x8000000F, 0xDCE6E9}, {0x80000012, 0x000000}};

struct Light {
  double red, green, blue;
};

Light lightOf(Colour colour) {
  static const auto linear = [] {
    std::array<double, 256> table{};
    for (std::size_t i = 0; i < table.size(); ++i) {
      const double part = static_cast<double>(i) / 255;
      table[i] = part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    }
    return table;
  }();
  std::uint32_t shown = colour.value;
  for (const auto& system : systemColours)
    if (system.number == colour.value) shown = system.shown;
  return {linear[shown & 0xFF], linear[shown >> 8 & 0xFF], linear[shown >> 16 & 0xFF]};
}

}  // namespace

double luminanceOf(Colour colour) {
  const Light light = lightOf(colour);
  return 0.2126 * light.red + 0.7152 * light.green + 0.0722 * light.blue;
}

Redness rednessOf(Colour colour) {
  const Light light = lightOf(colour);
  const double sum = light.red + light.green + light.blue;
  return {std::max(0.0, (light.red - light.green - light.blue) * 320),
          sum > 0 && light.red / sum >= 0.8};
}

FlashWatch::State FlashWatch::stateOf(Colour colour, Kind kind) {
  if (kind == Light) return {luminanceOf(colour), false};
  const Redness redness = rednessOf(colour);
  return {redness.amount, redness.saturated};
}

bool FlashWatch::isChangeOfLight(const State& low, const State& high) {
  return high.value - low.value >= 0.1 && low.value < 0.8;
}

bool FlashWatch::isChangeOfRed(const State& low, const State& high) {
  return high.value - low.value > 20 && (low.saturated || high.saturated);
}

bool FlashWatch::Swing::changes(const State& now, bool (*isChange)(const State&, const State&)) {
  if (now.value < low.value) low = now;
  if (now.value > high.value) high = now;
  const bool up = direction <= 0 && isChange(low, now);
  const bool down = direction >= 0 && isChange(now, high);
  if (!up && !down) return false;
  *this = {now, now, up ? 1 : -1};
  return true;
}

int FlashWatch::Cell::flashes() const {
  return *std::max_element(changes.begin(), changes.end()) / 2;
}

FlashWatch::FlashWatch(std::uint64_t now, const Picture& picture) {
  worst_.start = now;
  for (std::size_t i = 0; i < cells_.size(); ++i) {
    cells_[i].colour = picture[i];
    for (const Kind kind : {Light, Red}) {
      const State state = stateOf(picture[i], kind);
      cells_[i].swings[kind] = {state, state, 0};
    }
  }
}

void FlashWatch::see(std::uint64_t now, const Picture& picture) {
  while (!changes_.empty() && now - changes_.front().moment >= second) {
    --cells_[changes_.front().cell].changes[changes_.front().kind];
    changes_.pop_front();
  }
  const std::size_t before = changes_.size();
  for (std::size_t i = 0; i < cells_.size(); ++i) {
    Cell& cell = cells_[i];
    if (cell.colour == picture[i]) continue;
    cell.colour = picture[i];
    for (const Kind kind : {Light, Red}) {
      if (!cell.swings[kind].changes(stateOf(cell.colour, kind),
                                     kind == Light ? isChangeOfLight : isChangeOfRed))
        continue;
      ++cell.changes[kind];
      changes_.push_back({now, i, kind});
    }
  }
  // A second is at its worst when it ends on a change.
  if (changes_.size() > before) judge();
}

int FlashWatch::cellsInWorstBlock(int flashes) const {
  // sums[r][c]: the cells above row r and left of column c
  int sums[side + 1][side + 1] = {};
  for (int r = 0; r < side; ++r)
    for (int c = 0; c < side; ++c)
      sums[r + 1][c + 1] = sums[r][c + 1] + sums[r + 1][c] - sums[r][c] +
                           (cells_[static_cast<std::size_t>(r * side + c)].flashes() >= flashes);
  int most = 0;
  for (int r = blockRows; r <= side; ++r)
    for (int c = blockColumns; c <= side; ++c)
      most = std::max(most, sums[r][c] - sums[r - blockRows][c] - sums[r][c - blockColumns] +
                                sums[r - blockRows][c - blockColumns]);
  return most;
}

void FlashWatch::judge() {
  for (int flashes = std::max(worst_.flashes, 1);; ++flashes) {
    const int cells = cellsInWorstBlock(flashes);
    if (cells < enoughCells) return;
    if (flashes == worst_.flashes && cells <= worst_.cells) continue;
    worst_ = {changes_.front().moment, flashes, cells};
  }
}

}  // namespace caleidoscopio::console
