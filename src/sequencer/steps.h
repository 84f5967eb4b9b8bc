#pragma once

#include "sequencer/sequencer_controls.h"

namespace caleidoscopio {

/// One step of the programme: the row under the cursor sets timers A, B and C, and the cursor
/// goes on to the next. A cell of column A or C that is no code leaves its setting and turns its
/// timer on; in column B a text that is no number ends the run with the row and the text.
void TmrSequencer_Timer(SequencerControls& s);

}  // namespace caleidoscopio
