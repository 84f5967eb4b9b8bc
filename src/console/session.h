#pragma once

#include <ostream>

#include "console/chance.h"
#include "instrument.h"
#include "platform/disk_files.h"

namespace caleidoscopio::console {

/// An instrument with all that a script can set around it.
struct Session {
  Session(DiskFiles diskFiles, std::ostream& output);

  ScriptClock clock;
  ScriptGenerator generator;
  DiskFiles files;
  Platform platform{clock, generator, files, {}};
  Instrument instrument{platform};
  Store& s = instrument.s;
  bool started = false;
  std::ostream& out;
};

}  // namespace caleidoscopio::console
