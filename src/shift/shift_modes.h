#pragma once

#include <span>
#include <string_view>

#include "shift/lines.h"
#include "shift/shift_controls.h"

namespace caleidoscopio {

/// What is held aside while a line turns, and whether captions travel.
enum class Hold {
  Cell,   ///< lblMemC; captions move only while digits are shown
  Block,  ///< lblMemory(1) to (9), one for each line; captions always move
};

/// One of the 24 ways in which Timer A moves the field.
struct ShiftMode {
  std::string_view code;     ///< what lblSomma holds: 100 (In) or 200 (Out) plus the family
  std::string_view caption;  ///< the name on the panel
  int family;                ///< 1 to 12; also the slot of the remembered interval
  Lines lines;
  Hold hold;
};

/// All 24 modes.
std::span<const ShiftMode> shiftModes();
/// The mode of a code, or null.
const ShiftMode* findShiftMode(std::string_view code);

/// Turns one line by a place: what stands on each goes to the next, the last comes round to the
/// first by way of `held`. The mirrors of a quartet are rewritten from its leader, so a quartet
/// whose four cells differ becomes uniform.
void RuotaLinea(MosaicControls& s, std::span<const std::int16_t> line, Frame& held, bool captions);

/// Moves the field one step by the mode and commits it. Frame, cross and centre stand still.
void stepShift(ShiftControls& s, const ShiftMode& mode);

}  // namespace caleidoscopio
