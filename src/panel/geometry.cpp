#include "panel/geometry.h"

#include <cassert>

namespace caleidoscopio {

Geometry geometryOf(Element element) {
  assert(element.control->kind() != Kind::Timer);
  void* address = element.control->element(element.index);
  const auto of = [](auto& c, Points* font = nullptr) {
    return Geometry{c.Left, c.Top, c.Width, c.Height, c.Visible, font};
  };
  switch (element.control->kind()) {
    case Kind::Label: {
      auto& label = *static_cast<Label*>(address);
      return of(label, &label.FontSize);
    }
    case Kind::TextBox: {
      auto& box = *static_cast<TextBox*>(address);
      return of(box, &box.FontSize);
    }
    case Kind::Shape:
      return of(*static_cast<Shape*>(address));
    case Kind::Image:
      return of(*static_cast<Image*>(address));
    default:
      return of(*static_cast<Frame*>(address));
  }
}

}  // namespace caleidoscopio
