#pragma once

#include <string>

namespace caleidoscopio {

/// Ends the run: bad data was met, and nothing can go on from it. `message` names what was met
/// (control, value, file, line) and what was expected. The instrument only declares this
/// function; each program gives it a body. Our own mistakes are asserts, not this.
[[noreturn]] void endRun(const std::string& message);

}  // namespace caleidoscopio
