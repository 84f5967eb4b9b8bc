#pragma once

#include <cstdint>
#include <optional>
#include <random>

#include "panel/platform.h"

namespace caleidoscopio {

/// The generator of the two programs. Its draws depend on the seed alone: the same on every
/// machine.
class BuiltInGenerator : public Generator {
 public:
  /// The seed is the clock's reading, unless a fixed one was given.
  void seed(const WallTime& time) override;
  /// Seeds now, and is the seed of every later seed() too.
  void fixSeed(std::uint64_t seed);
  float draw() override;

 private:
  std::mt19937_64 engine_;
  std::optional<std::uint64_t> fixed_;
};

}  // namespace caleidoscopio
