#include "colours/random_active.h"

#include "mosaic/cells.h"
#include "mosaic/random_pick.h"
#include "panel/numbers.h"

namespace caleidoscopio {

void ColoreCasualeAttivo(ColourControls& s) {
  s.lblCambioCol[0].BackColor = colours::selected;
  std::int64_t drawn = 0;
  for (int round = 0; round < 100 && drawn == 0; ++round) {
    const std::int64_t p = CasualeMinuti(s, 101);
    if (s.lblColore[p].BorderStyle == 0) drawn = p;
  }
  if (drawn == 0) return;
  copyColours(s.lblMemoCol, s.lblValAttivo);
  int k = 0;
  while (k <= 6 && s.lblValore[k].BorderStyle != 1) ++k;
  s.lblColore[number(s, s.lblTav[k])].BorderStyle = 0;
  const Label& swatch = s.lblColore[drawn];
  s.lblColore[drawn].BorderStyle = 1;
  s.lblValAttivo.Caption = text(k);
  copyColours(s.lblValAttivo, swatch);
  copyColours(s.lblValore[k], swatch);
  copyColours(s.lblSfondo[k], swatch);
  s.lblTav[k].Caption = text(drawn);
}

}  // namespace caleidoscopio
