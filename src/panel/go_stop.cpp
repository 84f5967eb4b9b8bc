#include "panel/go_stop.h"

#include "break/intervals.h"
#include "colours/intervals.h"
#include "mosaic/tools.h"
#include "panel/numbers.h"
#include "panel/scaling.h"
#include "sequencer/cursor.h"

namespace caleidoscopio {

namespace {

constexpr double tableLeftInRun = 210;  // where the left panel was

bool running(const RunControls& s) {
  return s.cmdGoTimer.BackColor == colours::running;
}
bool switchedIn(const RunControls& s, int k) {
  return s.cmdOnOff[k].BackColor == colours::running;
}

void enableMemoryControls(RunControls& s, bool on) {
  for (int i = 0; i <= 15; ++i) s.lblSave[i].Enabled = on;
  s.lblCanc.Enabled = on;
  for (int i = 1; i <= 2; ++i) s.lblMemo[i].Enabled = on;
  // "Esc" stays enabled: a person can leave at any time.
  for (int i = 0; i <= 1; ++i) s.lblComandiVari[i].Enabled = on;
}

void takeSpeed(RunControls& s, Timer& timer, int t) {
  timer.setInterval(number(s, s.lblVelo[t]));
}

void go(RunControls& s, const ScreenFit& fit) {
  s.cmdGoTimer.BackColor = colours::running;
  if (s.lblBreakMode[21].BackColor == colours::selected)
    s.lblSpiaBreak.BackColor = colours::selected;
  if (s.lblSpiaBreak.BackColor == colours::selected)
    s.lblBreakMode[21].BackColor = colours::selected;
  const bool hide = s.lblHide.BackColor == colours::selected;
  if (hide) s.FraPannello[0].Visible = s.FraPannello[1].Visible = false;
  if (s.lblSeq[11].BackColor == colours::selected)
    s.FraPannello[2].Visible = false;
  else if (hide)
    s.FraPannello.geometry(2).Left = placedLeft(fit, tableLeftInRun);

  takeSpeed(s, s.TmrGoA, 1);
  takeSpeed(s, s.TmrGoB, 2);
  takeSpeed(s, s.TmrGoC, 3);
  FotografaStato(s);
  if (switchedIn(s, 1)) s.TmrGoA.setEnabled(true);
  if (switchedIn(s, 2)) s.TmrGoB.setEnabled(true);
  if (switchedIn(s, 3)) s.TmrGoC.setEnabled(true);
  // Both draws are made whatever the switches say.
  ScegliIntervalloColore(s);
  if (switchedIn(s, 0)) s.TmrGoD.setEnabled(true);
  SorteggiaIntervalloBreak(s);
  if (switchedIn(s, 4)) s.TmrBrk.setEnabled(true);
  if (switchedIn(s, 5)) {
    markTableForRun(s);
    s.TmrSequencer.setEnabled(true);
  }
  s.ShpRettangolo.Visible = false;
  enableMemoryControls(s, false);
}

void stop(RunControls& s, const ScreenFit& fit) {
  s.cmdGoTimer.BackColor = colours::idle;
  // The lamp stays lit, so that the next Go brings the repeat back.
  if (s.lblSpiaBreak.BackColor == colours::selected)
    s.lblBreakMode[21].BackColor = colours::unselected;
  s.FraPannello[2].Visible = s.lblSeq[11].BackColor != colours::unselected;
  if (s.FraPannello[2].Visible)
    s.FraPannello.geometry(2).Left = placedLeft(fit, sequencerTableLeft);
  // TmrBreak is left alone on purpose: a sweep under way runs out to its end.
  for (Timer* timer : {&s.TmrGoA, &s.TmrGoB, &s.TmrGoC, &s.TmrGoD, &s.TmrBrk})
    timer->setEnabled(false);
  if (s.lblComCol[4].BackColor == colours::selected) s.ShpRettangolo.Visible = true;
  s.TmrSequencer.setEnabled(false);
  rewindCursor(s);
  enableMemoryControls(s, true);
}

void switchOut(RunControls& s, int k) {
  s.cmdOnOff[k].BackColor = colours::pressed;
  s.lblBreakMode[21].BackColor = colours::unselected;
  s.lblSpiaBreak.BackColor = colours::unselected;
  Timer* const timers[] = {&s.TmrGoD, &s.TmrGoA, &s.TmrGoB, &s.TmrGoC, &s.TmrBrk, &s.TmrSequencer};
  timers[k]->setEnabled(false);
  if (k == 5) rewindCursor(s);
}

void startSwitched(RunControls& s, int k) {
  switch (k) {
    case 0:
      ScegliIntervalloColore(s);
      s.TmrGoD.setEnabled(true);
      return;
    case 1:
      takeSpeed(s, s.TmrGoA, 1);
      s.TmrGoA.setEnabled(true);
      return;
    case 2:
      takeSpeed(s, s.TmrGoB, 2);
      s.TmrGoB.setEnabled(true);
      return;
    case 3:
      takeSpeed(s, s.TmrGoC, 3);
      s.TmrGoC.setEnabled(true);
      return;
    case 4:
      SorteggiaIntervalloBreak(s);
      s.TmrBrk.setEnabled(true);
      return;
    default:
      // The sequencer brings timer A with it, whatever the step to come says of A. Row 0 is in no
      // programme and in no memory, so only a script ever finds it at "OFF".
      if (s.lblTmrA[0].Caption == "OFF") {
        s.TmrSequencer.setEnabled(false);
      } else {
        s.TmrSequencer.setEnabled(true);
        s.TmrGoA.setEnabled(true);
      }
  }
}

void showPanelsAndStop(RunControls& s) {
  if (s.lblHide.BackColor != colours::selected || !running(s)) return;
  s.FraPannello[0].Visible = s.FraPannello[1].Visible = true;
  cmdGoTimer_Click(s);
}

}  // namespace

void cmdGoTimer_Click(RunControls& s) {
  const ScreenFit fit = fitTo(s.platform->screen);
  if (running(s))
    stop(s, fit);
  else
    go(s, fit);
}

void cmdOnOff_Click(RunControls& s, int k) {
  if (switchedIn(s, k)) {
    switchOut(s, k);
    return;
  }
  s.cmdOnOff[k].BackColor = colours::running;
  if (running(s)) startSwitched(s, k);
}

void Form_Click(RunControls& s) {
  showPanelsAndStop(s);
}
void Form_KeyDown(RunControls& s) {
  showPanelsAndStop(s);
}

void lblHide_Click(RunControls& s) {
  const bool on = s.lblHide.BackColor == colours::selected;
  s.lblHide.BackColor = on ? colours::unselected : colours::selected;
}

}  // namespace caleidoscopio
