#pragma once

#include "panel/number.h"
#include "transform/transform_controls.h"

namespace caleidoscopio {

/// Makes a whole new design with the user's own tools: rectangles and dots in the field, dots on
/// the cross and on the frame's rows, and if so wished a change of colours after it. The left and
/// right columns of the frame are never reached. The active slot is the same afterwards; the
/// rectangle tool is off. Ends the run when a count of lblCrea that is used is beyond 1000.
void CreaDisegno(TransformControls& s);

/// A count in lblCrea(k), for this design and for that of a Break. One beyond 1000, which only
/// damage can bring in, ends the run: a tick runs to its end, and would hold up everything for so
/// long.
Number designCount(const TransformControls& s, int k);

/// Option k, 1 to 11: counts (1 to 6 and 11) step up and round while held, 7 walks "R", "2" to
/// "7", and 8 to 10 are toggles.
void lblCrea_MouseDown(TransformControls& s, int k);
void lblCrea_MouseUp(TransformControls& s);
/// The repeat of the count held.
void TmrCrea_Timer(TransformControls& s);

}  // namespace caleidoscopio
