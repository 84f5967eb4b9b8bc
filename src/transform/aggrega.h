#pragma once

#include <cstdint>

#include "mosaic/index_map.h"
#include "transform/transform_controls.h"

namespace caleidoscopio {

/// The quartet `down` rows and `right` columns from a leader, on the torus of the quadrant.
constexpr std::int64_t onTorus(std::int64_t leader, int down, int right) {
  const auto row = static_cast<int>((leader - 1) / 36 % 9);
  const auto column = static_cast<int>((leader - 1) % 36 / 4);
  return leaderAt((row + down + 9) % 9 + 1, (column + right + 9) % 9 + 1);
}

/// Where the scanner goes from a leader by its draw, 1 to 4: two columns on, slantwise (twice as
/// likely), or two rows down.
constexpr std::int64_t scannerMove(std::int64_t leader, std::int64_t draw) {
  constexpr int moves[4][2] = {{0, 2}, {1, 1}, {1, 1}, {2, 0}};
  return onTorus(leader, moves[draw - 1][0], moves[draw - 1][1]);
}

/// One tick: the anchor moves, and its pair of quartets takes a colour from the six around it.
void PassoAggrega(TransformControls& s);

/// The anchor and its left neighbour, or its upper one, take the colour most or least frequent
/// around them, as lblMinMax(0) weighs. Ends with the commit of the display plane.
void AggregaOrizz(TransformControls& s);
void AggregaVert(TransformControls& s);

/// From the census in lblAggrega(1) to (6) a colour with the largest, the smallest count into
/// lblAggrega(0). One draw, also when one place alone has that count.
void ColorePiuFrequente(TransformControls& s);
void ColorePiuRaro(TransformControls& s);

/// The balance between rare and frequent: 1 always rare, 5 always frequent.
void lblMinMax_MouseDown(TransformControls& s, int i);

/// 0: how the anchor moves, "Random" or "Scanner"; 1: how the pair lies, "Orizz.", "Vert.",
/// "Casuale" in turn.
void lblOpzAggrega_MouseDown(TransformControls& s, int i);
void lblOpzAggrega_MouseUp(TransformControls& s, int i);

/// Puts the anchor back on the first quartet.
void lblAgg2_Click(TransformControls& s);

}  // namespace caleidoscopio
