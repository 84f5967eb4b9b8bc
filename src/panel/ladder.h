#pragma once

#include <cstdint>
#include <span>

namespace caleidoscopio {

/// A band of a stepping ladder, both ends included: a value in it moves by `step`.
struct Band {
  std::int64_t from, to, step;
};

/// By how much the value moves: the step of the first band that holds it, 0 when none does.
constexpr std::int64_t stepOf(std::span<const Band> ladder, std::int64_t value) {
  for (const Band& band : ladder)
    if (band.from <= value && value <= band.to) return band.step;
  return 0;
}

}  // namespace caleidoscopio
