#pragma once

#include <cstdint>
#include <string>

#include "panel/number.h"
#include "panel/panel_controls.h"

namespace caleidoscopio {

/// The number in a caption, where logic counts with it: a whole number of 32 bits. Anything else
/// ends the run with the control's name and what it holds.
Number number(const PanelControls& s, const Frame& holder);

/// The same where the instrument counts in 16 bits; a number beyond them ends the run.
Number number16(const PanelControls& s, const Frame& holder);

/// Back into text: plain decimal, no leading zeros.
inline std::string text(std::int64_t number) {
  return std::to_string(number);
}

}  // namespace caleidoscopio
