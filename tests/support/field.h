#pragma once

#include <string>
#include <vector>

#include "instrument.h"

namespace caleidoscopio::test {

/// Gives every cell of both planes a triple of its own, so that each copy can be told from where
/// it came. The planes differ.
inline void makeEveryCellItsOwn(Store& s) {
  for (int i = 1; i <= 441; ++i) {
    const auto n = static_cast<std::uint32_t>(i);
    s.lblMiro[i].Caption = "d" + std::to_string(i);
    s.lblMiro[i].BackColor = {0x100000 + n};
    s.lblMiro[i].ForeColor = {0x200000 + n};
    s.lblMiro2[i].Caption = "p" + std::to_string(i);
    s.lblMiro2[i].BackColor = {0x300000 + n};
    s.lblMiro2[i].ForeColor = {0x400000 + n};
  }
}

/// Paints cell i of both planes with slot k, as a tool does while digits are shown.
inline void paintWithSlot(Store& s, int i, int k) {
  for (Label* cell : {&s.lblMiro[i], &s.lblMiro2[i]}) {
    cell->Caption = s.lblValore[k].Caption;
    cell->BackColor = s.lblValore[k].BackColor;
    cell->ForeColor = s.lblValore[k].ForeColor;
  }
}

struct Triple {
  std::string caption;
  Colour back, fore;
  bool operator==(const Triple&) const = default;
};
inline Triple tripleOf(const Frame& f) {
  return {f.Caption, f.BackColor, f.ForeColor};
}

/// Elements 1 to 441 of a plane; element 0 of the vector is empty.
template <class Plane>
std::vector<Triple> planeOf(const Plane& plane) {
  std::vector<Triple> cells(1);
  for (int i = 1; i <= 441; ++i) cells.push_back(tripleOf(plane[i]));
  return cells;
}

}  // namespace caleidoscopio::test
