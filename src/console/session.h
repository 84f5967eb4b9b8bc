#pragma once

#include <ostream>

#include "console/chance.h"
#include "instrument.h"

namespace caleidoscopio::console {

/// An instrument with all that a script can set around it.
struct Session {
  /// `textFiles` and `output` must outlive the session.
  Session(TextFiles& textFiles, std::ostream& output);

  ScriptClock clock;
  ScriptGenerator generator;
  Platform platform;
  Instrument instrument{platform};
  Store& s = instrument.s;
  bool started = false;
  std::ostream& out;
};

}  // namespace caleidoscopio::console
