#pragma once

#include "panel/run_controls.h"

namespace caleidoscopio {

/// "Esc": saves the default memory and the names, and puts the end picture in the form's place.
/// All timers are off from then on. A file that cannot be written ends the run.
void leave(RunControls& s);

/// A click on the end picture: the program is over.
void lblZQ_Click(RunControls& s);

}  // namespace caleidoscopio
