#pragma once

#include <QColor>
#include <QFont>
#include <QRect>

#include "panel/controls.h"

namespace caleidoscopio {

/// 0x00BBGGRR, or a colour of the system, as the screen's colour.
QColor toScreen(Colour colour);

/// The instrument's letters: Arial, else Liberation Sans, `size` in points at 96 to the inch.
QFont lettersOf(Points size, bool bold = false);

/// Twips from the parent's corner as device-independent pixels, each edge rounded by itself so
/// that neighbours meet.
QRect toPixels(const Geometry& geometry);
QRect toPixels(Twips left, Twips top, Twips width, Twips height);

inline constexpr double twipsToPixel = 15;

}  // namespace caleidoscopio
