#pragma once

#include "sequencer/sequencer_controls.h"

namespace caleidoscopio {

/// Marks the table for a run: rows of the programme, and the row under the cursor.
void markTableForRun(SequencerControls& s);

/// Steps the cursor back by one row, from the first to the last of the programme, since the next
/// run's first tick advances it. In the row it goes to, the two columns that are not being edited
/// lose their mark.
void rewindCursor(SequencerControls& s);

}  // namespace caleidoscopio
