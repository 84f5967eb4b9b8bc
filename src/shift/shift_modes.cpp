#include "shift/shift_modes.h"

#include <iterator>

#include "mosaic/cells.h"

namespace caleidoscopio {

namespace {

// "Campo" turns every line one way, "Strisce" line by line, "a 3" in bands of three with the
// middle band against the others. An Out mode undoes its In mode.
constexpr Order allIn{1, 2, 3, 4, 5, 6, 7, 8, 9};
constexpr Order allOut{-1, -2, -3, -4, -5, -6, -7, -8, -9};
constexpr Order bandsIn{1, 2, 3, -4, -5, -6, 7, 8, 9};
constexpr Order bandsOut{-1, -2, -3, 4, 5, 6, -7, -8, -9};
constexpr Order rowStripesIn{-2, -4, -6, -8, 1, 3, 5, 7, 9};
constexpr Order rowStripesOut{-1, -3, -5, -7, -9, 2, 4, 6, 8};
constexpr Order columnStripesIn{1, 3, 5, 7, 9, -2, -4, -6, -8};
constexpr Order columnStripesOut{2, 4, 6, 8, -1, -3, -5, -7, -9};

constexpr auto byRows = Serpentine::ByRows;
constexpr auto byColumns = Serpentine::ByColumns;

constexpr ShiftMode modes[] = {
    {"101", "Campo Orizzontale In", 1, rows(allIn), Hold::Cell},
    {"201", "Campo Orizzontale Out", 1, rows(allOut), Hold::Cell},
    {"102", "Strisce Orizzontali In", 2, rows(rowStripesIn), Hold::Cell},
    {"202", "Strisce Orizzontali Out", 2, rows(rowStripesOut), Hold::Cell},
    {"103", "Strisce H a 3 In", 3, rows(bandsIn), Hold::Cell},
    {"203", "Strisce H a 3 Out", 3, rows(bandsOut), Hold::Cell},
    {"104", "Campo Verticale In", 4, columns(allIn), Hold::Cell},
    {"204", "Campo Verticale Out", 4, columns(allOut), Hold::Cell},
    {"105", "Strisce Verticali In", 5, columns(columnStripesIn), Hold::Cell},
    {"205", "Strisce Verticali Out", 5, columns(columnStripesOut), Hold::Cell},
    {"106", "Strisce V a 3 In", 6, columns(bandsIn), Hold::Cell},
    {"206", "Strisce V a 3 Out", 6, columns(bandsOut), Hold::Cell},
    {"107", "Campo Diagonale A In", 7, diagonals({{9, 9}, {-1, 0}}, {-1, -1}), Hold::Cell},
    {"207", "Campo Diagonale A Out", 7, diagonals({{1, 1}, {0, 1}}, {1, 1}), Hold::Cell},
    {"108", "Campo Diagonale B In", 8, diagonals({{1, 9}, {1, 0}}, {1, -1}), Hold::Cell},
    {"208", "Campo Diagonale B Out", 8, diagonals({{9, 1}, {0, 1}}, {-1, 1}), Hold::Cell},
    {"109", "Zig-Zag Orizzontale In", 9, serpentine(byRows), Hold::Cell},
    {"209", "Zig-Zag Orizzontale Out", 9, reversed(serpentine(byRows)), Hold::Cell},
    {"110", "Zig-Zag Verticale In", 10, serpentine(byColumns), Hold::Cell},
    {"210", "Zig-Zag Verticale Out", 10, reversed(serpentine(byColumns)), Hold::Cell},
    // The four block modes move captions whether digits are shown or not; meant to differ.
    {"111", "Zig-Zag H a 3 In", 11, blockSerpentine(byRows), Hold::Block},
    {"211", "Zig-Zag H a 3 Out", 11, reversed(blockSerpentine(byRows)), Hold::Block},
    {"112", "Zig-Zag V a 3 In", 12, blockSerpentine(byColumns), Hold::Block},
    {"212", "Zig-Zag V a 3 Out", 12, reversed(blockSerpentine(byColumns)), Hold::Block},
};
static_assert(std::size(modes) == 24);

void copyQuartet(MosaicControls& s, std::int16_t to, const Frame& from, bool captions) {
  Label& leader = s.lblMiro[to];
  copyIf(captions, leader, from);
  for (int mirror = 1; mirror <= 3; ++mirror) copyIf(captions, s.lblMiro[to + mirror], leader);
}

}  // namespace

std::span<const ShiftMode> shiftModes() {
  return modes;
}

const ShiftMode* findShiftMode(std::string_view code) {
  for (const ShiftMode& mode : modes)
    if (mode.code == code) return &mode;
  return nullptr;
}

void RuotaLinea(MosaicControls& s, std::span<const std::int16_t> line, Frame& held, bool captions) {
  copyIf(captions, held, s.lblMiro[line.back()]);
  for (std::size_t k = line.size() - 1; k > 0; --k)
    copyQuartet(s, line[k], s.lblMiro[line[k - 1]], captions);
  copyQuartet(s, line.front(), held, captions);
}

void stepShift(ShiftControls& s, const ShiftMode& mode) {
  const bool block = mode.hold == Hold::Block;
  const bool captions = block || showsDigits(s);
  for (int n = 0; n < mode.lines.count(); ++n) {
    Label& held = block ? s.lblMemory[n + 1] : s.lblMemC;
    RuotaLinea(s, mode.lines.line(n), held, captions);
  }
  SincronizzaPiano(s);
}

}  // namespace caleidoscopio
