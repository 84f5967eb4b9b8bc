#pragma once

#include <cassert>

#include "mosaic/index_map.h"
#include "transform/transform_controls.h"

namespace caleidoscopio {

/// The n-th quartet, 0 to 2 * size, of the bent line of size 1 to 8 at corner 1 to 4, by its
/// leader. At corner 1 the line comes in along column `size` from the quadrant's first row down to
/// row `size`, and goes out along that row to the first column; each further corner is the same
/// line turned a quarter to the right.
constexpr int angleLeader(int corner, int size, int n) {
  assert(1 <= corner && corner <= 4 && 1 <= size && size <= 8 && 0 <= n && n <= 2 * size);
  int row = n < size ? n : size;
  int column = n < size ? size : 2 * size - n;
  for (int turn = 1; turn < corner; ++turn) {
    const int before = row;
    row = column;
    column = 8 - before;
  }
  return leaderAt(row + 1, column + 1);
}

/// One tick: the next quartet of the figure is painted on the display plane, which is committed
/// whole. After the last one a new figure begins in a new colour.
void PassoAngolo(TransformControls& s);

/// The next figure: a size other than the last one (unless 100 draws find none), at the corner
/// that lblAngoli moves on to.
void NuovaFiguraAngolo(TransformControls& s);

/// Draws the figure's colour among the slots in use.
void ScegliColoreScelto(TransformControls& s);

/// How the corner moves on: "Or", "Ao", "Rnd" in turn.
void lblAngoli_Click(TransformControls& s);

}  // namespace caleidoscopio
