// The option panel of Crea Disegno.

#include <string_view>

#include "panel/numbers.h"
#include "transform/crea_disegno.h"

namespace caleidoscopio {

namespace {

struct Wrap {
  int element;
  std::string_view last;  ///< what "0" follows
};
constexpr Wrap counts[] = {{1, "30"}, {2, "60"}, {3, "10"}, {4, "10"},
                           {5, "10"}, {6, "10"}, {11, "30"}};

/// Steps element k if it is a count.
void stepCount(TransformControls& s, std::int64_t k) {
  for (const Wrap& count : counts) {
    if (count.element != k) continue;
    Label& element = s.lblCrea[k];
    element.Caption = element.Caption == count.last ? "0" : text(number(s, element) + 1);
  }
}

/// "R", at which the number of colours is drawn, then "2" to "7", then "R" again.
void stepColours(TransformControls& s) {
  Label& element = s.lblCrea[7];
  element.BackColor = colours::pressed;
  if (element.Caption == "7") {
    element.Caption = "R";
    element.BackColor = colours::selected;
  } else if (element.Caption == "R") {
    element.Caption = "2";
  } else {
    element.Caption = text(number(s, element) + 1);
  }
}

bool isToggle(std::int64_t k) {
  return 8 <= k && k <= 10;
}

}  // namespace

void lblCrea_MouseDown(TransformControls& s, int k) {
  s.lblCrea[0].Caption = text(k);
  Label& element = s.lblCrea[k];
  if (k == 7) {
    stepColours(s);
  } else if (isToggle(k)) {
    const bool on = element.BackColor == colours::selected;
    element.BackColor = on ? colours::unselected : colours::selected;
  } else {
    element.BackColor = colours::pressed;
    stepCount(s, k);
  }
  s.TmrCrea.setEnabled(true);
}

void TmrCrea_Timer(TransformControls& s) {
  const std::int64_t held = number(s, s.lblCrea[0]);
  stepCount(s, held);
  // A leftover that does no harm and stays: the mark goes to the holder, not to the count held.
  if (held == 5 || held == 6) s.lblCrea[0].BackColor = colours::pressed;
}

void lblCrea_MouseUp(TransformControls& s) {
  const std::int64_t held = number(s, s.lblCrea[0]);
  Label& element = s.lblCrea[held];
  const bool keepsMark = isToggle(held) || (held == 7 && element.Caption == "R");
  if (!keepsMark) element.BackColor = colours::unselected;
  s.TmrCrea.setEnabled(false);
}

}  // namespace caleidoscopio
