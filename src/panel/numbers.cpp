#include "panel/numbers.h"

#include <limits>

#include "panel/end_run.h"
#include "panel/properties.h"
#include "panel/shown.h"

namespace caleidoscopio {

namespace {
std::string named(const PanelControls& s, const Frame& holder) {
  return s.controls.nameOf(&holder) + ".Caption is \"" + shown(holder.Caption) + '"';
}

/// Every tick reads some captions, and nearly every one holds a few digits and nothing else: that
/// number, or -1 for any other text.
std::int32_t fewDigits(std::string_view text) {
  if (text.empty() || text.size() > 9) return -1;
  std::int32_t number = 0;
  for (const char c : text) {
    if (c < '0' || c > '9') return -1;
    number = number * 10 + (c - '0');
  }
  return number;
}

}  // namespace

std::string Number::source() const {
  if (!holder_) return {};
  return "; " + controls_->nameOf(holder_) + ".Caption is \"" + text(read_) + '"';
}

Number number(const PanelControls& s, const Frame& holder) {
  if (const std::int32_t few = fewDigits(holder.Caption); few >= 0)
    return {few, s.controls, holder};
  const auto value = wholeNumber(holder.Caption);
  if (!value) endRun(named(s, holder) + "; expected a whole number of 32 bits");
  return {*value, s.controls, holder};
}

Number number16(const PanelControls& s, const Frame& holder) {
  const Number value = number(s, holder);
  if (value < std::numeric_limits<std::int16_t>::min() ||
      value > std::numeric_limits<std::int16_t>::max())
    endRun("overflow: " + named(s, holder) + "; expected a number of 16 bits, 32767 at most");
  return value;
}

}  // namespace caleidoscopio
