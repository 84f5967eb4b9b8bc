#pragma once

#include "break/break_controls.h"

namespace caleidoscopio {

/// Makes the picture that a kind 3 Break uncovers: ground, rectangles and dots from the slots of
/// set B, written over the design plane; the display is not touched. Its sizes are lblCrea's, which
/// the designs of Timer B share. Ends the run when one of them is no number or, as a count, above
/// 1000.
void DisegnoBreak(BreakControls& s);

}  // namespace caleidoscopio
