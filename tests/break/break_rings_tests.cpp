// The twelve patterns as sets of cells, checked against sizes and shapes worked out by hand.
#include <gtest/gtest.h>

#include <set>

#include "break/patterns.h"
#include "mosaic/index_map.h"

namespace caleidoscopio::test {
namespace {

std::vector<int> sizes(int pattern) {
  std::vector<int> all;
  for (int ring = 1; ring <= findBreakPattern(pattern)->rings; ++ring)
    all.push_back(static_cast<int>(breakRing(pattern, ring).size()));
  return all;
}

std::set<int> cells(int pattern, int ring) {
  const auto span = breakRing(pattern, ring);
  return {span.begin(), span.end()};
}

std::set<int> where(bool (*belongs)(int row, int column)) {
  std::set<int> all;
  for (int row = 0; row < 21; ++row)
    for (int column = 0; column < 21; ++column)
      if (belongs(row, column)) all.insert(indexAt({row, column}));
  return all;
}

/// 0 where no ring has the cell.
int ringAt(int pattern, int row, int column) {
  for (int ring = 1; ring <= 21; ++ring)
    if (cells(pattern, ring).contains(indexAt({row, column}))) return ring;
  return 0;
}

using Sizes = std::vector<int>;

TEST(BreakRings, SizesOfEveryPattern) {
  const Sizes pairs{21, 42, 42, 42, 42, 42, 42, 42, 42, 42, 42};
  const Sizes diagonals{21, 40, 38, 36, 34, 32, 30, 28, 26, 24, 22,
                        20, 18, 16, 14, 12, 10, 8,  6,  4,  2};
  EXPECT_EQ(sizes(1), pairs);
  EXPECT_EQ(sizes(2), pairs);
  EXPECT_EQ(sizes(3), diagonals);
  EXPECT_EQ(sizes(4), diagonals);
  EXPECT_EQ(sizes(5), (Sizes{1, 8, 16, 24, 32, 40, 48, 56, 64, 72, 80}));
  EXPECT_EQ(sizes(6),
            (Sizes{1, 4, 8, 12, 16, 20, 24, 28, 32, 36, 40, 40, 36, 32, 28, 24, 20, 16, 12, 8, 4}));
  EXPECT_EQ(sizes(7), (Sizes{41, 76, 68, 60, 52, 44, 36, 28, 20, 12, 4}));
  EXPECT_EQ(sizes(8), (Sizes{41, 76, 68, 60, 52, 44, 36, 28, 20, 12, 4}));
  EXPECT_EQ(sizes(9), pairs);  // one block of 21 cells, then two at a time
  EXPECT_EQ(sizes(10), pairs);
  EXPECT_EQ(sizes(11), (Sizes{9, 18, 18, 18, 18, 36, 36, 36, 36, 54, 54, 54, 54}));
  EXPECT_EQ(sizes(12), (Sizes{441}));
}

TEST(BreakRings, EveryCellLiesInOneRingOfEachPattern) {
  for (int pattern = 1; pattern <= 12; ++pattern) {
    std::multiset<int> all;
    for (int ring = 1; ring <= findBreakPattern(pattern)->rings; ++ring)
      for (const int i : breakRing(pattern, ring)) all.insert(i);
    EXPECT_EQ(all.size(), 441U) << pattern;
    for (int i = 1; i <= 441; ++i) EXPECT_EQ(all.count(i), 1U) << pattern << " cell " << i;
  }
}

TEST(BreakRings, NoRingOutsideTheirNumberAndNoPatternOutsideTheTwelve) {
  for (int pattern = 1; pattern <= 12; ++pattern) {
    EXPECT_TRUE(breakRing(pattern, 0).empty());
    EXPECT_TRUE(breakRing(pattern, -1).empty());
    EXPECT_TRUE(breakRing(pattern, findBreakPattern(pattern)->rings + 1).empty());
  }
  for (int unknown : {-1, 0, 13, 1000}) {
    EXPECT_EQ(findBreakPattern(unknown), nullptr);
    EXPECT_TRUE(breakRing(unknown, 1).empty());
  }
}

TEST(BreakRings, FirstAndLastRingsOfTheSimpleShapes) {
  EXPECT_EQ(cells(1, 1), where([](int r, int) { return r == 10; }));
  EXPECT_EQ(cells(1, 2), where([](int r, int) { return r == 9 || r == 11; }));
  EXPECT_EQ(cells(1, 11), where([](int r, int) { return r == 0 || r == 20; }));
  EXPECT_EQ(cells(2, 1), where([](int, int c) { return c == 10; }));
  EXPECT_EQ(cells(2, 11), where([](int, int c) { return c == 0 || c == 20; }));
  EXPECT_EQ(cells(3, 1), where([](int r, int c) { return r == 20 - c; }));
  EXPECT_EQ(cells(3, 21), (std::set<int>{437, 439}));
  EXPECT_EQ(cells(4, 1), where([](int r, int c) { return r == c; }));
  EXPECT_EQ(cells(4, 21), (std::set<int>{438, 440}));
  EXPECT_EQ(cells(5, 1), (std::set<int>{441}));
  EXPECT_EQ(cells(5, 11),
            where([](int r, int c) { return r == 0 || r == 20 || c == 0 || c == 20; }));
}

TEST(BreakRings, RhombiFromTheCentreToTheFourCorners) {
  EXPECT_EQ(cells(6, 1), (std::set<int>{441}));
  EXPECT_EQ(cells(6, 2), (std::set<int>{361, 362, 363, 364}));
  EXPECT_EQ(cells(6, 21), (std::set<int>{437, 438, 439, 440}));
}

TEST(BreakRings, CrossesStepAwayFromTheAxesToTheCorners) {
  EXPECT_EQ(cells(7, 1), where([](int r, int c) { return r == 10 || c == 10; }));
  EXPECT_EQ(cells(7, 11), (std::set<int>{437, 438, 439, 440}));
  EXPECT_EQ(ringAt(7, 8, 0), 3);
  EXPECT_EQ(ringAt(7, 0, 8), 3);
}

TEST(BreakRings, SaintAndrewFromBothDiagonalsToTheMiddlesOfTheSides) {
  EXPECT_EQ(cells(8, 1), where([](int r, int c) { return r == c || r == 20 - c; }));
  EXPECT_EQ(cells(8, 11), (std::set<int>{325, 326, 327, 328}));
}

// One digit a block, 'a' for 10 and so on.
std::vector<std::string> blocks(int pattern, int rowsEach, int columnsEach) {
  std::vector<std::string> drawn;
  for (int row = 0; row < 21; row += rowsEach) {
    std::string line;
    for (int column = 0; column < 21; column += columnsEach) {
      const int ring = ringAt(pattern, row, column);
      for (int r = row; r < row + rowsEach; ++r)
        for (int c = column; c < column + columnsEach; ++c) EXPECT_EQ(ringAt(pattern, r, c), ring);
      line += static_cast<char>(ring < 10 ? '0' + ring : 'a' + ring - 10);
    }
    drawn.push_back(line);
  }
  return drawn;
}

TEST(BreakRings, ZigZagRunsFromTheMiddleBlockToTopAndBottomAtOnce) {
  EXPECT_EQ(blocks(9, 3, 7),
            (std::vector<std::string>{"ba9", "678", "543", "212", "345", "876", "9ab"}));
}

TEST(BreakRings, VerticalZigZagIsTheHorizontalOneTurnedAboutTheDiagonal) {
  for (int r = 0; r < 21; ++r)
    for (int c = 0; c < 21; ++c) EXPECT_EQ(ringAt(10, r, c), ringAt(9, c, r));
}

TEST(BreakRings, SpiralRunsClockwiseFromTheCentreBeginningUpward) {
  EXPECT_EQ(blocks(11, 3, 3), (std::vector<std::string>{"daaaaaa", "d96666b", "d95227b", "d95137b",
                                                        "d94437b", "d88887b", "ccccccb"}));
  EXPECT_EQ(cells(11, 1),
            where([](int r, int c) { return r >= 9 && r <= 11 && c >= 9 && c <= 11; }));
  EXPECT_EQ(cells(11, 13), where([](int r, int c) { return r <= 17 && c <= 2; }));
}

}  // namespace
}  // namespace caleidoscopio::test
