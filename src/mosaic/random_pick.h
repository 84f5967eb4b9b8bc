#pragma once

#include "panel/number.h"
#include "panel/panel_controls.h"

namespace caleidoscopio {

/// The one random pick, a whole number from 1 to n, each as likely as any other: one draw of the
/// generator, salted with minute and second of the wall clock. Ends the run, after its draw, when
/// n is below 1. The caption that n was read from answers for what is picked, too.
Number CasualeMinuti(PanelControls& s, const Number& n);

}  // namespace caleidoscopio
