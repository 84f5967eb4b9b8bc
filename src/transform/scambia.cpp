#include "transform/scambia.h"

#include "mosaic/cells.h"
#include "mosaic/random_pick.h"
#include "panel/numbers.h"

namespace caleidoscopio {

namespace {

constexpr int quartets = 81;

void fillPool(TransformControls& s) {
  auto& pool = s.lblSceltaN;
  for (int i = 1; i <= quartets; ++i) pool[i].Caption = text(4 * i - 3);
  s.lblRndCasella.Caption.clear();
  s.lblRimaste.Caption = text(quartets);
  s.lblCountScelte.Caption = "0";
  for (int i = 1; i <= 24; ++i) s.lblScelta[i].Caption.clear();
}

/// The leaders of the i-th and the next quartet drawn trade their cells. The colours of the first
/// wait in the second's place of the list; its caption waits apart, since the list's captions are
/// the leaders drawn.
void swapLeaders(TransformControls& s, std::int64_t i) {
  Label& wait = s.lblScelta[i + 1];
  Label& a = s.lblMiro2[number(s, s.lblScelta[i])];
  Label& b = s.lblMiro2[number(s, wait)];
  const std::string digit = a.Caption;
  copyColours(wait, a);
  copyCell(a, b);
  b.Caption = digit;
  copyColours(b, wait);
}

void drawQuadrant(TransformControls& s) {
  auto& display = s.lblMiro;
  auto& design = s.lblMiro2;
  for (int i = 1; i <= fieldEnd; i += 4) {
    copyShown(s, display[i], design[i]);
    for (int k = 1; k <= 3; ++k) {
      copyShown(s, display[i + k], display[i]);
      copyCell(design[i + k], design[i]);
    }
  }
}

}  // namespace

void ScegliCasella(TransformControls& s) {
  const std::int64_t r = CasualeMinuti(s, number(s, s.lblRimaste));
  s.lblRndCasella.Caption = text(r);
  s.lblCountScelte.Caption = text(number(s, s.lblCountScelte) + 1);
  auto& pool = s.lblSceltaN;
  s.lblScelta[number(s, s.lblCountScelte)].Caption = pool[r].Caption;
  // Always to the end, whatever is left: the empty element 82 closes the list.
  for (std::int64_t j = r; j <= quartets; ++j) copyCell(pool[j], pool[j + 1]);
  s.lblRimaste.Caption = text(number(s, s.lblRimaste) - 1);
}

void PassoScambia(TransformControls& s) {
  fillPool(s);
  const std::int64_t n = 2 * number(s, s.lblNScambi);
  for (std::int64_t i = 0; i < n; ++i) ScegliCasella(s);
  for (std::int64_t i = 1; i < n; i += 2) swapLeaders(s, i);
  drawQuadrant(s);
}

void lblNScambi_MouseDown(TransformControls& s) {
  Label& count = s.lblNScambi;
  count.BackColor = colours::pressed;
  count.Caption = count.Caption == "12" ? "1" : text(number(s, count) + 1);
}

void lblNScambi_MouseUp(TransformControls& s) {
  s.lblNScambi.BackColor = colours::unselected;
}

}  // namespace caleidoscopio
