#pragma once

#include "colours/colour_controls.h"

namespace caleidoscopio {

/// Command1: gives the marked slot a free swatch drawn at random and makes it active, repainting
/// no cell. With no free swatch in 100 draws nothing more happens than the mark on
/// lblCambioCol(0).
void ColoreCasualeAttivo(ColourControls& s);

}  // namespace caleidoscopio
