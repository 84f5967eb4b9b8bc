#pragma once

#include "colours/colour_controls.h"

namespace caleidoscopio {

/// Draws the pause of Timer F: the base interval plus a whole number of seconds, all equally
/// likely. Counts without a 16-bit limit; an interval beyond 32 bits ends the run.
void ScegliIntervalloColore(ColourControls& s);

}  // namespace caleidoscopio
