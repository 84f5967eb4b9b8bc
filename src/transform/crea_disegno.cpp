#include "transform/crea_disegno.h"

#include "mosaic/cells.h"
#include "mosaic/painting.h"
#include "mosaic/random_pick.h"
#include "panel/end_run.h"
#include "panel/numbers.h"
#include "panel/shown.h"

namespace caleidoscopio {

namespace {

constexpr std::int64_t fieldQuartets = 81;

/// The minimum, and unless the extra is switched off from 1 up to the extra more. The extra of the
/// rectangles is off by its text, "0", those of the dots by their number: "00" tells the two apart.
std::int64_t drawCount(TransformControls& s, int minimum, int extra) {
  const std::int64_t n = designCount(s, minimum);
  const bool off = extra == 2 ? s.lblCrea[extra].Caption == "0" : designCount(s, extra) == 0;
  return off ? n : n + CasualeMinuti(s, designCount(s, extra));
}

void selectSlot(TransformControls& s, const Number& k) {
  click(s.lblValore, k);
}
void paint(TransformControls& s, std::int64_t i) {
  click(s.lblMiro, static_cast<int>(i));
}
void paintRowAlone(TransformControls& s, std::int64_t i) {
  brushQuartet(s, static_cast<int>(i));
}
/// The base of the q-th quartet of a block whose cells follow `before`.
std::int64_t quartet(std::int64_t q, int before) {
  return 4 * q - 3 + before;
}

void fillWithGround(TransformControls& s) {
  const Label& ground = s.lblValore[number(s, s.lblSfondoAttivo)];
  for (int i = 1; i <= cellCount; ++i) {
    copyShown(s, s.lblMiro[i], ground);
    copyCell(s.lblMiro2[i], ground);
  }
}

void drawRectangles(TransformControls& s, const Number& slots) {
  Label& tool = s.lblComCol[4];
  tool.BackColor = colours::selected;
  tool.Caption = "1";
  s.ShpRettangolo.Visible = false;
  const std::int64_t n = drawCount(s, 1, 2);
  for (std::int64_t i = 0; i < n; ++i) {
    const std::int64_t from = CasualeMinuti(s, fieldQuartets);
    const std::int64_t to = CasualeMinuti(s, fieldQuartets);
    selectSlot(s, CasualeMinuti(s, slots) - 1);
    tool.Caption = "1";
    paint(s, quartet(from, 0));
    tool.Caption = "2";
    paint(s, quartet(to, 0));
  }
  tool.BackColor = colours::unselected;
  tool.Caption = "R";
}

/// n dots of drawn colours among `quartets` of the block whose cells follow `before`; a second hit
/// of a colour on its own dot erases it.
template <class Brush>
void drawDots(TransformControls& s, std::int64_t n, const Number& slots, std::int64_t quartets,
              int before, Brush brush) {
  for (std::int64_t i = 0; i < n; ++i) {
    const Number slot = CasualeMinuti(s, slots) - 1;
    const std::int64_t q = CasualeMinuti(s, quartets);
    selectSlot(s, slot);
    brush(s, quartet(q, before));
  }
}

void drawCrossDots(TransformControls& s, const Number& slots) {
  std::int64_t n = drawCount(s, 3, 4);
  if (n == 0) return;
  if (CasualeMinuti(s, 2) - 1 == 1) {
    // No slot is drawn for the centre: it takes whichever is active.
    paint(s, centre);
    --n;
  }
  drawDots(s, n, slots, 9, 328, paint);
}

void drawBorderDots(TransformControls& s, const Number& slots) {
  std::int64_t n = drawCount(s, 5, 6);
  if (n == 0) return;
  // Corners and tips of the cross each cost a dot, also where one is left for the two: the count
  // then falls below 0, and there are no further dots.
  for (const int base : {437, 325}) {
    if (CasualeMinuti(s, 3) != 1) continue;
    paint(s, base);
    --n;
  }
  // A person's click there would paint the column along with the row; a design's dot does not.
  drawDots(s, n, slots, 9, 364, paintRowAlone);
}

void drawFieldDots(TransformControls& s, const Number& slots) {
  if (s.lblCrea[11].Caption == "0") return;
  const std::int64_t n = CasualeMinuti(s, designCount(s, 11) + 1) - 1;
  drawDots(s, n, slots, fieldQuartets, 0, paint);
}

void changeColours(TransformControls& s) {
  const auto selected = [&s](int k) { return s.lblCambioCol[k].BackColor == colours::selected; };
  int k = 0;
  if (selected(9)) {
    constexpr int drawn[] = {1, 2, 3, 10};
    k = drawn[CasualeMinuti(s, 4) - 1];
  } else {
    for (int i = 1; i <= 4 && k == 0; ++i)
      if (selected(i)) k = i;
    if (selected(10)) k = 10;
    s.lblProva.Caption = text(k);
  }
  // With nothing selected this is the click on element 0, which changes the active slot.
  click(s.lblCambioCol, k);
}

}  // namespace

Number designCount(const TransformControls& s, int k) {
  constexpr std::int64_t largest = 1000;
  const Number n = number(s, s.lblCrea[k]);
  if (n > largest)
    endRun(s.lblCrea.nameOf(k) + ".Caption is \"" + shown(s.lblCrea[k].Caption) +
           "\"; expected a count of " + text(largest) + " at most");
  return n;
}

void CreaDisegno(TransformControls& s) {
  const Number active = number(s, s.lblValAttivo);
  if (s.lblComCol[7].BackColor == colours::selected) fillWithGround(s);
  const Number slots = number(s, s.lblNSc);
  drawRectangles(s, slots);
  drawCrossDots(s, slots);
  drawBorderDots(s, slots);
  drawFieldDots(s, slots);
  if (s.lblComCol[8].BackColor == colours::selected) changeColours(s);
  selectSlot(s, active);
}

}  // namespace caleidoscopio
