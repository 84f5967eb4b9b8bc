#include "break/break_speeds.h"

#include "panel/ladder.h"
#include "panel/numbers.h"

namespace caleidoscopio {

namespace {

// What lies between two bands stands still.
constexpr Band shorterPause[] = {
    {150, 1000, -50}, {1100, 10000, -100}, {10500, 30000, -500}, {31000, 50000, -1000}};
constexpr Band longerPause[] = {
    {100, 950, 50}, {1000, 9900, 100}, {10000, 29500, 500}, {30000, 49000, 1000}};

/// True when the tick length moved.
bool stepTick(BreakControls& s, bool longer) {
  Label& tick = s.lblTmrBreak[0];
  if (tick.Caption == (longer ? "1000" : "10")) return false;
  tick.Caption = text(number16(s, tick) + (longer ? 10 : -10));
  return true;
}

void stepPause(BreakControls& s) {
  Label& pause = s.lblBrk[0];
  const std::int64_t value = number(s, pause);
  const bool shorter = s.lblBrk[4].Caption == "1";
  const std::int64_t step = shorter ? stepOf(shorterPause, value) : stepOf(longerPause, value);
  if (step != 0) pause.Caption = text(value + step);
}

}  // namespace

void lblTmrBreak_MouseDown(BreakControls& s, int i) {
  s.lblTmrBreak[i].BackColor = colours::pressed;
  if (stepTick(s, i == 2)) s.TmrVeloBreak.setEnabled(true);
}

void lblTmrBreak_MouseUp(BreakControls& s, int i) {
  s.lblTmrBreak[i].BackColor = colours::idle;
  s.TmrVeloBreak.setEnabled(false);
}

void TmrVeloBreak_Timer(BreakControls& s) {
  stepTick(s, s.lblTmrBreak[1].BackColor != colours::pressed);
}

void lblBrk_MouseDown(BreakControls& s, int i) {
  s.lblBrk[i].BackColor = colours::pressed;
  if (i == 3) {
    Label& variations = s.lblBrk[3];
    variations.Caption = variations.Caption == "12" ? "0" : text(number16(s, variations) + 1);
    return;
  }
  s.lblBrk[4].Caption = text(i);
  stepPause(s);
  s.TmrBrk.setInterval(number(s, s.lblBrk[0]));
  s.TmrScorriBrk.setEnabled(true);
}

void lblBrk_MouseUp(BreakControls& s, int i) {
  if (i == 3) {
    s.lblBrk[3].BackColor = colours::unselected;
    return;
  }
  s.lblBrk[i].BackColor = colours::idle;
  s.TmrScorriBrk.setEnabled(false);
}

void TmrScorriBrk_Timer(BreakControls& s) {
  stepPause(s);
}

}  // namespace caleidoscopio
