#pragma once

#include "break/break_controls.h"

namespace caleidoscopio {

/// One step of the running sweep: lblBreak goes down by one, and the ring that the count names is
/// written, by the pattern in lblBreakMode(17), the direction in lblBreak's colour and the kind in
/// lblTrans. Kind "3" uncovers the design plane; any other paints slot lblColSCelto on the display
/// and commits the plane. A count without a ring, or an unknown pattern, writes no cell. Ends the
/// run when a caption that it needs is no number, or the slot is none.
void SweepBreak(BreakControls& s);

/// All 441 cells at once take slot lblColSCelto: the display its digit only while digits are
/// shown, the design always.
void fillWithSweptColour(BreakControls& s);

}  // namespace caleidoscopio
