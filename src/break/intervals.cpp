#include "break/intervals.h"

#include <limits>

#include "mosaic/random_pick.h"
#include "panel/end_run.h"
#include "panel/numbers.h"

namespace caleidoscopio {

void SorteggiaIntervalloBreak(BreakControls& s) {
  s.lblIntBrk[1].Caption = s.lblBrk[0].Caption;
  const Number base = number16(s, s.lblBrk[0]);
  const Number variations = number16(s, s.lblBrk[3]);
  for (std::int64_t i = 2; i <= variations + 1; ++i) {
    const std::int64_t entry = base + 1000 * (i - 1);
    if (entry > std::numeric_limits<std::int16_t>::max())
      endRun("overflow: variation " + text(i - 1) + " comes to " + text(entry) +
             "; expected 32767 at most" + base.source() + variations.source());
    s.lblIntBrk[i].Caption = text(entry);
  }
  const Label& drawn = s.lblIntBrk[CasualeMinuti(s, variations + 1)];
  s.lblBrk[5].Caption = drawn.Caption;
  s.TmrBrk.setInterval(number(s, drawn));
}

}  // namespace caleidoscopio
