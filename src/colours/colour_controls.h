#pragma once

#include "mosaic/mosaic_controls.h"

namespace caleidoscopio {

/// Timer F: the changes of the colour slots.
struct ColourControls : virtual MosaicControls {
  Group colourGroup;
  Labels<0, 11> lblCambioCol{
      colourGroup, "lblCambioCol",
      Captions{0, {"D", "T", "II", "S", "F", "10", "Y", "3", "", "A", "R", "1"}},
      BackAt{{10}, colours::selected}, HiddenAt{{5, 7, 8, 11}}};
  OneLabel lblNSc{colourGroup, "lblNSc", Caption{"7"}};
  /// (0) base interval in milliseconds, (1) and (2) its arrows, (3) further seconds at most, (5)
  /// the arrow held, (6) the interval drawn last.
  Labels<0, 6> lblTmrRndCol{colourGroup, "lblTmrRndCol",
                            Captions{0, {"1000", "-", "+", "0", "", "", "1000"}},
                            BackAt{{1, 2}, colours::idle}, HiddenAt{{3, 4, 5, 6}}};
  Labels<1, 13> lblIntCol{colourGroup, "lblIntCol", Caption{"0"}};
  OneLabel lblPRovaTotColSel{colourGroup, "lblPRovaTotColSel"};
};

}  // namespace caleidoscopio
