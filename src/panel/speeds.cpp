#include "panel/speeds.h"

#include <cassert>

#include "panel/ladder.h"
#include "panel/numbers.h"

namespace caleidoscopio {

namespace {

// Each band of minus begins one step above where the band of plus does, so that the two undo each
// other across the bounds. What lies between two bands stands still.
constexpr Band slower[] = {
    {10, 90, 10}, {100, 475, 25}, {500, 950, 50}, {1000, 9900, 100}, {10000, 29500, 500}};
constexpr Band faster[] = {
    {20, 100, -10}, {125, 500, -25}, {550, 1000, -50}, {1100, 10000, -100}, {10500, 30000, -500}};

constexpr int restPeriod = 70;
constexpr int shortestPeriod = 5;

Timer& engineTimer(PanelControls& s, std::int64_t t) {
  assert(1 <= t && t <= 3);
  return t == 1 ? s.TmrGoA : t == 2 ? s.TmrGoB : s.TmrGoC;
}

/// Steps the caption of the speed in use; true when it moved.
bool stepVelo(PanelControls& s, std::span<const Band> ladder) {
  Label& velo = s.lblVelo[number(s, s.lblIndexTmr)];
  const std::int64_t value = number(s, velo);
  const std::int64_t step = stepOf(ladder, value);
  if (step == 0) return false;
  velo.Caption = text(value + step);
  return true;
}

void release(PanelControls& s, Labels<1, 3>& buttons, Timer& stepping, Timer& shortening, int t) {
  for (int i = 1; i <= 3; ++i) buttons[i].BackColor = colours::idle;
  for (Timer* timer : {&stepping, &shortening}) {
    timer->setEnabled(false);
    timer->setInterval(restPeriod);
  }
  engineTimer(s, t).setInterval(number(s, s.lblVelo[t]));
  if (!s.TmrGoB.Enabled()) return;
  for (int i = 1; i <= 3; ++i) {
    if (s.cmdOnOff[i].BackColor != colours::running) continue;
    engineTimer(s, i).setEnabled(false);
    engineTimer(s, i).setEnabled(true);
  }
}

void press(PanelControls& s, Label& button, Timer& stepping, Timer& shortening, int t) {
  s.lblIndexTmr.Caption = text(t);
  button.BackColor = colours::pressed;
  stepping.setEnabled(true);
  shortening.setEnabled(true);
}

/// Shortens the period of the stepping timer; at its end turns `accelerator` off instead.
void shorten(Timer& stepping, Timer& accelerator) {
  if (stepping.Interval() >= shortestPeriod) {
    stepping.setInterval(stepping.Interval() - 2);
  } else {
    accelerator.setEnabled(false);
    accelerator.setInterval(restPeriod);
  }
}

}  // namespace

void lblPiùTmr_MouseDown(PanelControls& s, int t) {
  press(s, s.lblPiùTmr[t], s.TmrVeloPiù, s.TmrScorriPiù, t);
}

void lblMenoTmr_MouseDown(PanelControls& s, int t) {
  press(s, s.lblMenoTmr[t], s.TmrVeloMeno, s.TmrScorriMeno, t);
}

void lblPiùTmr_MouseUp(PanelControls& s, int t) {
  release(s, s.lblPiùTmr, s.TmrVeloPiù, s.TmrScorriPiù, t);
}

void lblMenoTmr_MouseUp(PanelControls& s, int t) {
  release(s, s.lblMenoTmr, s.TmrVeloMeno, s.TmrScorriMeno, t);
}

void TmrVeloPiù_Timer(PanelControls& s) {
  stepVelo(s, slower);
}

void TmrVeloMeno_Timer(PanelControls& s) {
  if (!stepVelo(s, faster)) return;
  const std::int64_t t = number(s, s.lblIndexTmr);
  engineTimer(s, t).setInterval(number(s, s.lblVelo[t]));
}

void TmrScorriPiù_Timer(PanelControls& s) {
  shorten(s.TmrVeloPiù, s.TmrScorriPiù);
}

// At its end it turns the other direction's timer off, not itself, and goes on ticking until the
// release with no effect. It is meant to stay so.
void TmrScorriMeno_Timer(PanelControls& s) {
  shorten(s.TmrVeloMeno, s.TmrScorriPiù);
}

}  // namespace caleidoscopio
