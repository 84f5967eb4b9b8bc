#pragma once

#include "mosaic/mosaic_controls.h"

namespace caleidoscopio {

/// Makes slot k, 0 to 6, the one that the brush paints with.
void lblValore_Click(MosaicControls& s, int k);

/// A click on swatch i, 1 to 104. What it colours is the mode in lblComCol(3): the active slot
/// with all its cells, the form, the headings or the outline. A swatch that another slot uses
/// trades places with the active one.
void lblColore_Click(MosaicControls& s, int i);

/// The digit button under slot k, 0 to 6: it steps the slot's digit while held, once more at the
/// click, and the click makes the slot active and writes the digit to its cells.
void lblPiù_MouseDown(MosaicControls& s, int k);
void lblPiù_MouseUp(MosaicControls& s, int k);
void lblPiù_Click(MosaicControls& s, int k);
void TmrColori_Timer(MosaicControls& s);

/// Element i, 0 to 24, of the matrix takes the active colour and digit.
void lblTotali_Click(MosaicControls& s, int i);

/// Draws a new palette of seven distinct colours for the slots and the sets B and C. No cell is
/// repainted and digits stay. With fewer than seven free swatches found in 1000 draws the rest
/// become swatch 0, white.
void PaletteCasuale(MosaicControls& s);

}  // namespace caleidoscopio
