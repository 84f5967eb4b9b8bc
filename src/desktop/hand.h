#pragma once

#include <QPointer>
#include <QWidget>

#include "desktop/driver.h"

namespace caleidoscopio {

/// What the mouse holds down: one element at a time. It sees to it that every press gets its
/// release, also when the control vanishes or the window loses the mouse meanwhile, so that no
/// repeat timer runs on.
class Hand {
 public:
  explicit Hand(Driver& driver) : driver_(driver) {}

  /// True if the element does anything when it is pressed.
  static bool takesPress(Element element);
  /// `widget` is where the element is shown.
  void press(Element element, QWidget& widget);
  /// A release with the pointer over the element, which makes it a click, or beside it.
  void release(bool over);
  /// Lets go without a click.
  void drop() { release(false); }
  /// Lets go when the element held can be reached no more. To be called after every change.
  void check();

  bool holds(Element element) const;

 private:
  Driver& driver_;
  Element held_;
  QPointer<QWidget> shownBy_;
};

}  // namespace caleidoscopio
