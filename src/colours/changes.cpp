#include "colours/changes.h"

#include <algorithm>
#include <array>

#include "colours/intervals.h"
#include "mosaic/cells.h"
#include "mosaic/random_pick.h"
#include "panel/numbers.h"

namespace caleidoscopio {

namespace {

constexpr std::int64_t drawnSwatches = 101;  // the last three are never drawn
constexpr int tries = 100;

/// The operations that Timer F can repeat, in the order in which "A" draws them.
constexpr std::array<int, 4> repeated{1, 2, 3, 10};
/// The elements a click on which takes the marks off, and those that show the press.
constexpr std::array<int, 7> clearing{1, 2, 3, 5, 7, 8, 10};
constexpr std::array<int, 4> pressable{0, 4, 6, 11};
/// The marks in the order in which the timer looks for one.
constexpr std::array<int, 6> marks{0, 1, 2, 3, 4, 10};

template <std::size_t count>
bool among(const std::array<int, count>& elements, int n) {
  return std::find(elements.begin(), elements.end(), n) != elements.end();
}

void clickSlot(ColourControls& s, const Number& k) {
  click(s.lblValore, k);
}
void clickSwatch(ColourControls& s, const Number& p) {
  click(s.lblColore, p);
}
/// The two clicks by which a person gives slot k the swatch p.
void assign(ColourControls& s, const Number& k, const Number& p) {
  clickSlot(s, k);
  clickSwatch(s, p);
}

Number slotCount(const ColourControls& s) {
  return number(s, s.lblNSc);
}
bool withFirst(const ColourControls& s) {
  return s.lblCambioCol[6].Caption == "Y";
}
/// A slot in play.
Number drawSlot(ColourControls& s) {
  return withFirst(s) ? CasualeMinuti(s, slotCount(s)) - 1 : CasualeMinuti(s, slotCount(s) - 1);
}

/// The slot held in lblCambioCol(7) takes a free swatch. When none is found the swatch drawn last
/// is clicked whatever uses it.
void giveFreeSwatch(ColourControls& s) {
  const Label& slot = s.lblCambioCol[7];
  std::int64_t p = 0;
  for (int i = 0; i < tries; ++i) {
    clickSlot(s, number(s, slot));
    p = CasualeMinuti(s, drawnSwatches);
    if (s.lblColore[p].BorderStyle == 0) break;
  }
  clickSwatch(s, p);
}

/// "D": the active slot takes a free swatch.
void changeActive(ColourControls& s) {
  s.lblCambioCol[7].Caption = s.lblValAttivo.Caption;
  giveFreeSwatch(s);
  clickSlot(s, number(s, s.lblCambioCol[7]));
}

/// "F": the active slot's digit serves as the number of a slot, though the two need not agree. It
/// is meant to stay so, here and wherever lblNumAttivo is held.
void changeNumbered(ColourControls& s) {
  s.lblCambioCol[7].Caption = s.lblNumAttivo.Caption;
  giveFreeSwatch(s);
}

/// "T": every slot in play takes a swatch, free or not.
void changeAll(ColourControls& s) {
  s.lblCambioCol[1].BackColor = colours::selected;
  s.lblCambioCol[7].Caption = s.lblNumAttivo.Caption;
  const std::int64_t count = slotCount(s);
  for (std::int64_t i = withFirst(s) ? 0 : 1; i < count; ++i) {
    clickSlot(s, i);
    clickSwatch(s, CasualeMinuti(s, drawnSwatches));
  }
}

/// Two slots trade colours. When a second one is not found the slot trades with itself, which
/// changes nothing.
void tradePair(ColourControls& s) {
  const Number one = drawSlot(s);
  Number other = one;
  for (int i = 0; i < tries && other == one; ++i) other = drawSlot(s);
  assign(s, one, number(s, s.lblTav[other]));
}

/// "II".
void tradePairs(ColourControls& s) {
  s.lblCambioCol[2].BackColor = colours::selected;
  s.lblCambioCol[7].Caption = s.lblNumAttivo.Caption;
  const bool alone = slotCount(s) == 2 && !withFirst(s);
  if (!alone) {
    const std::int64_t times = number(s, s.lblCambioCol[11]);
    for (std::int64_t i = 0; i < times; ++i) tradePair(s);
  }
  clickSlot(s, number(s, s.lblCambioCol[7]));
}

/// Each slot from the last in play down to the one above `end` takes the swatch below it, and
/// `end` that of the last. lblTav is written ahead of the clicks, so that every trade finds it in
/// place.
void rotate(ColourControls& s, std::int64_t end) {
  for (Number i = slotCount(s) - 1; i > end; i = i - 1) {
    s.lblTav[i].Caption = s.lblTav[i - 1].Caption;
    assign(s, i, number(s, s.lblTav[i]));
  }
  s.lblTav[end].Caption = s.lblCambioCol[8].Caption;
  assign(s, end, number(s, s.lblTav[end]));
}

/// "S".
void rotateAll(ColourControls& s) {
  s.lblCambioCol[3].BackColor = colours::selected;
  const std::int64_t times = number(s, s.lblCambioCol[11]);
  const Number last = slotCount(s) - 1;
  for (std::int64_t n = 0; n < times; ++n) {
    s.lblCambioCol[7].Caption = s.lblNumAttivo.Caption;
    s.lblCambioCol[8].Caption = s.lblTav[last].Caption;
    if (withFirst(s))
      rotate(s, 0);
    else if (last >= 2)
      rotate(s, 1);
  }
}

/// Slot k takes swatch p without a click: the active slot stays the active one, and lblValAttivo
/// keeps the colour that it had, even where k is that slot. It is meant to stay so.
void replaceColour(ColourControls& s, const Number& k, std::int64_t p) {
  const Label& swatch = s.lblColore[p];
  Label& slot = s.lblValore[k];
  s.lblMemoCol.BackColor = slot.BackColor;
  s.lblColore[number(s, s.lblTav[k])].BorderStyle = 0;
  s.lblColore[p].BorderStyle = 1;
  s.lblTav[k].Caption = text(p);
  copyColours(slot, swatch);
  copyColours(s.lblSfondo[k], swatch);

  const Colour old = s.lblMemoCol.BackColor;
  for (int j = 0; j <= 24; ++j)
    if (s.lblTotali[j].BackColor == old) copyColours(s.lblTotali[j], swatch);
  int used = 0;
  for (int j = 1; j <= drawnSwatches; ++j) used += s.lblColore[j].BorderStyle == 1 ? 1 : 0;
  s.lblPRovaTotColSel.Caption = text(used);
  auto& display = s.lblMiro;
  auto& design = s.lblMiro2;
  for (int j = 1; j <= cellCount; ++j) {
    if (display[j].BackColor != old) continue;
    copyColours(display[j], swatch);
    copyColours(design[j], swatch);
  }
}

void toggle(Label& label) {
  label.BackColor = label.BackColor == colours::selected ? colours::unselected : colours::selected;
}

/// "R".
void changeAny(ColourControls& s) {
  toggle(s.lblCambioCol[10]);
  const std::int64_t times = number(s, s.lblCambioCol[11]);
  for (std::int64_t n = 0; n < times; ++n) {
    const Number k = drawSlot(s);
    std::int64_t p = 0;
    for (int i = 0; i < tries; ++i) {
      p = CasualeMinuti(s, drawnSwatches);
      if (s.lblColore[p].BorderStyle == 0) break;
    }
    replaceColour(s, k, p);
  }
}

void toggleFirst(ColourControls& s) {
  s.lblCambioCol[6].Caption = withFirst(s) ? "N" : "Y";
}
void toggleChoice(ColourControls& s) {
  toggle(s.lblCambioCol[9]);
}
void stepRepetitions(ColourControls& s) {
  Label& times = s.lblCambioCol[11];
  times.Caption = times.Caption == "6" ? "1" : text(number(s, times) + 1);
}

/// What a click on each element runs; a holder among them runs nothing.
constexpr std::array<void (*)(ColourControls&), 12> operations{
    changeActive, changeAll, tradePairs, rotateAll,    changeNumbered, nullptr,
    toggleFirst,  nullptr,   nullptr,    toggleChoice, changeAny,      stepRepetitions};

}  // namespace

void lblCambioCol_Click(ColourControls& s, int n) {
  s.lblCambioCol[5].Caption = text(n);
  if (among(clearing, n))
    for (int k : repeated) s.lblCambioCol[k].BackColor = colours::unselected;
  if (const auto operation = operations[static_cast<std::size_t>(n)]) operation(s);
}

void lblCambioCol_MouseDown(ColourControls& s, int n) {
  if (among(pressable, n)) s.lblCambioCol[n].BackColor = colours::pressed;
}

void lblCambioCol_MouseUp(ColourControls& s, int n) {
  if (among(pressable, n)) s.lblCambioCol[n].BackColor = colours::unselected;
}

void TmrGoD_Timer(ColourControls& s) {
  // The only guard: a change that takes long is not entered twice.
  s.TmrGoD.setEnabled(false);
  const auto selected = [&s](int k) { return s.lblCambioCol[k].BackColor == colours::selected; };
  if (selected(9)) {
    for (int k : marks) s.lblCambioCol[k].BackColor = colours::unselected;
    const int k = repeated[static_cast<std::size_t>(CasualeMinuti(s, 4) - 1)];
    s.lblCambioCol[k].BackColor = colours::selected;
    click(s.lblCambioCol, k);
  } else {
    const auto chosen = std::find_if(marks.begin(), marks.end(), selected);
    if (chosen != marks.end()) click(s.lblCambioCol, *chosen);
  }
  if (s.cmdGoTimer.BackColor != colours::running) return;
  ScegliIntervalloColore(s);
  s.TmrGoD.setEnabled(true);
}

}  // namespace caleidoscopio
