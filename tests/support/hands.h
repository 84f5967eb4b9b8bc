#pragma once

#include "panel/controls.h"

namespace caleidoscopio::test {

// What a person does to a control, through its own events.

inline void press(const Control& control, int index = 0) {
  control.raise(Event::MouseDown, index);
}
inline void release(const Control& control, int index = 0) {
  control.raise(Event::MouseUp, index);
}
/// Press and release on the spot: MouseDown, MouseUp, Click.
inline void pressAndRelease(const Control& control, int index = 0) {
  press(control, index);
  release(control, index);
  click(control, index);
}
/// One run of a timer's handler, whether it is due or not.
inline void tick(const Control& timer) {
  timer.raise(Event::Tick);
}

}  // namespace caleidoscopio::test
