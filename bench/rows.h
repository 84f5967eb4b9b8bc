#pragma once

#include "compare.h"

namespace caleidoscopio::bench {

// Each engine adds its rows to the table.

/// One tick of each of the 24 shifts.
void addShiftRows(Rows& rows);
/// One tick of Timer B in each of its modes but the first.
void addTransformRows(Rows& rows);
/// A design, and changes of colours by clicks and without.
void addColourRows(Rows& rows);
/// One tick of cross and frame.
void addFrameRows(Rows& rows);
/// One sweep tick of each of the twelve Breaks, painting and uncovering.
void addBreakRows(Rows& rows);
/// A pass over a whole plane: the commit, and the copy of the design to the display.
void addPlaneRows(Rows& rows);
/// Loading a memory, beside reading the file and splitting its lines; saving one, beside writing
/// the same values by the same safe replacement.
void addMemoryRows(Rows& rows);

}  // namespace caleidoscopio::bench
