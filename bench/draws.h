#pragma once

#include <charconv>
#include <cmath>
#include <memory>
#include <string>

#include "field.h"

namespace caleidoscopio::bench {

/// Draws without a pattern that a processor could learn, the same on both sides.
struct Draws {
  std::uint32_t state = 1;
  float next() {
    state = state * 1664525 + 1013904223;
    return static_cast<float>(state >> 8) * 0x1p-24F;
  }
};

/// An instrument that draws from them.
struct DrawingRig : Rig {
  explicit DrawingRig(TextFiles& files) : Rig(files) {}
  Draws draws;

 private:
  float draw() override { return draws.next(); }
};

/// The bare side of an engine that draws: the field, the draws, a clock's reading, and the option
/// that it asks for.
struct BareDrawing {
  BareField field;
  Draws draws;
  WallTime time;
  std::string digits = "N";

  std::size_t pick(std::size_t n) {
    const auto range = static_cast<double>(n);
    const double salted =
        (time.minute / 60.0 + static_cast<double>(draws.next())) - time.second / 61.0;
    const double x = std::floor(salted * range);
    return static_cast<std::size_t>(std::llround(x - std::floor(x / range) * range + 1));
  }
  bool shows() const { return digits == "Y"; }
};

/// The number in a caption.
inline std::size_t number(const std::string& caption) {
  std::int32_t value = 0;
  std::from_chars(caption.data(), caption.data() + caption.size(), value);
  return static_cast<std::size_t>(value);
}

/// Both sides of a row, from one picture. `Bare` derives from BareDrawing.
template <class Bare>
struct DrawingSides {
  DrawingSides() { paint(rig.s, bare.field, false); }
  bool same() const { return rig.draws.state == bare.draws.state && sameField(rig.s, bare.field); }
  NoFiles files;
  DrawingRig rig{files};
  Bare bare;
};

}  // namespace caleidoscopio::bench
