#pragma once

#include "panel/run_controls.h"

namespace caleidoscopio {

/// Every folder's controls in one store.
struct Store : virtual RunControls {};

/// The whole instrument: the store, its places, and every handler tied to its control. It is
/// given its platform and knows no other way to the world.
class Instrument {
 public:
  /// The controls stand with their defaults, stopped. `platform` must outlive the instrument.
  explicit Instrument(Platform& platform);

  /// Start-up, in full; it ends in a Go. Once only.
  void start();

  Store s;
};

/// Gives every control that a person sees its design place, and lists these in s.spots.
void placeControls(Store& s);

}  // namespace caleidoscopio
