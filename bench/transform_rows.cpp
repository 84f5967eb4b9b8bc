#include <array>
#include <utility>

#include "draws.h"
#include "rows.h"
#include "transform/aggrega.h"
#include "transform/angoli.h"
#include "transform/scambia.h"

namespace caleidoscopio::bench {

namespace {

using std::size_t;

struct BareAngoli : BareDrawing {
  std::array<std::string, 22> angolo;
  std::string angoli = "Rnd", colScelto = "4", nsc = "7";
  BareAngoli() {
    angolo.fill("0");
    angolo[20] = angolo[21] = "4";
  }
  void newFigure() {
    size_t size = 0;
    for (int i = 0; i < 100; ++i) {
      size = pick(8);
      if (size == number(angolo[21])) continue;
      angolo[21] = std::to_string(size);
      break;
    }
    for (size_t i = 1; i <= 18; ++i) angolo[i].clear();
    if (angoli == "Rnd") angolo[20] = std::to_string(pick(4));
    angolo[18] = std::to_string(2 * size + 1);
    const int corner = static_cast<int>(number(angolo[20]));
    for (size_t n = 0; n <= 2 * size; ++n)
      angolo[n + 1] =
          std::to_string(angleLeader(corner, static_cast<int>(size), static_cast<int>(n)));
  }
  void tick() {
    angolo[0] = std::to_string(number(angolo[0]) + 1);
    if (number(angolo[0]) > number(angolo[18])) {
      newFigure();
      angolo[0] = "1";
      colScelto = std::to_string(pick(number(nsc)) - 1);
    }
    const size_t leader = number(angolo[number(angolo[0])]);
    const size_t slot = number(colScelto);
    for (size_t i = 0; i <= 3; ++i) take(field.miro, leader + i, field.valore, slot, shows());
    commit(field);
  }
};

struct BareLineare : BareDrawing {
  std::string casel = "1", direzione, lungh = "0", colNumber = "4";
  std::array<std::string, 9> lunghez{"3", "1", "4", "7", "0", "0", "0", "0", "0"};
  Cells<1> carat, carat2, trial;
  BareLineare() {
    for (Cells<1>* cell : {&carat, &carat2, &trial}) cell->BackColor[0] = colours::unselected;
  }
  size_t next() const {
    const size_t leader = number(casel), row = (leader - 1) / 36, column = (leader - 1) % 36 / 4;
    if (direzione == "-36") return row == 0 ? leader + 288 : leader - 36;
    if (direzione == "4") return column == 8 ? leader - 32 : leader + 4;
    if (direzione == "36") return row == 8 ? leader - 288 : leader + 36;
    return column == 0 ? leader + 32 : leader - 4;
  }
  void newRun() {
    lungh = lunghez[pick(number(lunghez[0]))];
    const size_t d = pick(4);
    if (direzione.empty())
      direzione = std::array{"-36", "4", "36", "-4"}[d - 1];
    else if (direzione == "-36" || direzione == "36")
      direzione = d <= 2 ? "4" : "-4";
    else
      direzione = d <= 2 ? "36" : "-36";
    if (pick(5) == 5) {
      take(trial, 0, field.valore, pick(number(colNumber)) - 1);
      take(carat, 0, trial, 0);
    }
    for (int i = 0; i < 30; ++i) {
      take(carat2, 0, field.valore, pick(number(colNumber)) - 1);
      if (carat2.BackColor[0] != carat.BackColor[0]) break;
    }
  }
  void tick() {
    if (number(lungh) == 0) newRun();
    const size_t leader = next();
    casel = std::to_string(leader);
    const Cells<1>& from = field.miro.BackColor[leader] == carat.BackColor[0] ? carat2 : carat;
    for (size_t i = 0; i <= 3; ++i) {
      take(field.miro, leader + i, from, 0, shows());
      take(field.miro2, leader + i, from, 0);
    }
    lungh = std::to_string(number(lungh) - 1);
  }
};

struct BareTraccia : BareDrawing {
  std::string own = "161", rndColor, rndPoss, packed = "0";
  std::array<std::string, 5> listed{"4", "29", "69", "101", "61"};
  std::array<std::string, 5> steps{"", "-36", "4", "36", "-4"};
  std::array<std::string, 5> left, leftSteps;
  template <size_t From>
  void paintQuartet(size_t leader, const Cells<From>& source, size_t from) {
    for (size_t i = 0; i <= 3; ++i) {
      take(field.miro2, leader + i, source, from);
      take(field.miro, leader + i, source, from, shows());
    }
  }
  void list() {
    static constexpr int clockwise[] = {-36, 4, 36, -4};
    static constexpr int places[3][3][2] = {
        {{1, 2}, {1, 3}, {2, 2}}, {{0, 3}, {0, 4}, {2, 3}}, {{0, 2}, {3, 3}, {3, 2}}};
    const auto leader = static_cast<int>(number(own));
    const auto zone = [](int along) { return along == 0 ? 0 : along == 8 ? 2 : 1; };
    const auto [first, count] = places[zone((leader - 1) / 36)][zone((leader - 1) % 36 / 4)];
    listed[0] = std::to_string(count);
    for (int i = 1; i <= 4; ++i) {
      const int step = clockwise[(first + i - 1) % 4];
      const auto at = static_cast<size_t>(i);
      listed[at] = i <= count ? std::to_string(leader + step) : std::string();
      steps[at] = i <= count ? std::to_string(step) : std::string();
    }
  }
  void tick() {
    const Colour colour = field.miro.BackColor[number(own)];
    const size_t count = number(listed[0]);
    for (size_t i = 1; i <= count; ++i) {
      if (field.miro.BackColor[number(listed[i])] != colour) continue;
      listed[i].clear();
      steps[i].clear();
      listed[0] = std::to_string(number(listed[0]) - 1);
    }
    for (size_t i = 1; i <= 4; ++i) {
      left[i].clear();
      leftSteps[i].clear();
    }
    packed = "0";
    for (size_t i = 1; i <= 4; ++i) {
      if (listed[i].empty()) continue;
      packed = std::to_string(number(packed) + 1);
      left[number(packed)] = listed[i];
      leftSteps[number(packed)] = steps[i];
    }
    if (listed[0] == "0") {
      for (int i = 0; i < 30; ++i) {
        rndColor = std::to_string(pick(4) - 1);
        if (field.miro.BackColor[number(own)] != field.valore.BackColor[number(rndColor)]) break;
      }
      paintQuartet(number(own), field.valore, number(rndColor));
    } else {
      size_t chosen = 1;
      if (listed[0] != "1") {
        rndPoss = std::to_string(pick(number(listed[0])));
        chosen = number(rndPoss);
      }
      paintQuartet(number(left[chosen]), field.miro2, number(own));
      own = left[chosen];
    }
    list();
  }
};

struct BareAggrega : BareDrawing {
  std::string anchor = "1", balance = "3", move = "Random", lie = "Casuale", counted;
  Cells<7> census;
  std::array<std::string, 7> captions;
  void choose(size_t m) {
    size_t count = 0;
    for (size_t i = 1; i <= 6; ++i) count += number(census.Caption[i]) == m ? 1 : 0;
    size_t d = pick(count);
    for (size_t i = 1; i <= 6; ++i) {
      if (number(census.Caption[i]) != m || --d > 0) continue;
      take(census, 0, census, i, false);
      census.Caption[0] = captions[i];
      return;
    }
  }
  void enter(size_t cell) {
    for (size_t i = 1; i <= 6; ++i) {
      if (census.BackColor[i] == field.miro.BackColor[cell]) {
        census.Caption[i] = std::to_string(number(census.Caption[i]) + 1);
        return;
      }
      if (census.BackColor[i] == TransformControls::freePlace) {
        take(census, i, field.miro, cell, false);
        captions[i] = field.miro.Caption[cell];
        census.Caption[i] = "1";
        return;
      }
    }
  }
  void tick() {
    static constexpr int flat[7][2] = {{-1, -1}, {-1, 0}, {0, 1}, {1, 0},
                                       {1, -1},  {0, -2}, {0, -1}};
    static constexpr int upright[7][2] = {{-2, 0}, {-1, -1}, {-1, 1}, {0, -1},
                                          {0, 1},  {1, 0},   {-1, 0}};
    anchor = std::to_string((pick(81) - 1) * 4 + 1);
    const auto& around = pick(24) <= 12 ? flat : upright;
    const size_t leader = number(anchor);
    const auto at = [&](int i) {
      return static_cast<size_t>(
          onTorus(static_cast<std::int64_t>(leader), around[i][0], around[i][1]));
    };
    for (size_t i = 0; i <= 6; ++i) {
      captions[i] = "0";
      census.Caption[i] = "0";
      census.BackColor[i] = TransformControls::freePlace;
    }
    counted = "0";
    census.ForeColor[0] = colours::black;
    census.Caption[0] = "100";
    for (int i = 0; i < 6; ++i) enter(at(i));
    if (pick(4) <= 2) {
      size_t most = 0;
      for (size_t i = 1; i <= 6; ++i) most = std::max(most, number(census.Caption[i]));
      choose(most);
    } else {
      size_t least = number(census.Caption[0]);
      for (size_t i = 1; i <= 6; ++i)
        if (census.Caption[i] != "0") least = std::min(least, number(census.Caption[i]));
      choose(least);
    }
    for (const size_t quartet : {leader, at(6)})
      for (size_t i = 0; i <= 3; ++i) take(field.miro, quartet + i, census, 0, shows());
    commit(field);
  }
};

struct BareScambia : BareDrawing {
  std::string swaps = "12", remaining, chosen, drawn;
  Cells<83> pool;
  Cells<25> choice;
  void draw() {
    const size_t r = pick(number(remaining));
    drawn = std::to_string(r);
    chosen = std::to_string(number(chosen) + 1);
    choice.Caption[number(chosen)] = pool.Caption[r];
    for (size_t j = r; j <= 81; ++j) take(pool, j, pool, j + 1);
    remaining = std::to_string(number(remaining) - 1);
  }
  void tick() {
    for (size_t i = 1; i <= 81; ++i) pool.Caption[i] = std::to_string(4 * i - 3);
    drawn.clear();
    remaining = "81";
    chosen = "0";
    for (size_t i = 1; i <= 24; ++i) choice.Caption[i].clear();
    const size_t n = 2 * number(swaps);
    for (size_t i = 0; i < n; ++i) draw();
    for (size_t i = 1; i < n; i += 2) {
      const size_t a = number(choice.Caption[i]), b = number(choice.Caption[i + 1]);
      const std::string digit = field.miro2.Caption[a];
      take(choice, i + 1, field.miro2, a, false);
      take(field.miro2, a, field.miro2, b);
      field.miro2.Caption[b] = digit;
      take(field.miro2, b, choice, i + 1, false);
    }
    for (size_t i = 1; i <= 324; i += 4) {
      take(field.miro, i, field.miro2, i, shows());
      for (size_t k = 1; k <= 3; ++k) {
        take(field.miro, i + k, field.miro, i, shows());
        take(field.miro2, i + k, field.miro2, i);
      }
    }
  }
};

template <class Bare>
void addRow(Rows& rows, const char* mode, const char* name) {
  const auto sides = std::make_shared<DrawingSides<Bare>>();
  Store& s = sides->rig.s;
  s.lblTransf[0].Caption = mode;
  s.TmrGoB.setEnabled(true);
  rows.push_back({name, 2.0, [&s] { s.TmrGoB.raise(Event::Tick); }, [sides] { sides->bare.tick(); },
                  [sides] { return sides->same(); }});
}

}  // namespace

void addTransformRows(Rows& rows) {
  addRow<BareAngoli>(rows, "2", "Angoli");
  addRow<BareLineare>(rows, "3", "Lineare");
  addRow<BareTraccia>(rows, "4", "Traccia");
  addRow<BareAggrega>(rows, "5", "Aggrega");
  addRow<BareScambia>(rows, "6", "Scambia");
}

}  // namespace caleidoscopio::bench
