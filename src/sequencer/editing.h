#pragma once

#include "sequencer/sequencer_controls.h"

namespace caleidoscopio {

// Writing a programme. But for the interval, the fills and the cursor, all of it works only while
// TmrSequencer is off.

/// 1 and 2 the interval, 3 the column edited, 5 the length, 6 "Canc", 7 "Mem", 11 the table's
/// three-way display; 9, 10 and 13 fill a column with "OFF" at their click.
void lblSeq_MouseDown(SequencerControls& s, int k);
void lblSeq_MouseUp(SequencerControls& s, int k);
void lblSeq_Click(SequencerControls& s, int k);
/// Repeats of the interval's and the length's buttons.
void TmrScorriSeq_Timer(SequencerControls& s);
void TmrStepTotali_Timer(SequencerControls& s);

/// Moves the cursor back (0) or on (1), from the first tick on: the press itself moves nothing.
void lblAvanza_MouseDown(SequencerControls& s, int k);
void lblAvanza_MouseUp(SequencerControls& s, int k);
void TmrAvanza_Timer(SequencerControls& s);

/// Element 25 clears the three columns.
void lblNOrdine_MouseDown(SequencerControls& s, int k);
void lblNOrdine_MouseUp(SequencerControls& s, int k);
void lblNOrdine_Click(SequencerControls& s, int k);

/// Takes column k, 0 to 2, out of the programme or back into it.
void lblDisattiva_Click(SequencerControls& s, int k);

}  // namespace caleidoscopio
