#pragma once

#include "colours/colour_controls.h"

namespace caleidoscopio {

/// Runs operation n, 0 to 11, on the slots in play, the first lblNSc of them: 0 "D", 1 "T", 2 "II",
/// 3 "S", 4 "F", 10 "R". T, II, S and R become the operation that Timer F repeats; D and F run
/// once. 6 puts slot 0 in or out of play, 9 lets the timer choose, 11 steps the repetitions; 5, 7
/// and 8 are holders, a click on which only takes the marks off. Also the timer's way in, and that
/// of a new design.
///
/// All but R change colours by clicks on slots and swatches: while lblComCol(3) says that a swatch
/// colours something else than a slot, so do they. Ends the run when no slot is in play at all,
/// as only a damaged memory can have it.
void lblCambioCol_Click(ColourControls& s, int n);

/// D, F, "Y" and the repetitions show the press; the rest show that they are chosen.
void lblCambioCol_MouseDown(ColourControls& s, int n);
void lblCambioCol_MouseUp(ColourControls& s, int n);

/// Timer F: one change, then a pause drawn anew while the instrument runs. Stopped, it changes
/// once and stays off.
void TmrGoD_Timer(ColourControls& s);

}  // namespace caleidoscopio
