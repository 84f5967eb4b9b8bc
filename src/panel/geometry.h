#pragma once

#include "panel/control_list.h"

namespace caleidoscopio {

/// Place and letters of any control that has a place; `font` is null where it has no text.
struct Geometry {
  Twips& left;
  Twips& top;
  Twips& width;
  Twips& height;
  bool& visible;
  Points* font;
};

/// The element must not be a timer.
Geometry geometryOf(Element element);

}  // namespace caleidoscopio
