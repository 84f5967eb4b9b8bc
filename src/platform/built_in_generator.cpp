#include "platform/built_in_generator.h"

namespace caleidoscopio {

void BuiltInGenerator::seed(const WallTime& time) {
  const int second = ((time.year * 24 + time.hour) * 60 + time.minute) * 60 + time.second;
  engine_.seed(fixed_.value_or(static_cast<std::uint64_t>(second)));
}

void BuiltInGenerator::fixSeed(std::uint64_t seed) {
  fixed_ = seed;
  engine_.seed(seed);
}

float BuiltInGenerator::draw() {
  // The standard's distributions differ from one library to the next. The top 24 bits are just
  // what a single-precision number holds, so that nothing is rounded and 1 is never reached.
  return static_cast<float>(engine_() >> 40) * 0x1p-24F;
}

}  // namespace caleidoscopio
