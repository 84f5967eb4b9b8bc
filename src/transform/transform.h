#pragma once

#include "transform/transform_controls.h"

namespace caleidoscopio {

/// The speed row's new interval is remembered for the mode in lblTransf(0), so that each keeps
/// its own.
void rememberTransformInterval(TransformControls& s);

}  // namespace caleidoscopio
