#include "desktop/hand.h"

namespace caleidoscopio {

bool Hand::takesPress(Element element) {
  for (const Event event : {Event::MouseDown, Event::MouseUp, Event::Click})
    if (element.control->handles(event, element.index)) return true;
  return false;
}

bool Hand::holds(Element element) const {
  return held_.control == element.control && held_.index == element.index;
}

void Hand::press(Element element, QWidget& widget) {
  drop();
  held_ = element;
  shownBy_ = &widget;
  driver_.raise(*element.control, Event::MouseDown, element.index);
}

void Hand::release(bool over) {
  if (!held_.control) return;
  const Element element = held_;
  const QPointer<QWidget> widget = shownBy_;
  held_ = {};
  shownBy_.clear();
  driver_.raise(*element.control, Event::MouseUp, element.index);
  if (over && widget && widget->isVisible() && widget->isEnabled())
    driver_.raise(*element.control, Event::Click, element.index);
}

void Hand::check() {
  if (held_.control && !(shownBy_ && shownBy_->isVisible() && shownBy_->isEnabled())) drop();
}

}  // namespace caleidoscopio
