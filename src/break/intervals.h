#pragma once

#include "break/break_controls.h"

namespace caleidoscopio {

/// Draws the pause until the next Break: the base interval or one of its variations, each a
/// second longer. Counts in 16 bits: an entry above 32767 ends the run before the draw, with the
/// base's name and value; the entries written before it stay.
void SorteggiaIntervalloBreak(BreakControls& s);

}  // namespace caleidoscopio
