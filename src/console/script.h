#pragma once

#include <istream>

#include "console/session.h"

namespace caleidoscopio::console {

/// The exit status of the console.
enum Status { done = 0, runEnded = 1, scriptFault = 2 };

/// Runs the commands of a script, a line each, to its end, to the program's own end, or to the
/// first fault. Output is flushed after each command; why a fault ended it goes to `errors`.
Status runScript(Session& session, std::istream& script, std::ostream& errors);

}  // namespace caleidoscopio::console
