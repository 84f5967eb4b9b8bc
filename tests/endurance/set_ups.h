#pragma once

#include "support/rig.h"

namespace caleidoscopio::endurance {

/// The shipped memories, in memory.
test::FilesInMemory shippedFiles();

/// Switches all six timers in, and has F choose its change of colours by itself. The intervals
/// stay as they are.
void switchAllIn(Store& s);

/// A programme of 24 steps that goes through every shift, every transform and the frame's letters.
void writeProgramme(Store& s);

/// Holds the panel's own buttons down until every interval is the shortest. For an instrument that
/// stands still: it moves virtual time.
void stepToShortest(Store& s);

/// True with A, B, C and E at 10 ms, F at 50 and D at 100.
bool atShortest(Store& s);

/// Brings a run back to where stepToShortest had it, whatever was pressed meanwhile: all timers
/// in, at their shortest, with no step of the programme OFF, and running.
void bringBack(Store& s);

}  // namespace caleidoscopio::endurance
