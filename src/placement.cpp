#include <cassert>
#include <span>
#include <string_view>
#include <vector>

#include "instrument.h"
#include "mosaic/index_map.h"
#include "panel/scaling.h"

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
        {"lblScritteVarie", {7, 1}, {2640, 90, 10095, 540}, Title, 20},
        {"lblScritteVarie", {8, 1}, {2640, 10890, 10095, 285}, Title, 9},
        {"lblScritteVarie", {9, 1}, {2640, 11175, 10095, 285}, Title, 9},
        {"FraPannello", {0, 1}, {210, 240, 8760, 11055}, Ground},
        {"FraPannello", {1, 1}, {12915, 315, 2255, 11055}, Ground},
        {"FraPannello", {2, 1}, {2730, 840, 2255, 9855}, Ground},
    }},
    {"Frame2", true, {
        {"lblMiro", {0, 1}, {0, 0, 495, 495}, Cell, 18},
    }},
    {"FraPannello(0)", false, {
        {"lblScritteVarie", {0, 1}, {left, 120, 1710, line}, Heading},
        {"cmdOnOff", {1, 1}, {1830, 120, sixth, line}, Choice},
        {"lblMode", {1, 1}, {left, 405, full, line}, Display},
        {"lblSposta", {1, 12}, {left, 690, sixth, line}, Choice, 8, {345, 270, 6}},
        {"lblOraria", {0, 1}, {left, 1260, third, line}, Choice},
        {"lblSomma", {0, 1}, {left + 690, 1260, third, line}, Display},
        {"lblSyncro", {0, 1}, {left + 1380, 1260, third, line}, Choice},
        {"lblMenoTmr", {1, 1}, {left, 1545, quarter, line}, Stepper},
        {"lblVelo", {1, 1}, {left + 520, 1545, 1000, line}, Display},
        {"lblPiùTmr", {1, 1}, {left + 1560, 1545, quarter, line}, Stepper},

        {"lblScritteVarie", {1, 1}, {left, 2055, 1710, line}, Heading},
        {"cmdOnOff", {2, 1}, {1830, 2055, sixth, line}, Choice},
        {"lblMode", {2, 1}, {left, 2325, full, line}, Display},
        {"lblTransf", {1, 6}, {left, 2595, sixth, line}, Choice, 8, {345, 0, 6}},
        {"lblMenoTmr", {2, 1}, {left, 2865, quarter, line}, Stepper},
        {"lblVelo", {2, 1}, {left + 520, 2865, 1000, line}, Display},
        {"lblPiùTmr", {2, 1}, {left + 1560, 2865, quarter, line}, Stepper},
        {"FraTransf", {1, 12}, {0, 0, full, 1470}, Ground},

        {"lblScritteVarie", {2, 1}, {left, 4725, 1710, line}, Heading},
        {"cmdOnOff", {3, 1}, {1830, 4725, sixth, line}, Choice},
        {"lblScritteVarie", {35, 1}, {left, 5010, quarter, line}, Heading},
        {"lblCorniceOpzio", {1, 1}, {left + 520, 5010, quarter, line}, Choice},
        {"lblScritteVarie", {36, 1}, {left + 1040, 5010, quarter, line}, Heading},
        {"lblCorniceOpzio", {2, 1}, {left + 1560, 5010, quarter, line}, Choice},
        {"lblRandomC", {0, 1}, {left, 5295, third, line}, Choice},
        {"lblRndC", {1, 1}, {795, 5295, sixth, line}, Stepper},
        {"lblRndC", {0, 1}, {1140, 5295, sixth, line}, Display},
        {"lblRndC", {2, 1}, {1485, 5295, sixth, line}, Stepper},
        {"lblColCornice", {0, 1}, {1830, 5295, sixth, line}, Choice},
        {"lblMenoTmr", {3, 1}, {left, 5580, quarter, line}, Stepper},
        {"lblVelo", {3, 1}, {left + 520, 5580, 1000, line}, Display},
        {"lblPiùTmr", {3, 1}, {left + 1560, 5580, quarter, line}, Stepper},

        {"lblScritteVarie", {3, 1}, {left, 6300, 1710, line}, Heading},
        {"cmdOnOff", {4, 1}, {1830, 6300, sixth, line}, Choice},
        {"Command7", {0, 1}, {left, 6585, 1350, line}, Button},
        {"lblSpiaBreak", {0, 1}, {1485, 6585, sixth, line}, Display},
        {"lblBreakMode", {21, 1}, {1830, 6585, sixth, line}, Choice},
        {"lblBreakMode", {20, 1}, {left, 6855, full, line}, Display},
        {"lblBreakMode", {1, 12}, {left, 7125, sixth, line}, Choice, 8, {345, 270, 6}},
        {"lblBreakMode", {13, 2}, {left, 7665, quarter, line}, Choice, 8, {520, 0, 2}},
        {"lblBreakMode", {24, 1}, {left + 1040, 7665, quarter, line}, Choice},
        {"lblBreakMode", {18, 1}, {left + 1560, 7665, quarter, line}, Choice},
        {"lblBreakMode", {19, 1}, {left, 7935, quarter, line}, Choice},
        {"lblBreakMode", {26, 1}, {left + 520, 7935, quarter, line}, Display},
        {"lblCrea", {8, 1}, {left + 1040, 7935, quarter, line}, Choice},
        {"lblCrea", {10, 1}, {left + 1560, 7935, quarter, line}, Choice},
        {"lblScritteVarie", {37, 1}, {left, 8220, third, line}, Heading},
        {"lblBreakMode", {22, 1}, {795, 8220, sixth, line}, Stepper},
        {"lblBreakMode", {16, 1}, {1140, 8220, third, line}, Display},
        {"lblBreakMode", {23, 1}, {1830, 8220, sixth, line}, Stepper},
        {"lblScritteVarie", {38, 1}, {left, 8490, third, line}, Heading},
        {"lblTmrBreak", {1, 1}, {795, 8490, sixth, line}, Stepper},
        {"lblTmrBreak", {0, 1}, {1140, 8490, third, line}, Display},
        {"lblTmrBreak", {2, 1}, {1830, 8490, sixth, line}, Stepper},
        {"lblBrk", {1, 1}, {left, 8760, sixth, line}, Stepper},
        {"lblBrk", {0, 1}, {450, 8760, third, line}, Display},
        {"lblBrk", {2, 1}, {1140, 8760, sixth, line}, Stepper},
        {"lblScritteVarie", {39, 1}, {1500, 8760, sixth, line}, Heading},
        {"lblBrk", {3, 1}, {1830, 8760, sixth, line}, Choice},

        {"lblScritteVarie", {4, 1}, {left, 9270, 1710, line}, Heading},
        {"cmdOnOff", {5, 1}, {1830, 9270, sixth, line}, Choice},
        {"lblSeq", {1, 1}, {left, 9555, sixth, line}, Stepper},
        {"lblSeq", {0, 1}, {450, 9555, third, line}, Display},
        {"lblSeq", {2, 1}, {1140, 9555, sixth, line}, Stepper},
        {"lblSeq", {11, 1}, {1485, 9555, third, line}, Choice},
        {"lblAvanza", {0, 1}, {left, 9825, sixth, line}, Stepper},
        {"lblSeq", {4, 1}, {450, 9825, third, line}, Display},
        {"lblAvanza", {1, 1}, {1140, 9825, sixth, line}, Stepper},
        {"lblSeq", {5, 1}, {1485, 9825, third, line}, Choice},
        {"lblSeq", {3, 1}, {left, 10095, third, line}, Choice},
        {"lblSeq", {7, 1}, {left + 690, 10095, third, line}, Button},
        {"lblSeq", {6, 1}, {left + 1380, 10095, third, line}, Button},

        {"lblBack", {0, 1}, {left, 10680, third, 300}, Button},
        {"cmdGoTimer", {0, 1}, {left + 690, 10680, third, 300}, Button, 9},
        {"lblHide", {0, 1}, {left + 1380, 10680, third, 300}, Choice},
    }},
    // The option frames of Timer B lie on top of each other; inside, rows are 285 apart.
    {"FraTransf(1)", false, {
        {"lblScritteVarie", {20, 3}, {500, 45, quarter, line}, Heading, 7, {500, 0, 3}},
        {"lblScritteVarie", {17, 2}, {60, 315, 420, line}, Heading, 8, {0, 285, 1}},
        {"lblCrea", {1, 2}, {500, 315, quarter, line}, Choice, 8, {0, 285, 1}},
        {"lblCrea", {3, 2}, {1000, 315, quarter, line}, Choice, 8, {0, 285, 1}},
        {"lblCrea", {5, 2}, {1500, 315, quarter, line}, Choice, 8, {0, 285, 1}},
        {"lblScritteVarie", {23, 1}, {60, 1035, 540, line}, Heading, 7.5},
        {"lblCrea", {11, 1}, {615, 1035, 375, line}, Choice},
        {"lblScritteVarie", {24, 1}, {1065, 1035, 540, line}, Heading, 7.5},
        {"lblCrea", {7, 1}, {1605, 1035, 375, line}, Choice},
    }},
    {"FraTransf(2)", false, {
        {"lblScritteVarie", {34, 1}, {60, 315, 1380, line}, Heading},
        {"lblNScambi", {0, 1}, {1500, 315, quarter, line}, Choice},
    }},
    {"FraTransf(3)", false, {
        {"lblScritteVarie", {30, 1}, {60, 315, 1920, line}, Heading},
    }},
    {"FraTransf(7)", false, {
        {"lblScritteVarie", {25, 1}, {60, 315, 1200, line}, Heading},
        {"lblAngoli", {0, 1}, {1320, 315, third, line}, Choice},
        {"lblScritteVarie", {26, 2}, {60, 600, 1200, line}, Heading, 8, {0, 285, 1}},
        {"lblAngolo", {20, 2}, {1320, 600, third, line}, Display, 8, {0, 285, 1}},
    }},
    {"FraTransf(9)", false, {
        {"lblScritteVarie", {28, 1}, {60, 45, 1920, line}, Heading},
        {"lblLung", {1, 8}, {60, 330, 450, line}, Choice, 8, {490, 285, 4}},
        {"lblScritteVarie", {29, 1}, {60, 1035, 1380, line}, Heading},
        {"lblColNumber", {0, 1}, {1530, 1035, 450, line}, Choice},
    }},
    {"FraTransf(10)", false, {
        {"lblScritteVarie", {31, 1}, {60, 45, 900, line}, Heading},
        {"lblScritteVarie", {32, 1}, {1110, 45, 900, line}, Heading},
        {"lblMinMax", {1, 5}, {60, 315, 360, line}, Choice, 8, {390, 0, 5}},
        {"lblOpzAggrega", {0, 2}, {60, 615, 945, line}, Choice, 8, {975, 0, 2}},
        {"lblScritteVarie", {33, 1}, {60, 1035, 1200, line}, Heading},
        {"lblAgg2", {0, 1}, {1320, 1035, third, line}, Choice},
    }},
    {"FraPannello(1)", false, {
        {"lblScritteVarie", {5, 1}, {left, 120, full, line}, Heading},
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

        {"lblScritteVarie", {6, 1}, {left, 3720, full, line}, Heading},
        {"lblComCol", {0, 3}, {left, 3990, quarter, line}, Choice, 8, {520, 0, 3}},
        {"lblComCol", {4, 1}, {left + 1560, 3990, quarter, line}, Choice},
        {"lblComCol", {3, 1}, {left, 4260, half, line}, Choice},
        {"lblComCol", {6, 1}, {left + 1035, 4260, half, line}, Button},
        {"lblComCol", {7, 2}, {left, 4530, half, line}, Choice, 8, {1035, 0, 2}},

        {"lblScritteVarie", {10, 1}, {left, 4900, 600, line}, Heading},
        {"lblValAttivo", {0, 1}, {765, 4900, 570, 225}, Swatch},
        {"lblScritteVarie", {16, 1}, {1410, 4900, 735, line}, Heading, 6.75},
        {"lblValore", {0, 7}, {left, 5175, 180, line}, Swatch, 8, {195, 0, 7}},
        {"lblSfondo", {0, 7}, {left, 5445, 180, line}, Swatch, 8, {195, 0, 7}},
        {"lblPiù", {0, 7}, {left, 5715, 180, line}, Stepper, 8, {195, 0, 7}},
        {"lblTotali", {0, 25}, {1560, 5190, 105, 135}, Swatch, 8, {120, 150, 5}},
        {"lblSelSfondo", {0, 3}, {left, 6045, third, line}, Choice, 8, {690, 0, 3}},

        {"lblScritteVarie", {11, 1}, {left, 6485, full, line}, Heading},
        {"lblCambioCol", {0, 5}, {left, 6765, sixth, line}, Choice, 8, {345, 0, 5}},
        {"lblCambioCol", {10, 1}, {1830, 6765, sixth, line}, Choice},
        {"lblCambioCol", {9, 1}, {left, 7035, sixth, line}, Choice},
        {"lblCambioCol", {6, 1}, {450, 7035, sixth, line}, Choice},
        {"lblScritteVarie", {40, 1}, {1140, 7035, third, line}, Heading},
        {"lblNSc", {0, 1}, {1830, 7035, sixth, line}, Choice},

        {"lblScritteVarie", {14, 1}, {left, 7695, 1710, line}, Heading},
        {"cmdOnOff", {0, 1}, {1830, 7695, sixth, line}, Choice},
        {"lblTmrRndCol", {1, 1}, {left, 7980, quarter, line}, Stepper},
        {"lblTmrRndCol", {0, 1}, {left + 520, 7980, 1000, line}, Display},
        {"lblTmrRndCol", {2, 1}, {left + 1560, 7980, quarter, line}, Stepper},

        {"lblScritteVarie", {15, 1}, {left, 8600, full, line}, Heading},
        {"lblNomefile", {0, 1}, {left, 8880, 1560, line}, Display},
        {"lblSelez", {0, 1}, {1695, 8880, 450, line}, Display},
        {"lblSave", {0, 10}, {left, 9165, 384, line}, Choice, 8, {414, 270, 5}},
        {"lblSave", {11, 5}, {left, 9735, 384, line}, Choice, 8, {414, 0, 5}},
        {"lblMemo", {1, 1}, {left, 10035, quarter, line}, Stepper},
        {"lblMemo", {0, 1}, {left + 520, 10035, 1000, line}, Display},
        {"lblMemo", {2, 1}, {left + 1560, 10035, quarter, line}, Stepper},
        {"lblCanc", {0, 1}, {left, 10335, third, line}, Choice},
        {"lblComandiVari", {1, 2}, {left + 690, 10335, third, line}, Choice, 8, {690, 0, 2}},
        {"FraMemoria", {0, 1}, {0, 0, full, 1800}, Ground},
    }},
    {"FraMemoria", false, {
        {"lblScritteVarie", {41, 1}, {90, 60, 1860, 690}, Heading},
        {"TxtNomeMemoria", {0, 1}, {90, 840, 1860, 330}, Display},
        {"lblSalvaComb", {0, 2}, {90, 1350, 900, 300}, Button, 8, {960, 0, 2}},
    }},
    // The sequencer's table: 24 rows and their tools, then the titles of the bank and the presets.
    {"FraPannello(2)", false, {
        {"lblScritteVarie", {12, 1}, {390, 60, 690, 225}, Display},
        {"lblScritteVarie", {13, 1}, {1110, 60, 420, 225}, Display},
        {"lblScritteVarie", {19, 1}, {1560, 60, 630, 225}, Display},
        {"lblNOrdine", {1, 24}, {60, 315, 300, 225}, Display, 8, {0, 240, 1}},
        {"lblTmrA", {1, 24}, {390, 315, 690, 225}, Display, 8, {0, 240, 1}},
        {"lblTmrB", {1, 24}, {1110, 315, 420, 225}, Display, 8, {0, 240, 1}},
        {"lblTmrC", {1, 24}, {1560, 315, 630, 225}, Display, 8, {0, 240, 1}},
        {"lblNOrdine", {25, 1}, {60, 6105, 300, 225}, Button},
        {"lblSeq", {9, 1}, {390, 6105, 690, 225}, Button},
        {"lblSeq", {10, 1}, {1110, 6105, 420, 225}, Button},
        {"lblSeq", {13, 1}, {1560, 6105, 630, 225}, Button},
        {"lblDisattiva", {0, 1}, {390, 6360, 690, 225}, Choice},
        {"lblDisattiva", {1, 1}, {1110, 6360, 420, 225}, Choice},
        {"lblDisattiva", {2, 1}, {1560, 6360, 630, 225}, Choice},
        // The titles of all ten banks lie on the same ten places; one bank is shown.
        {"lblComb", {0, 10}, {60, 6645, 2130, 195}, Display, 7, {0, 210, 1}},
        {"lblComb", {10, 10}, {60, 6645, 2130, 195}, Display, 7, {0, 210, 1}},
        {"lblComb", {20, 10}, {60, 6645, 2130, 195}, Display, 7, {0, 210, 1}},
        {"lblComb", {30, 10}, {60, 6645, 2130, 195}, Display, 7, {0, 210, 1}},
        {"lblComb", {40, 10}, {60, 6645, 2130, 195}, Display, 7, {0, 210, 1}},
        {"lblComb", {50, 10}, {60, 6645, 2130, 195}, Display, 7, {0, 210, 1}},
        {"lblComb", {60, 10}, {60, 6645, 2130, 195}, Display, 7, {0, 210, 1}},
        {"lblComb", {70, 10}, {60, 6645, 2130, 195}, Display, 7, {0, 210, 1}},
        {"lblComb", {80, 10}, {60, 6645, 2130, 195}, Display, 7, {0, 210, 1}},
        {"lblComb", {90, 10}, {60, 6645, 2130, 195}, Display, 7, {0, 210, 1}},
        {"lblComb", {101, 5}, {60, 8775, 2130, 195}, Display, 7, {0, 210, 1}},
    }},
};

