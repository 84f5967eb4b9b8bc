#include "mosaic/cells.h"

#include "panel/numbers.h"

namespace caleidoscopio {

void ConsolidaPiano(MosaicControls& s) {
  auto& display = s.lblMiro;
  auto& design = s.lblMiro2;
  auto& slots = s.lblValore;
  for (int i = 1; i <= cellCount; ++i) {
    const Label& shown = display[i];
    Label& kept = design[i];
    copyColours(kept, shown);
    for (int k = 0; k <= 6; ++k)
      if (shown.BackColor == slots[k].BackColor) {
        kept.Caption = slots[k].Caption;
        break;
      }
  }
}

void paintBothPlanes(MosaicControls& s, std::int64_t i, const Frame& colours,
                     const std::string& digit) {
  Label& shown = s.lblMiro[i];
  Label& design = s.lblMiro2[i];
  shown.BackColor = colours.BackColor;
  design.BackColor = colours.BackColor;
  shown.ForeColor = colours.ForeColor;
  design.ForeColor = colours.ForeColor;
  design.Caption = digit;
  if (showsDigits(s)) shown.Caption = digit;
}

void cmdDisegnaRettangoli2_Click(MosaicControls& s) {
  s.lblProva1.Caption.clear();
  s.lblProva2.Caption.clear();
  for (int i = 1; i <= cellCount; ++i) {
    const Label& shown = s.lblMiro[i];
    const Label& design = s.lblMiro2[i];
    const char* differs = shown.Caption != design.Caption       ? "C"
                          : shown.BackColor != design.BackColor ? "B"
                          : shown.ForeColor != design.ForeColor ? "F"
                                                                : nullptr;
    if (!differs) continue;
    s.lblProva1.Caption = text(i);
    s.lblProva2.Caption = differs;
    return;
  }
}

void Label3_Click(MosaicControls& s) {
  s.FraMiro2.Visible = !s.FraMiro2.Visible;
}

}  // namespace caleidoscopio
