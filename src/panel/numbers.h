#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "panel/number.h"
#include "panel/panel_controls.h"
#include "panel/properties.h"

namespace caleidoscopio {

/// Ends the run with the control's name and what it holds.
[[noreturn]] void noNumber(const PanelControls& s, const Frame& holder);

/// Nearly every caption that a tick reads holds a few digits and nothing else: that number, or -1
/// for any other text.
constexpr std::int32_t fewDigits(std::string_view text) {
  if (text.empty() || text.size() > 9) return -1;
  std::int32_t number = 0;
  for (const char c : text) {
    if (c < '0' || c > '9') return -1;
    number = number * 10 + (c - '0');
  }
  return number;
}

/// The number in a caption, where logic counts with it: a whole number of 32 bits. Anything else
/// ends the run. Here and not in the .cpp, so that a tick does not carry about what only a message
/// needs.
inline Number number(const PanelControls& s, const Frame& holder) {
  if (const std::int32_t few = fewDigits(holder.Caption); few >= 0) [[likely]]
    return {few, s.controls, holder};
  const auto value = wholeNumber(holder.Caption);
  if (!value) [[unlikely]]
    noNumber(s, holder);
  return {*value, s.controls, holder};
}

/// The same where the instrument counts in 16 bits; a number beyond them ends the run.
Number number16(const PanelControls& s, const Frame& holder);

/// Back into text: plain decimal, no leading zeros.
inline std::string text(std::int64_t number) {
  return std::to_string(number);
}

}  // namespace caleidoscopio
