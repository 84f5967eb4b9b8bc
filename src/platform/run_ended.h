#pragma once

#include <stdexcept>

namespace caleidoscopio {

/// What ends the run, as the two programs see it: thrown by endRun, caught where a program enters
/// the instrument.
class RunEnded : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace caleidoscopio
