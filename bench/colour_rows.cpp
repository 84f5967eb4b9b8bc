#include <array>
#include <utility>

#include "draws.h"
#include "mosaic/index_map.h"
#include "rows.h"

namespace caleidoscopio::bench {

namespace {

using std::size_t;

/// The slots, the palette and the tools that a design and a change of colours work with.
struct BareSlots : BareDrawing {
  Cells<105> swatches;
  std::array<std::int32_t, 105> inUse{};
  Cells<8> ground;
  std::array<std::int32_t, 8> border{};
  std::array<std::string, 8> tav;
  Cells<25> matrix, marks;
  Cells<1> active, old;
  std::string digit = "3", indexClicked, mode = "Disegno", nsc = "7", counted, first = "Y",
              times = "1", groundActive = "0";
  std::array<std::string, 12> change;

  void copyFrom(Store& s) {
    for (int i = 0; i <= 104; ++i) {
      const auto at = static_cast<size_t>(i);
      swatches.BackColor[at] = s.lblColore[i].BackColor;
      swatches.ForeColor[at] = s.lblColore[i].ForeColor;
      inUse[at] = s.lblColore[i].BorderStyle;
    }
    for (int k = 0; k <= 7; ++k) {
      const auto at = static_cast<size_t>(k);
      ground.BackColor[at] = s.lblSfondo[k].BackColor;
      ground.ForeColor[at] = s.lblSfondo[k].ForeColor;
      tav[at] = s.lblTav[k].Caption;
    }
    for (size_t i = 0; i <= 24; ++i) {
      matrix.BackColor[i] = MosaicControls::firstGround;
      marks.BackColor[i] = colours::unselected;
    }
    active.Caption[0] = s.lblValAttivo.Caption;
    active.BackColor[0] = s.lblValAttivo.BackColor;
  }
  bool same(Store& s) const {
    for (int k = 0; k <= 6; ++k)
      if (tav[static_cast<size_t>(k)] != s.lblTav[k].Caption ||
          field.valore.BackColor[static_cast<size_t>(k)] != s.lblValore[k].BackColor)
        return false;
    return true;
  }

