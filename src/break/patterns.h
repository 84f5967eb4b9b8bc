#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace caleidoscopio {

/// One of the twelve ways in which a Break sweeps the field. A pattern is nothing but the ring of
/// every cell: the step that takes it. Direction and kind come on top.
struct BreakPattern {
  std::string_view name;
  std::string_view hoverOut;  ///< under the mouse, with direction "Out"
  int rings;                  ///< steps of a sweep
};

/// The pattern of a number, 1 to 12, or null.
const BreakPattern* findBreakPattern(std::int64_t number);

/// What lblBreak counts down from: the tick that finds 1 ends the Break.
constexpr int startValue(const BreakPattern& pattern) {
  return pattern.rings + 1;
}

/// The cells of ring `ring` of pattern `number`, by index; empty for an unknown pattern or ring.
std::span<const std::int16_t> breakRing(std::int64_t number, std::int64_t ring);

/// Pattern 12, Immediato, which takes the field at once and knows no direction.
inline constexpr int immediato = 12;

}  // namespace caleidoscopio
