#pragma once

#include "break/break_controls.h"

namespace caleidoscopio {

/// The buttons of the tick length in lblTmrBreak(0), 10 to 1000 ms: 1 shorter, 2 longer. They
/// repeat while held if the press made a step. Felt at the next Break.
void lblTmrBreak_MouseDown(BreakControls& s, int i);
void lblTmrBreak_MouseUp(BreakControls& s, int i);
void TmrVeloBreak_Timer(BreakControls& s);

/// The buttons of the pause between Breaks: 1 and 2 step the base interval in lblBrk(0), 100 to
/// 50000 ms, and repeat while held; 3 steps the number of variations, 0 to 12 and round. The press
/// of 1 and 2 re-times TmrBrk at once, the repeat moves the caption alone. A base above 32767 is
/// accepted here and ends the run at the next draw of an interval.
void lblBrk_MouseDown(BreakControls& s, int i);
void lblBrk_MouseUp(BreakControls& s, int i);
void TmrScorriBrk_Timer(BreakControls& s);

}  // namespace caleidoscopio
