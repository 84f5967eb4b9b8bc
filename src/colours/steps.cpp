#include "colours/steps.h"

#include "panel/ladder.h"
#include "panel/numbers.h"

namespace caleidoscopio {

namespace {

// What lies between two bands, or beyond the ends, stands still.
constexpr Band longer[] = {
    {50, 950, 50}, {1000, 9900, 100}, {10000, 29500, 500}, {30000, 49000, 1000}};
constexpr Band shorter[] = {
    {100, 1000, -50}, {1100, 10000, -100}, {10500, 30000, -500}, {31000, 50000, -1000}};

/// Moves the base interval one step by the arrow held: "1" down, "2" up.
void moveBase(ColourControls& s) {
  const std::string& arrow = s.lblTmrRndCol[5].Caption;
  Label& base = s.lblTmrRndCol[0];
  const std::int64_t value = number(s, base);
  if (arrow == "1") base.Caption = text(value + stepOf(shorter, value));
  if (arrow == "2") base.Caption = text(value + stepOf(longer, value));
}

void stepSeconds(ColourControls& s) {
  Label& seconds = s.lblTmrRndCol[3];
  seconds.Caption = seconds.Caption == "12" ? "0" : text(number(s, seconds) + 1);
}

}  // namespace

void lblNSc_MouseDown(ColourControls& s) {
  s.lblNSc.BackColor = colours::pressed;
  s.lblNSc.Caption = s.lblNSc.Caption == "7" ? "2" : text(number(s, s.lblNSc) + 1);
}

void lblNSc_MouseUp(ColourControls& s) {
  s.lblNSc.BackColor = colours::unselected;
}

void lblTmrRndCol_MouseDown(ColourControls& s, int n) {
  if (n < 1 || n > 3) return;
  s.lblTmrRndCol[n].BackColor = colours::pressed;
  if (n == 3) {
    stepSeconds(s);
    s.TmrRndColor.setEnabled(true);
  } else {
    s.lblTmrRndCol[5].Caption = text(n);
    moveBase(s);
    s.TmrScorriRndCol.setEnabled(true);
  }
}

void lblTmrRndCol_MouseUp(ColourControls& s, int n) {
  if (n < 1 || n > 3) return;
  s.lblTmrRndCol[n].BackColor = n == 3 ? colours::unselected : colours::idle;
  (n == 3 ? s.TmrRndColor : s.TmrScorriRndCol).setEnabled(false);
}

void TmrRndColor_Timer(ColourControls& s) {
  stepSeconds(s);
}

void TmrScorriRndCol_Timer(ColourControls& s) {
  moveBase(s);
}

}  // namespace caleidoscopio
