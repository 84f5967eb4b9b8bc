#include "mosaic/painting.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include "mosaic/cells.h"
#include "panel/numbers.h"

namespace caleidoscopio {

namespace {

/// What one click paints, by the block that the cell lies in.
struct BrushBlock {
  int first, last;
  int members;  ///< cells of a quartet; the centre stands alone
  int second;   ///< from the quartet to the one painted with it; 0 for none
};
// The border is symmetric in the diagonals too: a row's quartet brings that of the column.
constexpr BrushBlock brushBlocks[] = {{1, fieldEnd, 4, 0}, {325, 364, 4, 0},
                                      {365, 400, 4, 36},   {401, 436, 4, -36},
                                      {437, 440, 4, 0},    {centre, centre, 1, 0}};

enum class Reach { Block, Quartet };

void rewrite(MosaicControls& s, int i, Reach reach, const Frame& colours,
             const std::string& digit) {
  for (const BrushBlock& block : brushBlocks) {
    if (i < block.first || i > block.last) continue;
    const int base = baseOf(i);
    for (int m = 0; m < block.members; ++m) paintBothPlanes(s, base + m, colours, digit);
    if (block.second == 0 || reach == Reach::Quartet) continue;
    for (int m = 0; m < block.members; ++m)
      paintBothPlanes(s, base + block.second + m, colours, digit);
  }
}

void brush(MosaicControls& s, int i, Reach reach) {
  // Asked once, before anything is written: the cell clicked decides for its whole quartet.
  if (s.lblMiro[i].BackColor == s.lblValAttivo.BackColor) {
    const std::int64_t ground = number(s, s.lblSfondoAttivo);
    rewrite(s, i, reach, s.lblSfondo[ground], s.lblValore[ground].Caption);
  } else {
    rewrite(s, i, reach, s.lblValAttivo, s.lblNumAttivo.Caption);
  }
}

void paintRectangleQuartet(MosaicControls& s, std::int64_t leader) {
  const Label& slot = s.lblValore[number(s, s.lblValAttivo)];
  for (int m = 0; m < 4; ++m) paintBothPlanes(s, leader + m, slot, slot.Caption);
}

/// The two corners may lie either way round: what lies between them is filled.
void fillRectangle(MosaicControls& s, std::int64_t from, std::int64_t to) {
  const auto row = [](std::int64_t i) { return (i - 1) / 36; };
  const auto column = [](std::int64_t i) { return (i - 1) % 36 / 4; };
  const auto [top, bottom] = std::minmax({row(from), row(to)});
  const auto [left, right] = std::minmax({column(from), column(to)});
  for (std::int64_t c = left; c <= right; ++c)
    for (std::int64_t r = top; r <= bottom; ++r) paintRectangleQuartet(s, 1 + 36 * r + 4 * c);
}

/// The tool knows the top left quadrant alone; elsewhere a click does nothing.
void rectangleCorner(MosaicControls& s, int i) {
  if (i >= 322 || i % 4 != 1) return;
  Label& awaited = s.lblComCol[4];
  if (awaited.Caption == "1") {
    s.lblComCol[5].Caption = text(i);
    paintRectangleQuartet(s, i);
    awaited.Caption = "2";
  } else if (awaited.Caption == "2") {
    fillRectangle(s, number(s, s.lblComCol[5]), i);
    awaited.Caption = "1";
  }
}

struct Scope {
  std::string_view name;
  int replaceFirst, fillFirst, last;
};
// A replacement in the field begins at the spare cell, which nobody sees: kept as it is.
constexpr Scope scopes[] = {
    {"0", 0, 1, fieldEnd}, {"1", 325, 325, cellCount}, {"2", 1, 1, cellCount}};

}  // namespace

void lblMiro_Click(MosaicControls& s, int i) {
  s.lblIndex.Caption = text(i);
  if (s.lblComCol[4].BackColor != colours::unselected) {
    rectangleCorner(s, i);
    return;
  }
  brush(s, i, Reach::Block);
}

void brushQuartet(MosaicControls& s, int i) {
  s.lblIndex.Caption = text(i);
  brush(s, i, Reach::Quartet);
}

void lblSfondo_Click(MosaicControls& s, int k) {
  const bool fill = number(s, s.lblSfondoAttivo) == k;
  s.lblClickSfondo.Caption = fill ? "1" : "0";
  s.lblSfondoAttivo.Caption = text(k);
  for (int j = 0; j <= 6; ++j) s.lblSfondo[j].BorderStyle = 0;
  s.lblSfondo[k].BorderStyle = 1;

  for (const Scope& scope : scopes) {
    if (s.lblSelSfondo[3].Caption != scope.name) continue;
    // A fill asks for no colour, so it does not mind what the last background was.
    std::optional<Colour> old;
    if (!fill) old = s.lblSfondo[number(s, s.lblSfondoMem)].BackColor;
    for (int i = fill ? scope.fillFirst : scope.replaceFirst; i <= scope.last; ++i)
      if (fill || s.lblMiro[i].BackColor == old)
        paintBothPlanes(s, i, s.lblSfondo[k], s.lblValore[k].Caption);
  }
  s.lblSfondoMem.Caption = s.lblSfondoAttivo.Caption;
}

void lblSelSfondo_Click(MosaicControls& s, int k) {
  for (int j = 0; j <= 2; ++j) s.lblSelSfondo[j].BackColor = colours::unselected;
  s.lblSelSfondo[k].BackColor = colours::selected;
  s.lblSelSfondo[3].Caption = text(k);
}

}  // namespace caleidoscopio
