#include "console/chance.h"

#include "panel/end_run.h"

namespace caleidoscopio::console {

float ScriptGenerator::draw() {
  if (!queue_) return builtIn.draw();
  if (queue_->empty()) endRun("a draw from the empty queue; expected more values from draws");
  const float r = queue_->front();
  queue_->pop_front();
  return r;
}

void ScriptGenerator::queue(float r) {
  if (!queue_) queue_.emplace();
  queue_->push_back(r);
}

}  // namespace caleidoscopio::console
