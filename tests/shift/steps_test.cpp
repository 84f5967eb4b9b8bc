#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "mosaic/cells.h"
#include "shift/shift.h"
#include "support/hands.h"
#include "support/rig.h"

namespace caleidoscopio::test {
namespace {

// ---- the 24 modes told once more, as plainly as can be ------------------------------------------

/// Which quartet, 0 to 80, row by row, stands on each place of the quadrant.
using Grid = std::array<int, 81>;

int place(int row, int column) {
  return 9 * (row - 1) + (column - 1);
}
int around(int n) {
  return n < 1 ? n + 9 : n > 9 ? n - 9 : n;
}

/// After a step each place holds what its source held; rows and columns from 1 to 9.
template <class Source>
Grid stepBySource(const Grid& now, Source source) {
  Grid next{};
  for (int r = 1; r <= 9; ++r)
    for (int c = 1; c <= 9; ++c) {
      const auto [row, column] = source(r, c);
      next[static_cast<std::size_t>(place(r, c))] =
          now[static_cast<std::size_t>(place(around(row), around(column)))];
    }
  return next;
}

/// After a step each place of the path holds what the place before it held.
Grid stepByPath(const Grid& now, const std::vector<int>& path, bool in) {
  Grid next = now;
  const std::size_t n = path.size();
  for (std::size_t k = 0; k < n; ++k) {
    const int from = path[k];
    const int to = path[in ? (k + 1) % n : (k + n - 1) % n];
    next[static_cast<std::size_t>(to)] = now[static_cast<std::size_t>(from)];
  }
  return next;
}

/// 1 where the line goes towards the centre in the In mode, -1 where it goes against it.
int campo(int) {
  return 1;
}
int strisce(int line) {
  return line % 2 == 1 ? 1 : -1;
}
int aTre(int line) {
  return 4 <= line && line <= 6 ? -1 : 1;
}

std::vector<int> zigZag(bool byRows) {
  std::vector<int> path;
  for (int line = 1; line <= 9; ++line)
    for (int k = 1; k <= 9; ++k) {
      const int along = line % 2 == 1 ? k : 10 - k;
      path.push_back(byRows ? place(line, along) : place(along, line));
    }
  return path;
}

struct BlockPlace {
  int row, column;
};
constexpr std::array<BlockPlace, 9> blocksByRows{
    {{1, 1}, {1, 2}, {1, 3}, {2, 3}, {2, 2}, {2, 1}, {3, 1}, {3, 2}, {3, 3}}};
constexpr std::array<BlockPlace, 9> blocksByColumns{
    {{1, 1}, {2, 1}, {3, 1}, {3, 2}, {2, 2}, {1, 2}, {1, 3}, {2, 3}, {3, 3}}};

Grid stepByBlocks(Grid now, const std::array<BlockPlace, 9>& blocks, bool in) {
  for (int r = 0; r <= 2; ++r)
    for (int c = 0; c <= 2; ++c) {
      std::vector<int> path;
      for (const BlockPlace& b : blocks)
        path.push_back(place(3 * b.row - 2 + r, 3 * b.column - 2 + c));
      now = stepByPath(now, path, in);
    }
  return now;
}

Grid modelStep(int family, bool in, const Grid& now) {
  const int to = in ? 1 : -1;
  const auto alongRows = [&](int (*way)(int)) {
    return stepBySource(now, [&](int r, int c) { return std::pair{r, c - to * way(r)}; });
  };
  const auto alongColumns = [&](int (*way)(int)) {
    return stepBySource(now, [&](int r, int c) { return std::pair{r - to * way(c), c}; });
  };
  switch (family) {
    case 1:
      return alongRows(campo);
    case 2:
      return alongRows(strisce);
    case 3:
      return alongRows(aTre);
    case 4:
      return alongColumns(campo);
    case 5:
      return alongColumns(strisce);
    case 6:
      return alongColumns(aTre);
    case 7:
      return stepBySource(now, [&](int r, int c) { return std::pair{r - to, c - to}; });
    case 8:
      return stepBySource(now, [&](int r, int c) { return std::pair{r + to, c - to}; });
    case 9:
      return stepByPath(now, zigZag(true), in);
    case 10:
      return stepByPath(now, zigZag(false), in);
    case 11:
      return stepByBlocks(now, blocksByRows, in);
    default:
      return stepByBlocks(now, blocksByColumns, in);
  }
}

// ---- the instrument with 81 different quartets -------------------------------------------------

struct Mode {
  int family;
  bool in;
  std::string code() const { return std::to_string((in ? 100 : 200) + family); }
  bool block() const { return family >= 11; }
  int period() const { return family == 9 || family == 10 ? 81 : 9; }
};
void PrintTo(const Mode& mode, std::ostream* out) {
  *out << mode.code();
}

constexpr std::uint32_t firstBack = 0x010000;
constexpr std::uint32_t firstFore = 0x020000;

std::string drawn(const Grid& grid) {
  std::string text = "\n";
  for (int r = 1; r <= 9; ++r) {
    for (int c = 1; c <= 9; ++c) {
      const std::string n = std::to_string(grid[static_cast<std::size_t>(place(r, c))]);
      text += std::string(4 - n.size(), ' ') + n;
    }
    text += "\n";
  }
  return text;
}

struct EachShift : testing::TestWithParam<Mode>, Rig {
  EachShift() {
    for (int r = 1; r <= 9; ++r)
      for (int c = 1; c <= 9; ++c)
        for (int m = 0; m < 4; ++m) put(leaderAt(r, c) + m, place(r, c));
    for (int i = 325; i <= 441; ++i) put(i, i);
    ConsolidaPiano(s);
    choose(GetParam());
  }
  void put(int i, int n) {
    s.lblMiro[i].Caption = std::to_string(n);
    s.lblMiro[i].BackColor = {firstBack + static_cast<std::uint32_t>(n)};
    s.lblMiro[i].ForeColor = {firstFore + static_cast<std::uint32_t>(n)};
  }
  void choose(const Mode& mode) { s.lblSomma.Caption = mode.code(); }
  void step() { tick(s.TmrGoA); }

