#pragma once

#include "transform/transform_controls.h"

namespace caleidoscopio {

/// Timer D: the timed wipes.
struct BreakControls : virtual TransformControls {
  Group breakGroup;
  /// 1 to 12 the pattern buttons; 0 and from 13 on the options, named where they are used.
  Labels<0, 26> lblBreakMode{
      breakGroup,
      "lblBreakMode",
      Captions{
          0, {"11",  "1", "2", "3", "4", "5", "6",         "7", "8", "9", "10",  "11", "12", "All",
              "Alt", "I", "0", "1", "R", "D", "Immediato", "R", "-", "+", "Rnd", "1",  "M"}},
      BackAt{{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 19, 26}, colours::selected},
      BackAt{{22, 23}, colours::idle},
      BackAt{{25}, colours::inRange},
      ForeAt{20, {0x000080}}};
  OneLabel lblBreak{breakGroup, "lblBreak", Caption{"22"}, Back{colours::selected}};
  OneLabel lblTrans{breakGroup, "lblTrans", Caption{"3"}};
  /// (0) base interval in milliseconds, (1) and (2) its buttons, (3) variations, (4) the direction
  /// of a held step, (5) the interval drawn last.
  Labels<0, 5> lblBrk{breakGroup, "lblBrk", Captions{0, {"3000", "-", "+", "2", "1", ""}},
                      BackAt{{1, 2}, colours::idle}};
  Labels<1, 13> lblIntBrk{breakGroup, "lblIntBrk", Caption{"0"}};
  Labels<0, 2> lblTmrBreak{breakGroup, "lblTmrBreak", Captions{0, {"100", "-", "+"}},
                           BackAt{{1, 2}, colours::idle}};
  OneLabel Command7{breakGroup, "Command7", Caption{"Break"}, Back{colours::idle}};
  OneLabel Command8{breakGroup, "Command8", Caption{"stop Tmr"}, Back{colours::idle}, Hidden{}};
};

}  // namespace caleidoscopio
