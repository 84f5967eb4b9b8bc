#pragma once

#include "transform/transform_controls.h"

namespace caleidoscopio {

/// The first half of a tick: strikes the neighbours that show the tracer's own colour from its
/// list, and packs the rest.
void PassoTraccia(TransformControls& s);

/// The second half: the tracer goes to one of the neighbours left and takes its colour along, on
/// both planes. With none left it stays and repaints its own quartet with one of the first four
/// slots, another than it has if 30 draws find one.
void PassoTracciaCasella(TransformControls& s);

/// Lists the neighbours of the tracer's quartet, clockwise, with the steps to them. Here the
/// quadrant has hard edges: a corner has two, an edge three, the inside four.
void ElencaSuccessive(TransformControls& s);

}  // namespace caleidoscopio
