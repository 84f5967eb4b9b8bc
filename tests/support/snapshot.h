#pragma once

#include <string>

#include "instrument.h"

namespace caleidoscopio::test {

/// Every property of every control as text, a line each: equal before and after an event that
/// changes nothing.
inline std::string snapshotOf(const Store& s) {
  std::string all;
  for (const Control* control : s.controls.all())
    for (int i = control->first(); i <= control->last(); ++i)
      for (const Property& property : propertiesOf(control->kind()))
        all.append(control->nameOf(i))
            .append(".")
            .append(property.name)
            .append(" ")
            .append(toText(property.of(control->element(i))))
            .append("\n");
  return all;
}

}  // namespace caleidoscopio::test