  /// The quartets by what `of` reads from a cell; -1 where the four members differ.
  Grid read(const std::function<int(int)>& of) const {
    Grid grid{};
    for (int r = 1; r <= 9; ++r)
      for (int c = 1; c <= 9; ++c) {
        int n = of(leaderAt(r, c));
        for (int m = 1; m < 4; ++m)
          if (of(leaderAt(r, c) + m) != n) n = -1;
        grid[static_cast<std::size_t>(place(r, c))] = n;
      }
    return grid;
  }
  Grid backs() const {
    return read([&](int i) { return static_cast<int>(s.lblMiro[i].BackColor.value - firstBack); });
  }
  Grid fores() const {
    return read([&](int i) { return static_cast<int>(s.lblMiro[i].ForeColor.value - firstFore); });
  }
  Grid captions() const {
    return read([&](int i) { return std::stoi(s.lblMiro[i].Caption); });
  }
  static Grid atRest() {
    Grid grid{};
    for (std::size_t n = 0; n < 81; ++n) grid[n] = static_cast<int>(n);
    return grid;
  }
  static testing::AssertionResult same(const Grid& before, const Grid& now, const Grid& expected) {
    if (now == expected) return testing::AssertionSuccess();
    return testing::AssertionFailure() << "\nbefore:" << drawn(before) << "now:" << drawn(now)
                                       << "expected:" << drawn(expected);
  }
};

TEST_P(EachShift, MovesEveryQuartetToWhereItsRuleSays) {
  Grid before = atRest();
  for (int n = 0; n < 3; ++n) {
    const Grid expected = modelStep(GetParam().family, GetParam().in, before);
    step();
    EXPECT_TRUE(same(before, backs(), expected));
    EXPECT_TRUE(same(before, fores(), expected));
    before = expected;
  }
}

TEST_P(EachShift, FollowedByItsInverseIsRest) {
  for (int n = 0; n < 4; ++n) step();
  choose({GetParam().family, !GetParam().in});
  for (int n = 0; n < 4; ++n) step();
  EXPECT_TRUE(same(atRest(), backs(), atRest()));
  EXPECT_TRUE(same(atRest(), fores(), atRest()));
}

TEST_P(EachShift, ComesRoundAfterItsPeriodAndNotBefore) {
  for (int n = 1; n < GetParam().period(); ++n) {
    step();
    EXPECT_NE(backs(), atRest()) << n;
  }
  step();
  EXPECT_TRUE(same(atRest(), backs(), atRest()));
  EXPECT_TRUE(same(atRest(), fores(), atRest()));
}

TEST_P(EachShift, NeverMovesFrameCrossAndCentre) {
  press(s.lblComCol, 1);
  for (int i = 325; i <= 441; ++i) put(i, i);
  for (int n = 0; n < 10; ++n) step();
  for (int i = 325; i <= 441; ++i) {
    EXPECT_EQ(s.lblMiro[i].BackColor.value, firstBack + static_cast<std::uint32_t>(i)) << i;
    EXPECT_EQ(s.lblMiro[i].ForeColor.value, firstFore + static_cast<std::uint32_t>(i)) << i;
    EXPECT_EQ(s.lblMiro[i].Caption, std::to_string(i)) << i;
  }
}

TEST_P(EachShift, RewritesTheMirrorsFromTheirLeaders) {
  for (int i = 1; i <= 324; ++i)
    if (i % 4 != 1) put(i, 1000 + i);
  step();
  EXPECT_TRUE(same(atRest(), backs(), modelStep(GetParam().family, GetParam().in, atRest())));
}

TEST_P(EachShift, WithoutDigitsLeavesTheDisplaysCaptionsUnlessItMovesBlocks) {
  step();
  const Grid moved = modelStep(GetParam().family, GetParam().in, atRest());
  EXPECT_TRUE(same(atRest(), captions(), GetParam().block() ? moved : atRest()));
}

TEST_P(EachShift, WithDigitsMovesTheCaptionWithItsColour) {
  s.lblVoceOpzioni[2].Caption = "Y";
  step();
  EXPECT_TRUE(same(atRest(), captions(), modelStep(GetParam().family, GetParam().in, atRest())));
}

TEST_P(EachShift, LeavesAFieldOfOneColourAsItIs) {
  for (int i = 1; i <= 324; ++i) put(i, 7);
  step();
  for (int i = 1; i <= 324; ++i) EXPECT_EQ(s.lblMiro[i].BackColor.value, firstBack + 7) << i;
}

TEST_P(EachShift, ClosesWithACommitOfAllCells) {
  s.lblMiro[leaderAt(5, 5)].BackColor = s.lblValore[4].BackColor;
  s.lblMiro[441].BackColor = s.lblValore[2].BackColor;  // a cell that no shift moves
  step();
  int fours = 0;
  for (int i = 1; i <= 441; ++i) {
    EXPECT_EQ(s.lblMiro2[i].BackColor, s.lblMiro[i].BackColor) << i;
    EXPECT_EQ(s.lblMiro2[i].ForeColor, s.lblMiro[i].ForeColor) << i;
    fours += s.lblMiro2[i].Caption == "4";
  }
  EXPECT_EQ(fours, 4);
  EXPECT_EQ(s.lblMiro2[441].Caption, "2");
}

TEST_P(EachShift, WritesNoCellBesidesTheDisplayTheDesignAndItsHolders) {
  s.lblMiro[0].BackColor = s.lblMiro2[0].BackColor = {0x123456};
  s.lblMemory[0].BackColor = s.lblMiro2[442].BackColor = {0x123456};
  if (!GetParam().block()) s.lblMemory[5].BackColor = {0x123456};
  step();
  EXPECT_EQ(s.lblMiro[0].BackColor, Colour{0x123456});
  EXPECT_EQ(s.lblMiro2[0].BackColor, Colour{0x123456});
  EXPECT_EQ(s.lblMiro2[442].BackColor, Colour{0x123456});
  EXPECT_EQ(s.lblMemory[0].BackColor, Colour{0x123456});
  if (!GetParam().block()) {
    EXPECT_EQ(s.lblMemory[5].BackColor, Colour{0x123456});
  }
}

std::vector<Mode> allModes() {
  std::vector<Mode> modes;
  for (int family = 1; family <= 12; ++family)
    for (const bool in : {true, false}) modes.push_back({family, in});
  return modes;
}
INSTANTIATE_TEST_SUITE_P(Modes, EachShift, testing::ValuesIn(allModes()),
                         [](const auto& mode) { return mode.param.code(); });

}  // namespace
}  // namespace caleidoscopio::test
