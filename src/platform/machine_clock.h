#pragma once

#include "panel/platform.h"

namespace caleidoscopio {

/// The machine's wall clock, in local time.
class MachineClock : public WallClock {
 public:
  WallTime now() override;
};

}  // namespace caleidoscopio
