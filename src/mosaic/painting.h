#pragma once

#include "mosaic/mosaic_controls.h"

namespace caleidoscopio {

/// The brush on cell i, 1 to 441: its quartet takes the active slot, or the background slot when
/// cell i already has the active colour. On the border the quartets of rows and of columns are
/// painted together. While the rectangle tool is on, the click is a corner instead.
void lblMiro_Click(MosaicControls& s, int i);

/// The brush on the quartet of cell i alone, whatever else its block would bring: a new design
/// leaves the frame's columns as they are.
void brushQuartet(MosaicControls& s, int i);

/// The background tool with slot k, 0 to 6: replaces the old background's colour within the
/// scope, or fills the scope when k is the background already.
void lblSfondo_Click(MosaicControls& s, int k);
/// Chooses the scope, 0 to 2: field, frame, everything.
void lblSelSfondo_Click(MosaicControls& s, int k);

}  // namespace caleidoscopio
