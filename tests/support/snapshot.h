#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "instrument.h"

namespace caleidoscopio::test {

/// Every property of every control as text, a line each.
using Snapshot = std::vector<std::string>;

inline Snapshot snapshotOf(const Store& s) {
  Snapshot lines;
  for (const Control* control : s.controls.all())
    for (int i = control->first(); i <= control->last(); ++i)
      for (const Property& property : propertiesOf(control->kind())) {
        std::string line = control->nameOf(i);
        line += '.';
        line += property.name;
        line += ' ';
        line += toText(property.of(*control, i));
        lines.push_back(std::move(line));
      }
  return lines;
}

/// True when nothing has changed since; else it tells what has, as it was and as it is.
inline testing::AssertionResult unchangedSince(const Snapshot& before, const Store& s) {
  const Snapshot now = snapshotOf(s);
  if (now == before) return testing::AssertionSuccess();
  auto failure = testing::AssertionFailure();
  for (std::size_t i = 0; i < before.size(); ++i)
    if (now[i] != before[i]) failure << "\n  was " << before[i] << "\n  now " << now[i];
  return failure;
}

}  // namespace caleidoscopio::test
