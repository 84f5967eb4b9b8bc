#pragma once

#include "colours/colour_controls.h"

namespace caleidoscopio {

/// The number of slots in play: 2 to 7, and round again.
void lblNSc_MouseDown(ColourControls& s);
void lblNSc_MouseUp(ColourControls& s);

/// Timer F's pause. 1 and 2 step the base interval down and up, 50 to 50000 ms, the faster the
/// longer it is; 3 steps the further seconds, 0 to 12 and round again. All three repeat while
/// held. The other elements take no press.
void lblTmrRndCol_MouseDown(ColourControls& s, int n);
void lblTmrRndCol_MouseUp(ColourControls& s, int n);

/// The repeat of the further seconds.
void TmrRndColor_Timer(ColourControls& s);
/// The repeat of the arrow that lblTmrRndCol(5) says is held.
void TmrScorriRndCol_Timer(ColourControls& s);

}  // namespace caleidoscopio
