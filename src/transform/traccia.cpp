#include "transform/traccia.h"

#include "mosaic/cells.h"
#include "mosaic/random_pick.h"
#include "panel/numbers.h"

namespace caleidoscopio {

namespace {

constexpr int clockwise[] = {-36, 4, 36, -4};  // up, right, down, left

/// The neighbours of a place: the first of them by its step in `clockwise`, and how many follow.
struct Neighbours {
  int first, count;
};
// The order decides which neighbour a draw means. By row (top, inside, bottom) and column.
constexpr Neighbours neighbours[3][3] = {
    {{1, 2}, {1, 3}, {2, 2}}, {{0, 3}, {0, 4}, {2, 3}}, {{0, 2}, {3, 3}, {3, 2}}};

constexpr int zone(std::int64_t along) {
  return along == 0 ? 0 : along == 8 ? 2 : 1;
}

/// The quartet of `leader` takes a cell on both planes, the design first.
void paintQuartet(TransformControls& s, std::int64_t leader, const Label& from) {
  auto& display = s.lblMiro;
  auto& design = s.lblMiro2;
  for (int i = 0; i <= 3; ++i) {
    copyCell(design[leader + i], from);
    copyShown(s, display[leader + i], from);
  }
}

void repaintOwn(TransformControls& s) {
  const std::int64_t own = number(s, s.lblCasScelta);
  for (int i = 0; i < 30; ++i) {
    s.lblRndColor.Caption = text(CasualeMinuti(s, 4) - 1);
    if (s.lblMiro[own].BackColor != s.lblValore[number(s, s.lblRndColor)].BackColor) break;
  }
  paintQuartet(s, own, s.lblValore[number(s, s.lblRndColor)]);
}

void moveTo(TransformControls& s, const Label& place) {
  // The colour is the design plane's, though the display was looked at: where an engine has drawn
  // on the display alone the two differ, and are meant to.
  paintQuartet(s, number(s, place), s.lblMiro2[number(s, s.lblCasScelta)]);
  s.lblCasScelta.Caption = place.Caption;
}

}  // namespace

void ElencaSuccessive(TransformControls& s) {
  const std::int64_t leader = number(s, s.lblCasScelta);
  const auto [first, count] = neighbours[zone((leader - 1) / 36)][zone((leader - 1) % 36 / 4)];
  s.lblSuccessive[0].Caption = text(count);
  for (int i = 1; i <= 4; ++i) {
    const int step = clockwise[(first + i - 1) % 4];
    s.lblSuccessive[i].Caption = i <= count ? text(leader + step) : std::string();
    s.lblDirez[i].Caption = i <= count ? text(step) : std::string();
  }
}

void PassoTraccia(TransformControls& s) {
  auto& display = s.lblMiro;
  auto& listed = s.lblSuccessive;
  const Colour own = display[number(s, s.lblCasScelta)].BackColor;
  const std::int64_t count = number(s, listed[0]);
  for (std::int64_t i = 1; i <= count; ++i) {
    if (display[number(s, listed[i])].BackColor != own) continue;
    listed[i].Caption.clear();
    s.lblDirez[i].Caption.clear();
    listed[0].Caption = text(number(s, listed[0]) - 1);
  }
  for (int i = 1; i <= 4; ++i) {
    s.lblSuccessiveB[i].Caption.clear();
    s.lblDirezB[i].Caption.clear();
  }
  s.lblRisistema.Caption = "0";
  for (int i = 1; i <= 4; ++i) {
    if (listed[i].Caption.empty()) continue;
    s.lblRisistema.Caption = text(number(s, s.lblRisistema) + 1);
    const std::int64_t packed = number(s, s.lblRisistema);
    s.lblSuccessiveB[packed].Caption = listed[i].Caption;
    s.lblDirezB[packed].Caption = s.lblDirez[i].Caption;
  }
}

void PassoTracciaCasella(TransformControls& s) {
  const Label& left = s.lblSuccessive[0];
  if (left.Caption == "0") {
    repaintOwn(s);
  } else if (left.Caption == "1") {
    moveTo(s, s.lblSuccessiveB[1]);
  } else {
    s.lblRndPoss.Caption = text(CasualeMinuti(s, number(s, left)));
    moveTo(s, s.lblSuccessiveB[number(s, s.lblRndPoss)]);
  }
  ElencaSuccessive(s);
}

}  // namespace caleidoscopio
