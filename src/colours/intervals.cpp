#include "colours/intervals.h"

#include "mosaic/random_pick.h"
#include "panel/numbers.h"

namespace caleidoscopio {

void ScegliIntervalloColore(ColourControls& s) {
  const std::int64_t base = number(s, s.lblTmrRndCol[0]);
  const Number count = number(s, s.lblTmrRndCol[3]) + 1;
  s.lblIntCol[1].Caption = s.lblTmrRndCol[0].Caption;
  for (std::int64_t i = 2; i <= count; ++i) s.lblIntCol[i].Caption = text(base + 1000 * (i - 1));
  const Label& drawn = s.lblIntCol[CasualeMinuti(s, count)];
  s.lblTmrRndCol[6].Caption = drawn.Caption;
  s.TmrGoD.setInterval(number(s, drawn));
}

}  // namespace caleidoscopio
