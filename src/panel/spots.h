#pragma once

#include <cstdint>

#include "panel/control_list.h"

namespace caleidoscopio {

/// How a control of the panels presents itself. The same kind always looks the same.
enum class Look : std::uint8_t {
  Ground,   ///< a frame
  Title,    ///< bare letters in the middle, through which a click goes
  Heading,  ///< bare letters at the left, on what lies behind
  Display,  ///< shows, takes no press
  Choice,   ///< one of a row, or a toggle
  Stepper,  ///< moves a value
  Button,   ///< does something
  Swatch,   ///< a colour
  Cell,     ///< painted by the field
};

/// One element of the panels with its place on the screen: what scaling fits and the window shows.
/// The place itself is in the control.
struct Spot {
  Element element;
  Element parent;  ///< the window or frame that its place is relative to
  Look look = Look::Display;
  bool withField = false;  ///< moves sideways with the field on the wide screen
};

}  // namespace caleidoscopio
