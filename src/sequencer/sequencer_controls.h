#pragma once

#include "frame/frame_controls.h"
#include "shift/shift_controls.h"
#include "transform/transform_controls.h"

namespace caleidoscopio {

/// Timer E: the table of up to 24 steps.
struct SequencerControls : virtual ShiftControls, virtual TransformControls, virtual FrameControls {
  /// The rows that the table comes up with inside the programme.
  struct FirstRows {
    void apply(Frame& f, int i) const {
      if (1 <= i && i <= 4) f.BackColor = colours::inRange;
    }
  };

  Group sequencerGroup;
  Labels<0, 13> lblSeq{
      sequencerGroup, "lblSeq",
      Captions{0,
               {"2000", "-", "+", "A", "4", "4", "Canc", "Mem", "M", "X", "X", "Pann", "0", "X"}},
      BackAt{{1, 2}, colours::idle}};
  Labels<0, 25> lblNOrdine{sequencerGroup, "lblNOrdine", Numbered{1, 24}, Captions{25, {"C"}}};
  Labels<0, 24> lblTmrA{sequencerGroup,   "lblTmrA",
                        Caption{"1-Out"}, Captions{0, {"24 Out", "1-Out", "OFF", "12-In", "OFF"}},
                        FirstRows{},      BackAt{{4}, colours::selected}};
  Labels<0, 24> lblTmrB{sequencerGroup, "lblTmrB", Caption{"1"}, FirstRows{}};
  Labels<0, 24> lblTmrC{sequencerGroup, "lblTmrC", Caption{"O - O"}, FirstRows{}};
  Labels<0, 2> lblDisattiva{sequencerGroup, "lblDisattiva", Caption{"Dis."}};
  Labels<0, 1> lblAvanza{sequencerGroup, "lblAvanza", Captions{0, {"-", "+"}}, Back{colours::idle}};
};

}  // namespace caleidoscopio
