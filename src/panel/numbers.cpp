#include "panel/numbers.h"

#include <limits>

#include "panel/end_run.h"
#include "panel/shown.h"

namespace caleidoscopio {

namespace {
std::string named(const PanelControls& s, const Frame& holder) {
  return s.controls.nameOf(&holder) + ".Caption is \"" + shown(holder.Caption) + '"';
}
}  // namespace

std::string Number::source() const {
  if (!holder_) return {};
  return "; " + controls_->nameOf(holder_) + ".Caption is \"" + text(read_) + '"';
}

void noNumber(const PanelControls& s, const Frame& holder) {
  endRun(named(s, holder) + "; expected a whole number of 32 bits");
}

Number number16(const PanelControls& s, const Frame& holder) {
  const Number value = number(s, holder);
  if (value < std::numeric_limits<std::int16_t>::min() ||
      value > std::numeric_limits<std::int16_t>::max())
    endRun("overflow: " + named(s, holder) + "; expected a number of 16 bits, 32767 at most");
  return value;
}

}  // namespace caleidoscopio
