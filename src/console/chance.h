#pragma once

#include <deque>
#include <optional>

#include "platform/built_in_generator.h"
#include "platform/machine_clock.h"

namespace caleidoscopio::console {

/// The machine's clock until a script makes it stand.
class ScriptClock : public WallClock {
 public:
  WallTime now() override { return standing ? *standing : machine_.now(); }
  std::optional<WallTime> standing;

 private:
  MachineClock machine_;
};

/// The built-in generator until a script hands in its own draws.
class ScriptGenerator : public Generator {
 public:
  void seed(const WallTime& time) override { builtIn.seed(time); }
  /// Ends the run when the script handed in draws and all are taken.
  float draw() override;
  void queue(float r);

  BuiltInGenerator builtIn;

 private:
  std::optional<std::deque<float>> queue_;
};

}  // namespace caleidoscopio::console