  void select(size_t k) {
    active.Caption[0] = std::to_string(k);
    digit = field.valore.Caption[k];
    take(active, 0, field.valore, k, false);
    for (size_t j = 0; j <= 6; ++j) border[j] = 0;
    border[k] = 1;
  }
  template <size_t From>
  void recolour(size_t i, const Cells<From>& source, size_t from) {
    take(field.miro, i, source, from, false);
    take(field.miro2, i, source, from, false);
  }
  void takeFree(size_t i) {
    const size_t k = number(active.Caption[0]);
    take(old, 0, active, 0, false);
    inUse[number(tav[k])] = 0;
    inUse[i] = 1;
    take(active, 0, swatches, i, false);
    take(field.valore, k, active, 0, false);
    take(ground, k, active, 0, false);
    tav[k] = std::to_string(i);
    for (size_t j = 0; j <= 24; ++j)
      if (matrix.BackColor[j] == old.BackColor[0]) take(matrix, j, field.valore, k, false);
    for (size_t j = 1; j <= cellCount; ++j)
      if (field.miro.BackColor[j] == old.BackColor[0]) recolour(j, field.valore, k);
  }
  void trade(size_t i) {
    const size_t k = number(active.Caption[0]);
    take(old, 0, active, 0, false);
    size_t other = 0;
    while (other <= 6 && ground.BackColor[other] != swatches.BackColor[i]) ++other;
    take(field.valore, other, old, 0, false);
    take(ground, other, old, 0, false);
    tav[other] = tav[k];
    tav[k] = std::to_string(i);
    take(field.valore, k, swatches, i, false);
    take(ground, k, swatches, i, false);
    take(active, 0, swatches, i, false);
    for (size_t j = 0; j <= 24; ++j) {
      if (matrix.BackColor[j] == old.BackColor[0]) take(marks, j, swatches, i, false);
      if (matrix.BackColor[j] == swatches.BackColor[i]) take(matrix, j, old, 0, false);
    }
    for (size_t j = 0; j <= 24; ++j)
      if (marks.BackColor[j] == swatches.BackColor[i]) take(matrix, j, marks, j, false);
    for (size_t j = 0; j <= 24; ++j) {
      marks.BackColor[j] = colours::unselected;
      marks.ForeColor[j] = colours::black;
    }
    for (size_t j = 1; j <= cellCount; ++j) {
      if (field.miro.BackColor[j] == active.BackColor[0])
        recolour(j, old, 0);
      else if (field.miro.BackColor[j] == old.BackColor[0])
        recolour(j, active, 0);
    }
  }
  void clickSwatch(size_t i) {
    if (mode != "Disegno") return;
    if (inUse[i] == 0)
      takeFree(i);
    else
      trade(i);
  }
};

struct BareT : BareSlots {
  void tick() {
    change[5] = "1";
    change[7] = digit;
    const size_t count = number(nsc);
    for (size_t k = first == "Y" ? 0 : 1; k < count; ++k) {
      select(k);
      clickSwatch(pick(101));
    }
  }
};

struct BareS : BareSlots {
  void tick() {
    change[5] = "3";
    change[7] = digit;
    change[8] = tav[6];
    for (size_t k = 6; k >= 1; --k) {
      tav[k] = tav[k - 1];
      select(k);
      clickSwatch(number(tav[k]));
    }
    tav[0] = change[8];
    select(0);
    clickSwatch(number(tav[0]));
  }
};

struct BareR : BareSlots {
  void tick() {
    change[5] = "10";
    const size_t repetitions = number(times);
    for (size_t n = 0; n < repetitions; ++n) {
      const size_t k = pick(number(nsc)) - 1;
      size_t p = 0;
      for (int i = 0; i < 100; ++i) {
        p = pick(101);
        if (inUse[p] == 0) break;
      }
      old.BackColor[0] = field.valore.BackColor[k];
      inUse[number(tav[k])] = 0;
      inUse[p] = 1;
      tav[k] = std::to_string(p);
      take(field.valore, k, swatches, p, false);
      take(ground, k, swatches, p, false);
      for (size_t j = 0; j <= 24; ++j)
        if (matrix.BackColor[j] == old.BackColor[0]) take(matrix, j, swatches, p, false);
      int used = 0;
      for (size_t j = 1; j <= 101; ++j) used += inUse[j] == 1 ? 1 : 0;
      counted = std::to_string(used);
      for (size_t j = 1; j <= cellCount; ++j)
        if (field.miro.BackColor[j] == old.BackColor[0]) recolour(j, swatches, p);
    }
  }
};

/// A design with its counts as they stand at load.
struct BareDesign : BareSlots {
  std::array<std::string, 12> counts{"0", "10", "10", "0", "0", "0", "0", "R", "M", "10", "X", "5"};
  std::string tool = "R", corner;
  void paintCell(size_t i, size_t k) {
    field.miro.BackColor[i] = field.valore.BackColor[k];
    field.miro2.BackColor[i] = field.valore.BackColor[k];
    field.miro.ForeColor[i] = field.valore.ForeColor[k];
    field.miro2.ForeColor[i] = field.valore.ForeColor[k];
    field.miro2.Caption[i] = field.valore.Caption[k];
    if (shows()) field.miro.Caption[i] = field.valore.Caption[k];
  }
  void paintQuartet(size_t leader) {
    const size_t k = number(active.Caption[0]);
    for (size_t m = 0; m < 4; ++m) paintCell(leader + m, k);
  }
  void rectangle(size_t from, size_t to) {
    indexClicked = std::to_string(from);
    corner = std::to_string(from);
    paintQuartet(from);
    indexClicked = std::to_string(to);
    const size_t one = number(corner) - 1, two = to - 1;
    const auto [top, bottom] = std::minmax({one / 36, two / 36});
    const auto [left, right] = std::minmax({one % 36 / 4, two % 36 / 4});
    for (size_t c = left; c <= right; ++c)
      for (size_t r = top; r <= bottom; ++r) paintQuartet(1 + 36 * r + 4 * c);
  }
  void brush(size_t i) {
    indexClicked = std::to_string(i);
    if (field.miro.BackColor[i] == active.BackColor[0])
      for (size_t m = 0; m < 4; ++m) paintCell(i + m, number(groundActive));
    else
      for (size_t m = 0; m < 4; ++m) {
        take(field.miro, i + m, active, 0, false);
        take(field.miro2, i + m, active, 0, false);
        field.miro2.Caption[i + m] = digit;
        if (shows()) field.miro.Caption[i + m] = digit;
      }
  }
  void tick() {
    const size_t before = number(active.Caption[0]);
    const size_t k = number(groundActive);
    for (size_t i = 1; i <= cellCount; ++i) {
      take(field.miro, i, field.valore, k, shows());
      take(field.miro2, i, field.valore, k);
    }
    const size_t slots = number(nsc);
    const size_t n = number(counts[1]) + (counts[2] == "0" ? 0 : pick(number(counts[2])));
    for (size_t i = 0; i < n; ++i) {
      const size_t from = pick(81), to = pick(81);
      select(pick(slots) - 1);
      tool = "1";
      const size_t one = 4 * from - 3;
      tool = "2";
      rectangle(one, 4 * to - 3);
    }
    tool = "R";
    const size_t dots = counts[11] == "0" ? 0 : pick(number(counts[11]) + 1) - 1;
    for (size_t i = 0; i < dots; ++i) {
      const size_t slot = pick(slots) - 1, q = pick(81);
      select(slot);
      brush(4 * q - 3);
    }
    select(before);
  }
};

template <class Bare>
void addRow(Rows& rows, const char* name, void (*prepare)(Store&), void (*tick)(Store&)) {
  const auto sides = std::make_shared<DrawingSides<Bare>>();
  Store& s = sides->rig.s;
  sides->bare.copyFrom(s);
  prepare(s);
  rows.push_back({name, 2.0, [&s, tick] { tick(s); }, [sides] { sides->bare.tick(); },
                  [sides] { return sides->same() && sides->bare.same(sides->rig.s); }});
}

/// Timer F repeats operation n.
template <int n>
void choose(Store& s) {
  s.lblCambioCol[10].BackColor = colours::unselected;
  s.lblCambioCol[n].BackColor = colours::selected;
}
void nothing(Store&) {}
void tickB(Store& s) {
  s.TmrGoB.raise(Event::Tick);
}
void tickD(Store& s) {
  s.TmrGoD.raise(Event::Tick);
}

}  // namespace

void addColourRows(Rows& rows) {
  addRow<BareDesign>(rows, "Crea Disegno", nothing, tickB);
  addRow<BareT>(rows, "Colours T", choose<1>, tickD);
  addRow<BareS>(rows, "Colours S", choose<3>, tickD);
  addRow<BareR>(rows, "Colours R", choose<10>, tickD);
}

}  // namespace caleidoscopio::bench
