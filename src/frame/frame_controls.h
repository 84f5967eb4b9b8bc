#pragma once

#include "mosaic/mosaic_controls.h"

namespace caleidoscopio {

/// Timer C: the motion of the cross and of the frame.
struct FrameControls : virtual MosaicControls {
  Group frameGroup;
  /// (1) direction of the cross, (2) of the frame: "Off", "Out" or "In".
  Labels<1, 2> lblCorniceOpzio{frameGroup, "lblCorniceOpzio", Caption{"Out"},
                               Back{colours::selected}};
  OneLabel lblRandomC{frameGroup, "lblRandomC", Caption{"Random"}, Back{colours::selected}};
  Labels<0, 2> lblRndC{frameGroup, "lblRndC", Captions{0, {"2", "<", ">"}},
                       BackAt{{1, 2}, colours::idle}};
  OneLabel lblIndFRnd{frameGroup, "lblIndFRnd"};
  OneLabel lblColCornice{frameGroup, "lblColCornice", Caption{"7"}};
  OneLabel lblNumCas{frameGroup, "lblNumCas", Caption{"1"}, Hidden{}};
  OneLabel lblScegliColTmr{frameGroup, "lblScegliColTmr", Caption{"0"}, Hidden{}};
  OneLabel lblSyn{frameGroup, "lblSyn", Caption{"Sy"}, Hidden{}};
};

}  // namespace caleidoscopio
