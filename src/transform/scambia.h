#pragma once

#include "transform/transform_controls.h"

namespace caleidoscopio {

/// One tick: twice lblNScambi quartets, none twice, trade their colours in pairs on the design
/// plane, and the whole quadrant is drawn anew from it. What stood on the field's display alone is
/// lost; frame, cross and centre stand still. Ends the run beyond 12 swaps.
void PassoScambia(TransformControls& s);

/// Draws one quartet out of the pool of those not drawn yet.
void ScegliCasella(TransformControls& s);

/// The number of swaps a tick: 1 to 12 and round again.
void lblNScambi_MouseDown(TransformControls& s);
void lblNScambi_MouseUp(TransformControls& s);

}  // namespace caleidoscopio
