#pragma once

#include <string>
#include <string_view>

#include "memories/memory_controls.h"

namespace caleidoscopio {

// The files of the instrument, under the root in lblDir. A file that cannot be read or written,
// or that is damaged, ends the run.

/// True for the name of a memory file: "0" to "99", "A" to "E".
bool namesMemory(std::string_view name);
/// Reads or writes the memory of that name, which must be one, whatever lblSelez holds. Nothing
/// else follows from a load.
void loadMemory(MemoryControls& s, std::string_view name);
void saveMemory(MemoryControls& s, std::string_view name);

/// The same for the memory that lblSelez names. A name that is none ends the run.
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
