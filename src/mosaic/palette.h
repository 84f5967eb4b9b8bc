#pragma once

#include <array>

#include "panel/values.h"

namespace caleidoscopio {

struct Swatch {
  Colour colour;
  Colour ink;
};

/// The palette by index; 0 is white and never used, 102 to 104 are never drawn at random.
extern const std::array<Swatch, 105> palette;

}  // namespace caleidoscopio
