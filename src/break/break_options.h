#pragma once

#include "break/break_controls.h"

namespace caleidoscopio {

/// The options in lblBreakMode: 1 to 12 the patterns (the last one selected stays), 13 all of them
/// or Immediato alone, 14 direction, 18 kind, 19 new design, 21 repeat.
void lblBreakMode_Click(BreakControls& s, int i);
/// 14, 18: flash. 22, 23: one step of the wait down or up, with no repeat. 24: flash, and the order
/// of patterns changes between "Seq" and "Rnd".
void lblBreakMode_MouseDown(BreakControls& s, int i);
void lblBreakMode_MouseUp(BreakControls& s, int i);
/// Says in lblBreakMode(20) what element i is, 1 to 14; over any other element clears the line.
void lblBreakMode_MouseMove(BreakControls& s, int i);

}  // namespace caleidoscopio
