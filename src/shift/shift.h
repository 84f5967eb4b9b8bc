#pragma once

#include "shift/shift_controls.h"

namespace caleidoscopio {

/// Selects family n, 1 to 24, in the present direction; also the sequencer's way in. Families
/// beyond 12 have no mode: the button is marked, and every tick from then on does nothing.
void lblSposta_Click(ShiftControls& s, int n);

/// Flips the direction, keeping the family and its interval.
void lblOraria_MouseDown(ShiftControls& s);
void lblOraria_MouseUp(ShiftControls& s);

/// Ties the intervals of the twelve families together, or sets them apart.
void lblSyncro_Click(ShiftControls& s);

/// Shows the mode that lblSomma names, and takes its interval; a code without a mode changes
/// nothing.
void AggiornaModoA(ShiftControls& s);

/// The speed row's new interval is remembered for the selected family, or for all twelve while
/// they are tied. Families 13 to 24 have no slot and remember nothing.
void rememberShiftInterval(ShiftControls& s);

/// One step of the mode that lblSomma names; nothing for a code without a mode.
void TmrGoA_Timer(ShiftControls& s);

}  // namespace caleidoscopio
