#include "shift/shift.h"

#include "panel/numbers.h"
#include "shift/shift_modes.h"

namespace caleidoscopio {

void lblSposta_Click(ShiftControls& s, int n) {
  for (int i = 1; i <= 24; ++i) s.lblSposta[i].BackColor = colours::unselected;
  s.lblSposta[n].BackColor = colours::selected;
  s.lblCent.Caption = s.lblOraria.Caption == "In" ? "100" : "200";
  s.lblShift.Caption = text(n);
  s.lblSomma.Caption = text(n + number(s, s.lblCent));
  s.lblIntervalA[0].Caption = text(n);
  AggiornaModoA(s);
}

void lblOraria_MouseDown(ShiftControls& s) {
  s.lblOraria.BackColor = colours::pressed;
  const bool wasIn = s.lblOraria.Caption == "In";
  s.lblOraria.Caption = wasIn ? "Out" : "In";
  s.lblCent.Caption = wasIn ? "200" : "100";
  // lblShift is in no memory: after a load this counts from the family selected before it.
  s.lblSomma.Caption = text(number(s, s.lblCent) + number(s, s.lblShift));
  AggiornaModoA(s);
}

void lblOraria_MouseUp(ShiftControls& s) {
  s.lblOraria.BackColor = colours::unselected;
}

void lblSyncro_Click(ShiftControls& s) {
  const bool on = s.lblSyncro.BackColor == colours::selected;
  s.lblSyncro.BackColor = on ? colours::unselected : colours::selected;
}

void AggiornaModoA(ShiftControls& s) {
  const ShiftMode* mode = findShiftMode(s.lblSomma.Caption);
  if (!mode) return;
  const Label& interval = s.lblIntervalA[mode->family];
  s.lblMode[1].Caption = mode->caption;
  s.lblVelo[1].Caption = interval.Caption;
  s.TmrGoA.setInterval(number(s, interval));
}

void rememberShiftInterval(ShiftControls& s) {
  if (s.lblSyncro.BackColor != colours::unselected) {
    for (int i = 1; i <= 12; ++i) s.lblIntervalA[i].Caption = s.lblVelo[1].Caption;
    return;
  }
  const std::int64_t family = number(s, s.lblIntervalA[0]);
  if (family < 13 || family > 24) s.lblIntervalA[family].Caption = s.lblVelo[1].Caption;
}

void TmrGoA_Timer(ShiftControls& s) {
  if (const ShiftMode* mode = findShiftMode(s.lblSomma.Caption)) stepShift(s, *mode);
}

}  // namespace caleidoscopio
