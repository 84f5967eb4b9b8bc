#pragma once

#include <stdexcept>

namespace caleidoscopio::console {

/// A fault of the script: thrown by the commands, caught where the line's number is known.
class ScriptFault : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace caleidoscopio::console
