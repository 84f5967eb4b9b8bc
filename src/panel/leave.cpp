#include "panel/leave.h"

#include "memories/memory_files.h"
#include "panel/scaling.h"

namespace caleidoscopio {

void leave(RunControls& s) {
  // Saved as if repeat were on, so that the next start remembers it.
  if (s.lblSpiaBreak.BackColor == colours::selected)
    s.lblBreakMode[21].BackColor = colours::selected;
  SalvaDefault(s);
  SalvaNomi(s);
  s.lblAvvertimento2.Caption = s.lblAvvertimento.Caption;
  scaleToScreen(s.frmMiroVelTaZQ, s.endSpots, s.platform->screen);
  s.frmMiroVelTaZQ.Visible = true;
  s.form.Visible = false;
  for (Control* timer : s.timerGroup.controls())
    static_cast<Timer*>(timer->element(0))->setEnabled(false);
}

void lblZQ_Click(RunControls& s) {
  s.ended = true;
}

}  // namespace caleidoscopio
