#pragma once

#include "panel/run_controls.h"

namespace caleidoscopio {

/// The start of the instrument, in full: seed, root, default memory, names, placing, scaling, Go.
/// Ends the run when the default memory or the list of names is missing or damaged.
void Form_Load(RunControls& s);

}  // namespace caleidoscopio
