#pragma once

#include "panel/panel_controls.h"

namespace caleidoscopio {

// The speed rows of timers A, B and C, t = 1 to 3. Plus makes an interval longer, minus shorter,
// between 10 and 30000 ms. The press makes no step: the first comes with the first tick.

void lblPiùTmr_MouseDown(PanelControls& s, int t);
void lblMenoTmr_MouseDown(PanelControls& s, int t);
/// The release gives the timer its interval and, in a run of timer B, restarts A, B and C in
/// step. Whoever keeps a speed for each of its modes remembers it after this.
void lblPiùTmr_MouseUp(PanelControls& s, int t);
void lblMenoTmr_MouseUp(PanelControls& s, int t);

/// A step of the caption; minus also re-times the engine at once, plus waits for the release.
void TmrVeloPiù_Timer(PanelControls& s);
void TmrVeloMeno_Timer(PanelControls& s);
/// Shorten the period of the stepping timer, from 70 ms down to 4.
void TmrScorriPiù_Timer(PanelControls& s);
void TmrScorriMeno_Timer(PanelControls& s);

}  // namespace caleidoscopio
