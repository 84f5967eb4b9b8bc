#include "transform/transform.h"

#include <string_view>

#include "panel/numbers.h"
#include "transform/aggrega.h"
#include "transform/angoli.h"
#include "transform/crea_disegno.h"
#include "transform/lineare.h"
#include "transform/scambia.h"
#include "transform/traccia.h"

namespace caleidoscopio {

namespace {

/// A tick that no timer gave draws the figure's colour first.
void tickAngoli(TransformControls& s) {
  if (!s.TmrGoB.Enabled()) ScegliColoreScelto(s);
  PassoAngolo(s);
}

void tickTraccia(TransformControls& s) {
  PassoTraccia(s);
  PassoTracciaCasella(s);
}

struct TransformMode {
  std::string_view number;  ///< what lblTransf(0) holds
  std::string_view name;
  int interval;  ///< which lblInterv remembers its speed
  int panel;     ///< which FraTransf shows its options
  void (*prepare)(TransformControls&);
  void (*tick)(TransformControls&);
};

// Panels do not follow the modes, and the speed of 6 is not the one in its own panel.
constexpr TransformMode modes[] = {
    {"1", "Crea Disegno", 1, 1, nullptr, CreaDisegno},
    {"2", "Angoli", 2, 7, nullptr, tickAngoli},
    {"3", "Lineare", 3, 9, PreparaLineare, PassoLineare},
    {"4", "Traccia", 4, 3, nullptr, tickTraccia},
    {"5", "Aggrega", 5, 10, nullptr, PassoAggrega},
    {"6", "Scambia", 6, 2, nullptr, PassoScambia},
};

const TransformMode* findMode(std::string_view number) {
  for (const TransformMode& mode : modes)
    if (mode.number == number) return &mode;
  return nullptr;
}

}  // namespace

void lblTransf_Click(TransformControls& s, int k) {
  s.lblTransf[0].Caption = text(k);
  for (int i = 1; i <= 12; ++i) {
    s.lblTransf[i].BackColor = colours::unselected;
    s.FraTransf[i].Visible = false;
  }
  s.lblTransf[k].BackColor = colours::selected;
  if (const TransformMode* mode = findMode(s.lblTransf[0].Caption)) {
    s.lblMode[2].Caption = mode->name;
    if (mode->prepare) mode->prepare(s);
    s.lblVelo[2].Caption = s.lblInterv[mode->interval].Caption;
    s.FraTransf[mode->panel].Visible = true;
  }
  s.TmrGoB.setEnabled(false);
  s.TmrGoB.setInterval(number(s, s.lblVelo[2]));
  if (s.cmdGoTimer.BackColor == colours::running && s.cmdOnOff[2].BackColor == colours::running)
    s.TmrGoB.setEnabled(true);
}

void TmrGoB_Timer(TransformControls& s) {
  if (const TransformMode* mode = findMode(s.lblTransf[0].Caption)) mode->tick(s);
}

void rememberTransformInterval(TransformControls& s) {
  s.lblInterv[number(s, s.lblTransf[0])].Caption = s.lblVelo[2].Caption;
}

}  // namespace caleidoscopio