const Panel endPanels[] = {
    {"frmMiroVelTaZQ", true, {
        {"FraZQ", {0, 1}, {2640, 720, 10080, 10080}, Ground},
    }},
    {"FraZQ", false, {
        {"lblScritteVarieC", {0, 1}, {240, 300, 9600, 900}, Title, 28},
        {"ImgZQ", {0, 1}, {1440, 1320, 7200, 7200}, Ground},
        {"lblZQ", {0, 1}, {1440, 1320, 7200, 7200}, Heading},
        {"lblAvvertimento2", {0, 1}, {240, 8760, 9600, 900}, Title, 22},
    }},
};
// clang-format on

Element elementNamed(const Store& s, std::string_view text) {
  const auto found = s.controls.element(text);
  assert(std::holds_alternative<Element>(found) && "a placed control stands in the list");
  return std::get<Element>(found);
}

void place(std::vector<Spot>& spots, const Spot& spot, const Box& box, double points) {
  spot.element.control->geometry(spot.element.index) = {
      {box.left}, {box.top}, {box.width}, {box.height}, {points}};
  spots.push_back(spot);
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
    place(s.spots, {{&s.lblMiro, i}, {&s.form, 0}, Cell, true}, box, 18);
  }
}

void placePanels(Store& s, std::span<const Panel> rows, std::vector<Spot>& spots) {
  for (const Panel& panel : rows) {
    const Element parent = elementNamed(s, panel.parent);
    for (const PlacementRow& row : panel.rows) {
      Control* control = s.controls.find(row.control);
      assert(control && "a placed control stands in the list");
      for (int n = 0; n < row.elements.count; ++n) {
        Box box = row.box;
        const int line = n / row.grid.columns;
        box.left += row.grid.across * (n % row.grid.columns);
        box.top += row.grid.down * line;
        place(spots, {{control, row.elements.first + n}, parent, row.look, panel.withField}, box,
              row.points);
      }
    }
  }
}

}  // namespace

void placeControls(Store& s) {
  for (const Control* window : {&s.form, &s.frmMiroVelTaZQ}) {
    window->geometry().Width = {designSize.width};
    window->geometry().Height = {designSize.height};
  }
  placeCells(s);
  placePanels(s, panels, s.spots);
  placePanels(s, endPanels, s.endSpots);
}

}  // namespace caleidoscopio
