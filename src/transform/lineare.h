#pragma once

#include "transform/transform_controls.h"

namespace caleidoscopio {

/// What the selector runs when it chooses this mode: the walker is put on a quartet drawn at
/// random, with the colour that it finds there, a second one and a first run. The direction before
/// it is not forgotten, so that the new run stands at a right angle to the last.
void PreparaLineare(TransformControls& s);

/// One tick: the walker goes a step on the torus of the quadrant and paints where it comes to, on
/// both planes: with its second colour where the first stands already, else with the first. When a
/// run has ended it begins another at once. While lblDirezione is empty (a memory saved in
/// mid-run) it paints where it stands until the run has ended. Ends the run of the instrument when
/// no length is selected, as only a damaged memory can have it.
void PassoLineare(TransformControls& s);

/// Lights length k, 1 to 8, or puts it out; the last one lit stays.
void lblLung_Click(TransformControls& s, int k);

/// How many slots the colours are drawn among: 1 to 7 and round again.
void lblColNumber_MouseDown(TransformControls& s);
void lblColNumber_MouseUp(TransformControls& s);

}  // namespace caleidoscopio
