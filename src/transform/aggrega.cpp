#include "transform/aggrega.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "mosaic/cells.h"
#include "mosaic/random_pick.h"
#include "panel/numbers.h"

namespace caleidoscopio {

namespace {

/// A place beside the anchor, in rows and columns.
struct Beside {
  int down, right;
};
/// How a pair lies: the quartet painted with the anchor, and the six around the two in the order
/// of the count.
struct Lie {
  Beside partner;
  std::array<Beside, 6> around;
};
constexpr Lie horizontal{{0, -1}, {{{-1, -1}, {-1, 0}, {0, 1}, {1, 0}, {1, -1}, {0, -2}}}};
constexpr Lie vertical{{-1, 0}, {{{-2, 0}, {-1, -1}, {-1, 1}, {0, -1}, {0, 1}, {1, 0}}}};

constexpr std::int64_t beside(std::int64_t anchor, Beside place) {
  return onTorus(anchor, place.down, place.right);
}

void emptyCensus(TransformControls& s) {
  for (int i = 0; i <= 6; ++i) {
    s.lblCap[i].Caption = "0";
    s.lblAggrega[i].Caption = "0";
    s.lblAggrega[i].BackColor = TransformControls::freePlace;
  }
  s.lblContaAg.Caption = "0";
  s.lblAggrega[0].ForeColor = colours::black;
  s.lblAggrega[0].Caption = "100";
}

/// Adds a cell's colour to the census, which lists colours in the order of their appearance.
void enter(TransformControls& s, const Label& cell) {
  for (int i = 1; i <= 6; ++i) {
    Label& place = s.lblAggrega[i];
    if (place.BackColor == cell.BackColor) {
      place.Caption = text(number(s, place) + 1);
      return;
    }
    if (place.BackColor == TransformControls::freePlace) {
      copyColours(place, cell);
      // Empty while the display shows no digits; the commit derives the design's digit anyhow.
      s.lblCap[i].Caption = cell.Caption;
      place.Caption = "1";
      return;
    }
  }
}

/// Chooses among the places of the census that have the count m.
void chooseAmong(TransformControls& s, std::int64_t m) {
  const auto has = [&s, m](int i) { return number(s, s.lblAggrega[i]) == m; };
  int count = 0;
  for (int i = 1; i <= 6; ++i) count += has(i) ? 1 : 0;
  std::int64_t left = CasualeMinuti(s, count);
  for (int i = 1; i <= 6; ++i) {
    if (!has(i) || --left > 0) continue;
    copyColours(s.lblAggrega[0], s.lblAggrega[i]);
    s.lblAggrega[0].Caption = s.lblCap[i].Caption;
    return;
  }
}

/// For each balance, the draws of 1 to 4 at which the frequent colour is taken; the two ends do
/// not draw.
void choose(TransformControls& s) {
  const std::string& balance = s.lblMinMax[0].Caption;
  if (balance == "1") return ColorePiuRaro(s);
  if (balance == "5") return ColorePiuFrequente(s);
  if (balance != "2" && balance != "3" && balance != "4") return;
  const std::int64_t frequent = number(s, s.lblMinMax[0]) - 1;
  if (CasualeMinuti(s, 4) <= frequent)
    ColorePiuFrequente(s);
  else
    ColorePiuRaro(s);
}

void paintQuartet(TransformControls& s, std::int64_t leader) {
  auto& display = s.lblMiro;
  for (int i = 0; i <= 3; ++i) copyShown(s, display[leader + i], s.lblAggrega[0]);
}

void aggregate(TransformControls& s, const Lie& lie) {
  const std::int64_t anchor = number(s, s.lblAgg2);
  emptyCensus(s);
  auto& display = s.lblMiro;
  for (const Beside& place : lie.around) enter(s, display[beside(anchor, place)]);
  choose(s);
  paintQuartet(s, anchor);
  paintQuartet(s, beside(anchor, lie.partner));
  SincronizzaPiano(s);
}

/// By lblOpzAggrega(1); `drawn` tells, where chance decides, whether the pair lies flat.
template <class Drawn>
void aggregateByOption(TransformControls& s, Drawn drawn) {
  const std::string& lie = s.lblOpzAggrega[1].Caption;
  if (lie == "Orizz.") return AggregaOrizz(s);
  if (lie == "Vert.") return AggregaVert(s);
  if (lie != "Casuale") return;
  if (drawn())
    AggregaOrizz(s);
  else
    AggregaVert(s);
}

}  // namespace

void ColorePiuFrequente(TransformControls& s) {
  std::int64_t most = 0;
  for (int i = 1; i <= 6; ++i) most = std::max<std::int64_t>(most, number(s, s.lblAggrega[i]));
  chooseAmong(s, most);
}

void ColorePiuRaro(TransformControls& s) {
  std::int64_t least = number(s, s.lblAggrega[0]);
  for (int i = 1; i <= 6; ++i)
    if (s.lblAggrega[i].Caption != "0")
      least = std::min<std::int64_t>(least, number(s, s.lblAggrega[i]));
  chooseAmong(s, least);
}

void AggregaOrizz(TransformControls& s) {
  aggregate(s, horizontal);
}
void AggregaVert(TransformControls& s) {
  aggregate(s, vertical);
}

void PassoAggrega(TransformControls& s) {
  if (s.lblOpzAggrega[0].Caption == "Scanner") {
    // One draw for both: a scanner that goes on sideways leaves a pair lying flat.
    const std::int64_t draw = CasualeMinuti(s, 4);
    s.lblAgg2.Caption = text(scannerMove(number(s, s.lblAgg2), draw));
    aggregateByOption(s, [draw] { return draw <= 2; });
  } else {
    s.lblAgg2.Caption = text((CasualeMinuti(s, 81) - 1) * 4 + 1);
    aggregateByOption(s, [&s] { return CasualeMinuti(s, 24) <= 12; });
  }
}

void lblMinMax_MouseDown(TransformControls& s, int i) {
  for (int j = 1; j <= 5; ++j) s.lblMinMax[j].BackColor = colours::unselected;
  s.lblMinMax[i].BackColor = colours::selected;
  s.lblMinMax[0].Caption = text(i);
}

void lblOpzAggrega_MouseDown(TransformControls& s, int i) {
  Label& option = s.lblOpzAggrega[i];
  option.BackColor = colours::pressed;
  struct Next {
    int element;
    std::string_view now, then;
  };
  constexpr Next cycle[] = {{0, "Random", "Scanner"},
                            {0, "Scanner", "Random"},
                            {1, "Orizz.", "Vert."},
                            {1, "Vert.", "Casuale"},
                            {1, "Casuale", "Orizz."}};
  for (const Next& next : cycle)
    if (next.element == i && next.now == option.Caption) {
      option.Caption = next.then;
      return;
    }
}

void lblOpzAggrega_MouseUp(TransformControls& s, int i) {
  s.lblOpzAggrega[i].BackColor = colours::unselected;
}

void lblAgg2_Click(TransformControls& s) {
  s.lblAgg2.Caption = "1";
}

}  // namespace caleidoscopio
