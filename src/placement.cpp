#include <cassert>
#include <string_view>

#include "instrument.h"
#include "mosaic/index_map.h"
#include "panel/geometry.h"

namespace caleidoscopio {

namespace {

struct Elements {
  int first, count;
};
struct Box {
  double left, top, width, height;
};
struct Grid {
  double across = 0, down = 0;  ///< from one element to the next, and from row to row
  int columns = 1;
};

/// A control, or the elements of an array in the rows of a grid. All lengths are twips from the
/// parent's corner at the design size of 15360 by 11520.
struct PlacementRow {
  std::string_view control;
  Elements elements;
  Box box;
  Look look;
  double points = 8;
  Grid grid{};
};

/// The rows of one parent.
struct Panel {
  std::string_view parent;
  bool withField;  ///< its rows move sideways with the field on the wide screen
  std::initializer_list<PlacementRow> rows;
};

// Inside a panel everything stands between 105 and 2145 twips from its left edge, on columns of
// one, two (1035 apart), three (690), four (520) or six (345).
constexpr double left = 105;
constexpr double full = 2040, half = 1005, third = 660, quarter = 480, sixth = 315;
constexpr double line = 240;  ///< the height of a row of controls

using enum Look;

// clang-format off
const Panel panels[] = {
    {"form", true, {
        {"ShpContour", {0, 1}, {2625, 725, 10110, 10095}, Ground},
        {"ShpRettangolo", {0, 1}, {3120, 1200, 4335, 4335}, Ground},
        {"lblScritteVarie", {7, 1}, {2640, 90, 10095, 540}, Heading, 20},
        {"lblScritteVarie", {8, 1}, {2640, 10890, 10095, 285}, Heading, 9},
        {"lblScritteVarie", {9, 1}, {2640, 11175, 10095, 285}, Heading, 9},
        {"FraPannello", {0, 1}, {210, 240, 8760, 11055}, Ground},
        {"FraPannello", {1, 1}, {12915, 315, 2255, 11055}, Ground},
        {"FraPannello", {2, 1}, {2730, 840, 2255, 9855}, Ground},
    }},
    {"Frame2", true, {
        {"lblMiro", {0, 1}, {0, 0, 495, 495}, Cell, 18},
    }},
    {"FraPannello(0)", false, {
        {"lblScritteVarie", {0, 1}, {left, 120, 1650, line}, Heading, 9},
        {"cmdOnOff", {1, 1}, {1830, 120, sixth, line}, Choice},
        {"lblMode", {1, 1}, {left, 420, full, line}, Display},
        {"lblSposta", {1, 12}, {left, 720, sixth, line}, Choice, 8, {345, 270, 6}},
        {"lblOraria", {0, 1}, {left, 1290, third, line}, Choice},
        {"lblSomma", {0, 1}, {left + 690, 1290, third, line}, Display},
        {"lblSyncro", {0, 1}, {left + 1380, 1290, third, line}, Choice},
        {"lblMenoTmr", {1, 1}, {left, 1590, quarter, line}, Stepper},
        {"lblVelo", {1, 1}, {left + 520, 1590, 1000, line}, Display},
        {"lblPiùTmr", {1, 1}, {left + 1560, 1590, quarter, line}, Stepper},

        {"lblScritteVarie", {1, 1}, {left, 2055, 1650, line}, Heading, 9},
        {"cmdOnOff", {2, 1}, {1830, 2055, sixth, line}, Choice},
        {"lblMenoTmr", {2, 1}, {left, 2865, quarter, line}, Stepper},
        {"lblVelo", {2, 1}, {left + 520, 2865, 1000, line}, Display},
        {"lblPiùTmr", {2, 1}, {left + 1560, 2865, quarter, line}, Stepper},

        {"lblScritteVarie", {2, 1}, {left, 4725, 1650, line}, Heading, 9},
        {"cmdOnOff", {3, 1}, {1830, 4725, sixth, line}, Choice},
        {"lblMenoTmr", {3, 1}, {left, 5835, quarter, line}, Stepper},
        {"lblVelo", {3, 1}, {left + 520, 5835, 1000, line}, Display},
        {"lblPiùTmr", {3, 1}, {left + 1560, 5835, quarter, line}, Stepper},

        {"lblScritteVarie", {3, 1}, {left, 6300, 1650, line}, Heading, 9},
        {"cmdOnOff", {4, 1}, {1830, 6300, sixth, line}, Choice},

        {"lblScritteVarie", {4, 1}, {left, 9270, 1650, line}, Heading, 9},
        {"cmdOnOff", {5, 1}, {1830, 9270, sixth, line}, Choice},

        {"lblBack", {0, 1}, {left, 10680, third, 300}, Button},
        {"cmdGoTimer", {0, 1}, {left + 690, 10680, third, 300}, Button, 9},
        {"lblHide", {0, 1}, {left + 1380, 10680, third, 300}, Choice},
        {"FraTransf", {1, 12}, {0, 0, full, 1470}, Ground},
    }},
    {"FraPannello(1)", false, {
        {"lblScritteVarie", {5, 1}, {left, 120, full, line}, Heading, 9},
        // Each hue from right to left, as it was first laid out; the greys below have an order
        // of their own.
        {"lblColore", {1, 96}, {1845, 480, 195, 195}, Swatch, 8, {-240, 240, 8}},
        {"lblColore", {101, 1}, {165, 3360, 195, 195}, Swatch},
        {"lblColore", {100, 1}, {405, 3360, 195, 195}, Swatch},
        {"lblColore", {99, 1}, {645, 3360, 195, 195}, Swatch},
        {"lblColore", {103, 1}, {885, 3360, 195, 195}, Swatch},
        {"lblColore", {102, 1}, {1125, 3360, 195, 195}, Swatch},
        {"lblColore", {104, 1}, {1365, 3360, 195, 195}, Swatch},
        {"lblColore", {98, 1}, {1605, 3360, 195, 195}, Swatch},
        {"lblColore", {97, 1}, {1845, 3360, 195, 195}, Swatch},

        {"lblScritteVarie", {6, 1}, {left, 3720, full, line}, Heading, 9},
        {"lblComCol", {0, 3}, {left, 3990, quarter, line}, Choice, 8, {520, 0, 3}},
        {"lblComCol", {4, 1}, {left + 1560, 3990, quarter, line}, Choice},
        {"lblComCol", {3, 1}, {left, 4260, half, line}, Choice},
        {"lblComCol", {6, 1}, {left + 1035, 4260, half, line}, Button},
        {"lblComCol", {7, 2}, {left, 4530, half, line}, Choice, 8, {1035, 0, 2}},

        {"lblScritteVarie", {10, 1}, {left, 4875, 690, line}, Heading, 9},
        {"lblValAttivo", {0, 1}, {855, 4890, 600, 210}, Swatch},
        {"lblScritteVarie", {16, 1}, {1470, 4875, 735, line}, Heading, 7.5},
        {"lblValore", {0, 7}, {left, 5160, 180, line}, Swatch, 8, {195, 0, 7}},
        {"lblSfondo", {0, 7}, {left, 5430, 180, line}, Swatch, 8, {195, 0, 7}},
        {"lblPiù", {0, 7}, {left, 5700, 180, line}, Stepper, 8, {195, 0, 7}},
        {"lblTotali", {0, 25}, {1530, 5160, 120, 150}, Swatch, 8, {123, 158, 5}},
        {"lblSelSfondo", {0, 3}, {left, 6030, third, line}, Choice, 8, {690, 0, 3}},

        {"lblScritteVarie", {11, 1}, {left, 6485, full, line}, Heading, 9},

        {"lblScritteVarie", {14, 1}, {left, 7695, 1650, line}, Heading, 9},
        {"cmdOnOff", {0, 1}, {1830, 7695, sixth, line}, Choice},

        {"lblScritteVarie", {15, 1}, {left, 8600, full, line}, Heading, 9},
        {"FraMemoria", {0, 1}, {0, 0, full, 1800}, Ground},
    }},
};
// clang-format on

Element elementNamed(const Store& s, std::string_view text) {
  const auto found = s.controls.element(text);
  assert(std::holds_alternative<Element>(found) && "a placed control stands in the list");
  return std::get<Element>(found);
}

void place(Store& s, const Spot& spot, const Box& box, double points) {
  const Geometry g = geometryOf(spot.element);
  g.left = {box.left};
  g.top = {box.top};
  g.width = {box.width};
  g.height = {box.height};
  if (g.font) *g.font = {points};
  s.spots.push_back(spot);
}

/// The cells overlap by one pixel, so that the lines around them coincide.
void placeCells(Store& s) {
  constexpr Box topLeft{2640, 720, 495, 495};
  constexpr double pitch = 480;
  for (int i = 1; i <= cellCount; ++i) {
    const Place at = placeOf(i);
    Box box = topLeft;
    box.left += pitch * at.column;
    box.top += pitch * at.row;
    place(s, {{&s.lblMiro, i}, {&s.form, 0}, Cell, true}, box, 18);
  }
}

}  // namespace

void placeControls(Store& s) {
  placeCells(s);
  for (const Panel& panel : panels) {
    const Element parent = elementNamed(s, panel.parent);
    for (const PlacementRow& row : panel.rows) {
      Control* control = s.controls.find(row.control);
      assert(control && "a placed control stands in the list");
      for (int n = 0; n < row.elements.count; ++n) {
        Box box = row.box;
        box.left += row.grid.across * (n % row.grid.columns);
        box.top += row.grid.down * (n / row.grid.columns);
        place(s, {{control, row.elements.first + n}, parent, row.look, panel.withField}, box,
              row.points);
      }
    }
  }
}

}  // namespace caleidoscopio
