#pragma once

#include "memories/memory_controls.h"

namespace caleidoscopio {

// The files of the instrument, under the root in lblDir. A file that cannot be read or written,
// or that is damaged, ends the run.

/// Reads or writes the memory that lblSelez names: "0" to "99", "A" to "E". Any other name leads
/// to no file and ends the run. Nothing else follows from a load.
void CaricaMemoria(MemoryControls& s);
void SalvaMemoria(MemoryControls& s);

/// The same for the default memory and for the list of names.
void CaricaDefault(MemoryControls& s);
void SalvaDefault(MemoryControls& s);
void CaricaNomi(MemoryControls& s);
void SalvaNomi(MemoryControls& s);

/// Where the default memory lies under a root.
std::string defaultMemoryPath();

}  // namespace caleidoscopio
