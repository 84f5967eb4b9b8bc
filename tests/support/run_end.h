#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <string_view>

#include "platform/run_ended.h"

namespace caleidoscopio::test {

/// The message with which `act` ended the run.
template <class Act>
std::string runEndOf(Act act) {
  try {
    act();
  } catch (const RunEnded& end) {
    return end.what();
  }
  return "(the run went on)";
}

/// True when `act` ends the run with a message that names all of `words`.
template <class Act>
testing::AssertionResult endsTheRun(Act act, std::initializer_list<std::string_view> words) {
  const std::string message = runEndOf(act);
  for (const std::string_view word : words)
    if (message.find(word) == std::string::npos)
      return testing::AssertionFailure() << "no '" << word << "' in: " << message;
  return testing::AssertionSuccess() << message;
}

}  // namespace caleidoscopio::test
