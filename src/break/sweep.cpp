#include "break/sweep.h"

#include "break/patterns.h"
#include "mosaic/cells.h"
#include "panel/numbers.h"

namespace caleidoscopio {

namespace {

using Ring = std::span<const std::int16_t>;

void uncover(BreakControls& s, Ring ring) {
  auto& display = s.lblMiro;
  auto& design = s.lblMiro2;
  // Two loops: the test for captions in a single one costs as much as the copies.
  if (showsDigits(s))
    for (const std::int16_t i : ring) copyCell(display[i], design[i]);
  else
    for (const std::int16_t i : ring) copyColours(display[i], design[i]);
}

void paint(BreakControls& s, Ring ring) {
  if (ring.empty()) return;
  auto& display = s.lblMiro;
  const bool captions = showsDigits(s);
  const Label& slot = s.lblValore[number16(s, s.lblColSCelto)];
  for (const std::int16_t i : ring) copyIf(captions, display[i], slot);
}

}  // namespace

void SweepBreak(BreakControls& s) {
  const std::int64_t pattern = number16(s, s.lblBreakMode[17]);
  const std::int64_t count = number16(s, s.lblBreak) - 1;
  s.lblBreak.Caption = text(count);
  // In is the exact reverse of Out, for every pattern and kind.
  const bool out = s.lblBreak.BackColor == colours::selected;
  const BreakPattern* known = findBreakPattern(pattern);
  const Ring ring = breakRing(pattern, out && known ? startValue(*known) - count : count);

  if (s.lblTrans.Caption == "3") {
    uncover(s, ring);
  } else if (pattern == immediato) {
    // Its design digit comes from the slot itself, not from the first slot of that colour.
    if (!ring.empty()) fillWithSweptColour(s);
  } else {
    paint(s, ring);
    ConsolidaPiano(s);
  }
}

void fillWithSweptColour(BreakControls& s) {
  auto& display = s.lblMiro;
  auto& design = s.lblMiro2;
  const bool captions = showsDigits(s);
  const Label& slot = s.lblValore[number16(s, s.lblColSCelto)];
  for (int i = 1; i <= cellCount; ++i) {
    copyIf(captions, display[i], slot);
    copyCell(design[i], slot);
  }
}

}  // namespace caleidoscopio
