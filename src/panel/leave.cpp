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
  // The end picture keeps the colours that the user gave the form.
  for (Frame* ground : {static_cast<Frame*>(&s.frmMiroVelTaZQ), static_cast<Frame*>(&s.FraZQ)})
    ground->BackColor = s.form.BackColor;
  for (Frame* words :
       {static_cast<Frame*>(&s.lblScritteVarieC), static_cast<Frame*>(&s.lblAvvertimento2)})
    words->ForeColor = s.lblScritteVarie[7].ForeColor;
  // Scaling multiplies what it finds: a second "Esc" must not fit the picture once more.
  if (!s.frmMiroVelTaZQ.Visible) scaleToScreen(s.frmMiroVelTaZQ, s.endSpots, s.platform->screen);
  s.frmMiroVelTaZQ.Visible = true;
  s.form.Visible = false;
  for (Control* timer : s.timerGroup.controls())
    static_cast<Timer*>(timer->element(0))->setEnabled(false);
}

void lblZQ_Click(RunControls& s) {
  s.ended = true;
}

}  // namespace caleidoscopio
