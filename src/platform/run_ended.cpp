#include "platform/run_ended.h"

#include "panel/end_run.h"

namespace caleidoscopio {

void endRun(const std::string& message) {
  throw RunEnded(message);
}

}  // namespace caleidoscopio
