#include "colours/intervals.h"

#include <algorithm>
#include <limits>

#include "mosaic/random_pick.h"
#include "panel/numbers.h"

namespace caleidoscopio {

void ScegliIntervalloColore(ColourControls& s) {
  // The longest that a timer takes; a pause that would be longer is that long.
  constexpr std::int64_t longest = std::numeric_limits<std::int32_t>::max();
  const std::int64_t base = number(s, s.lblTmrRndCol[0]);
  const Number count = number(s, s.lblTmrRndCol[3]) + 1;
  s.lblIntCol[1].Caption = s.lblTmrRndCol[0].Caption;
  for (std::int64_t i = 2; i <= count; ++i)
    s.lblIntCol[i].Caption = text(std::min(base + 1000 * (i - 1), longest));
  const Label& drawn = s.lblIntCol[CasualeMinuti(s, count)];
  s.lblTmrRndCol[6].Caption = drawn.Caption;
  s.TmrGoD.setInterval(number(s, drawn));
}

}  // namespace caleidoscopio
