#include "panel/numbers.h"

#include <limits>

#include "panel/end_run.h"
#include "panel/properties.h"

namespace caleidoscopio {

namespace {
std::string named(const PanelControls& s, const Frame& holder) {
  return s.controls.nameOf(&holder) + ".Caption is \"" + holder.Caption + '"';
}
}  // namespace

std::int64_t number(const PanelControls& s, const Frame& holder) {
  const auto value = wholeNumber(holder.Caption);
  if (!value) endRun(named(s, holder) + "; expected a whole number of 32 bits");
  return *value;
}

std::int64_t number16(const PanelControls& s, const Frame& holder) {
  const std::int64_t value = number(s, holder);
  if (value < std::numeric_limits<std::int16_t>::min() ||
      value > std::numeric_limits<std::int16_t>::max())
    endRun("overflow: " + named(s, holder) + "; expected a number of 16 bits, 32767 at most");
  return value;
}

}  // namespace caleidoscopio
