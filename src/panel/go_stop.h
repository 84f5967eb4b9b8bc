#pragma once

#include "panel/run_controls.h"

namespace caleidoscopio {

/// Go and Stop, by the colour of the button.
void cmdGoTimer_Click(RunControls& s);

/// Switches timer k in or out, 0 to 5: F, A, B, C, D, E. While stopped a switch put in waits for
/// the next Go; a lit switch put out acts while stopped too.
void cmdOnOff_Click(RunControls& s, int k);

/// A click on the bare form, or any key: ends a run whose panels are hidden, and shows them.
void Form_Click(RunControls& s);
void Form_KeyDown(RunControls& s);

/// Whether Go hides the panels.
void lblHide_Click(RunControls& s);

}  // namespace caleidoscopio
