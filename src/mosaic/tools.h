#pragma once

#include "mosaic/mosaic_controls.h"

namespace caleidoscopio {

/// The row of tools: 0 cell lines, 1 digits, 2 width of the outline, 3 what a swatch colours,
/// 4 rectangles, 6 a new design (here it only flashes; the instrument ties the design to it),
/// 7 and 8 options of a new design.
void lblComCol_MouseDown(MosaicControls& s, int k);
void lblComCol_MouseUp(MosaicControls& s, int k);

/// Shows the outline with the width in lblComCol(2), or hides it at "0".
void showContour(MosaicControls& s);

/// Takes the picture, the slots and the matrix as they stand, for Back to return to.
void FotografaStato(MosaicControls& s);
/// Back: returns to what FotografaStato took. A run goes on.
void lblBack_MouseDown(MosaicControls& s);
void lblBack_MouseUp(MosaicControls& s);

}  // namespace caleidoscopio
