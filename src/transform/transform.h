#pragma once

#include "transform/transform_controls.h"

namespace caleidoscopio {

/// Selects mode k, 1 to 12, with its panel and its remembered interval; also the sequencer's way
/// in. Modes beyond 6 have no engine: the button is marked, no panel shows, name and interval stay,
/// and every tick from then on does nothing. The engine that is left keeps where it stood.
void lblTransf_Click(TransformControls& s, int k);

/// Timer B: one step of the mode in lblTransf(0).
void TmrGoB_Timer(TransformControls& s);

/// The speed row's new interval is remembered for the mode in lblTransf(0), so that each keeps
/// its own.
void rememberTransformInterval(TransformControls& s);

}  // namespace caleidoscopio
