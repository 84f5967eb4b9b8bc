#include "mosaic/random_pick.h"

#include <cmath>
#include <string>

#include "panel/end_run.h"

namespace caleidoscopio {

Number CasualeMinuti(PanelControls& s, const Number& n) {
  const WallTime time = s.platform->clock.now();
  const float drawn = s.platform->generator.draw();
  if (n < 1)
    endRun("division by zero: a random pick among " + std::to_string(n) + "; expected 1 or more" +
           n.source());
  const auto range = static_cast<double>(n);
  // The divisors are unequal on purpose: no second of the hour leaves the draw as it was.
  const double salted = (time.minute / 60.0 + static_cast<double>(drawn)) - time.second / 61.0;
  const double x = std::floor(salted * range);
  return n.becoming(std::llround(x - std::floor(x / range) * range + 1));
}

}  // namespace caleidoscopio
