#pragma once

#include "mosaic/mosaic_controls.h"

namespace caleidoscopio {

/// Timer A: the choice among the 24 shifts.
struct ShiftControls : virtual MosaicControls {
  Group shiftGroup;
  Labels<0, 24> lblSposta{shiftGroup, "lblSposta", Numbered{1, 24}, BackAt{{1}, colours::selected},
                          HiddenAt{{0}}};
  OneLabel lblOraria{shiftGroup, "lblOraria", Caption{"Out"}};
  OneLabel lblCent{shiftGroup, "lblCent", Caption{"200"}};
  OneLabel lblShift{shiftGroup, "lblShift", Caption{"1"}};
  OneLabel lblSomma{shiftGroup, "lblSomma", Caption{"201"}};
  /// The interval that each family remembers, in milliseconds; (0) the family being edited.
  Labels<0, 12> lblIntervalA{shiftGroup, "lblIntervalA", Captions{0, {"1"}}, Numbered{1, 12, 100}};
  OneLabel lblSyncro{shiftGroup, "lblSyncro", Caption{"Sy"}};
};

}  // namespace caleidoscopio
