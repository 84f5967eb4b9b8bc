#include "break/design.h"

#include <algorithm>

#include "mosaic/cells.h"
#include "mosaic/random_pick.h"
#include "panel/numbers.h"
#include "transform/crea_disegno.h"

namespace caleidoscopio {

namespace {

/// A minimum and, unless that is 0, at least 1 and at most `extra` more.
std::int64_t dots(BreakControls& s, int least, int extra) {
  const std::int64_t n = designCount(s, least);
  const std::int64_t more = designCount(s, extra);
  return more == 0 ? n : n + CasualeMinuti(s, more);
}

/// How many slots a part of the design may use.
std::int64_t drawSlotsInUse(BreakControls& s) {
  if (s.lblCrea[7].Caption == "R") return CasualeMinuti(s, 6) + 1;
  return number(s, s.lblCrea[7]);
}

/// One of the first n slots of set B.
const Label& drawSlot(BreakControls& s, std::int64_t n) {
  return s.lblValoreB[CasualeMinuti(s, n) - 1];
}

void writeQuartet(BreakControls& s, std::int64_t leader, const Label& slot) {
  for (int mirror = 0; mirror <= 3; ++mirror) copyCell(s.lblMiro2[leader + mirror], slot);
}

/// Row and column of the p-th quartet of the field, from 0.
struct Corner {
  std::int64_t row, column;
};
Corner drawCorner(BreakControls& s) {
  const std::int64_t p = CasualeMinuti(s, 81) - 1;
  return {p / 9, p % 9};
}

void ground(BreakControls& s) {
  const Label& slot = s.lblValoreB[number(s, s.lblSfondoAttivo)];
  auto& design = s.lblMiro2;
  for (int i = 1; i <= cellCount; ++i) copyCell(design[i], slot);
}

void rectangles(BreakControls& s) {
  std::int64_t n = designCount(s, 1);
  if (s.lblCrea[2].Caption != "0") n += CasualeMinuti(s, designCount(s, 2));
  for (std::int64_t i = 1; i <= n; ++i) {
    const Corner a = drawCorner(s);
    const Corner b = drawCorner(s);
    const Label& slot = drawSlot(s, drawSlotsInUse(s));
    const auto [top, bottom] = std::minmax({a.row, b.row});
    const auto [left, right] = std::minmax({a.column, b.column});
    for (std::int64_t column = left; column <= right; ++column)
      for (std::int64_t row = top; row <= bottom; ++row)
        writeQuartet(s, 1 + 36 * row + 4 * column, slot);
  }
}

void armDots(BreakControls& s, std::int64_t n, std::int64_t slots) {
  if (n == 0) return;
  const Label& slotOfCentre = drawSlot(s, slots);
  if (CasualeMinuti(s, 2) - 1 == 1) {
    copyCell(s.lblMiro2[centre], slotOfCentre);
    --n;
  }
  for (std::int64_t i = 1; i <= n; ++i) {
    const Label& slot = drawSlot(s, slots);
    writeQuartet(s, 329 + 4 * (CasualeMinuti(s, 9) - 1), slot);
  }
}

void borderDots(BreakControls& s, std::int64_t n, std::int64_t slots) {
  if (n == 0) return;
  // The number drawn, which is 1 here, is what picks the slot: corners and arm tips only ever take
  // slot 1. And n is not asked again between the two, so that it can fall below 0. Both are meant.
  for (const int leader : {437, 325}) {
    const std::int64_t drawn = CasualeMinuti(s, 3);
    if (drawn != 1) continue;
    writeQuartet(s, leader, s.lblValoreB[drawn]);
    --n;
  }
  for (std::int64_t i = 1; i <= n; ++i) {
    const Label& slot = drawSlot(s, slots);
    const std::int64_t leader = 365 + 4 * (CasualeMinuti(s, 9) - 1);
    // Rows and columns of the border at once, as the painting of Timer B's designs does not.
    writeQuartet(s, leader, slot);
    writeQuartet(s, leader + 36, slot);
  }
}

void fieldDots(BreakControls& s) {
  // No button ever gives this element that colour: idle unless a hand sets it from outside.
  if (s.lblCrea[11].BackColor != colours::selected) return;
  const std::int64_t n = CasualeMinuti(s, designCount(s, 11) + 1) - 1;
  for (std::int64_t i = 1; i <= n; ++i) {
    const Label& slot = drawSlot(s, drawSlotsInUse(s));
    writeQuartet(s, 4 * CasualeMinuti(s, 81) - 3, slot);
  }
}

}  // namespace

void DisegnoBreak(BreakControls& s) {
  if (s.lblCrea[10].BackColor == colours::selected) ground(s);
  rectangles(s);
  const std::int64_t onArms = dots(s, 3, 4);
  // Drawn whether there are dots or not, and once for arms and border.
  const std::int64_t slots = drawSlotsInUse(s);
  armDots(s, onArms, slots);
  borderDots(s, dots(s, 5, 6), slots);
  fieldDots(s);
}

}  // namespace caleidoscopio
