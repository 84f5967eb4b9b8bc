#pragma once

#include "memories/memory_files.h"
#include "support/rig.h"

namespace caleidoscopio::test {

/// A rig whose files hold the controls as they came up: what a start needs. Draws never run out.
struct StartableRig : Rig {
  StartableRig() {
    generator.otherwise = 0.0F;
    SalvaDefault(s);
    SalvaNomi(s);
  }
};

/// A rig after its start on a screen of the given size; it runs, with every switch out.
struct StartedRig : StartableRig {
  explicit StartedRig(ScreenSize screen = {}) {
    platform.screen = screen;
    instrument.start();
  }
};

}  // namespace caleidoscopio::test
