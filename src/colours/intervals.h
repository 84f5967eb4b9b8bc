#pragma once

#include "colours/colour_controls.h"

namespace caleidoscopio {

/// Draws the pause of Timer F: the base interval plus a whole number of seconds, all equally
/// likely, and at most the longest that a timer takes, 2147483647 ms. Counts without a 16-bit
/// limit; captions that are no numbers of 32 bits and more than 12 seconds end the run.
void ScegliIntervalloColore(ColourControls& s);

}  // namespace caleidoscopio
