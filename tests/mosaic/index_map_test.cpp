#include "mosaic/index_map.h"

#include <gtest/gtest.h>

#include <array>
#include <set>
#include <utility>
#include <vector>

namespace caleidoscopio::test {
namespace {

/// From index to row and column, block by block: the same numbering told the other way round.
Place expectedPlace(int i) {
  if (i <= 324) {
    const int q = (i - 1) / 4;
    const int a = q / 9;
    const int b = q % 9;
    return std::array{Place{1 + a, 1 + b}, Place{1 + a, 19 - b}, Place{19 - a, 19 - b},
                      Place{19 - a, 1 + b}}[static_cast<std::size_t>((i - 1) % 4)];
  }
  if (i <= 364) {
    const int k = (i - 325) / 4;
    return std::array{Place{k, 10}, Place{10, 20 - k}, Place{20 - k, 10},
                      Place{10, k}}[static_cast<std::size_t>((i - 325) % 4)];
  }
  if (i <= 400) {
    const int q = (i - 365) / 4;
    return std::array{Place{0, 1 + q}, Place{0, 19 - q}, Place{20, 19 - q},
                      Place{20, 1 + q}}[static_cast<std::size_t>((i - 365) % 4)];
  }
  if (i <= 436) {
    const int q = (i - 401) / 4;
    return std::array{Place{1 + q, 0}, Place{1 + q, 20}, Place{19 - q, 20},
                      Place{19 - q, 0}}[static_cast<std::size_t>((i - 401) % 4)];
  }
  return std::array{Place{0, 0}, Place{0, 20}, Place{20, 20}, Place{20, 0},
                    Place{10, 10}}[static_cast<std::size_t>(i - 437)];
}

TEST(IndexMap, EveryIndexLiesWhereItsBlockSays) {
  for (int i = 1; i <= 441; ++i) {
    EXPECT_EQ(placeOf(i).row, expectedPlace(i).row) << i;
    EXPECT_EQ(placeOf(i).column, expectedPlace(i).column) << i;
  }
}

TEST(IndexMap, TheTwoMapsAreInverse) {
  for (int i = 1; i <= 441; ++i) EXPECT_EQ(indexAt(placeOf(i)), i);
  std::set<int> indices;
  for (int row = 0; row <= 20; ++row)
    for (int column = 0; column <= 20; ++column) {
      const int i = indexAt({row, column});
      EXPECT_TRUE(1 <= i && i <= 441);
      EXPECT_EQ(placeOf(i), (Place{row, column}));
      indices.insert(i);
    }
  EXPECT_EQ(indices.size(), 441U);
}

TEST(IndexMap, TheTopRowsStandAsDrawn) {
  const std::vector<std::pair<int, std::vector<int>>> rows{
      {0, {437, 365, 369, 373, 377, 381, 385, 389, 393, 397, 325}},
      {1, {401, 1, 5, 9, 13, 17, 21, 25, 29, 33, 329}},
      {2, {405, 37, 41, 45, 49, 53, 57, 61, 65, 69, 333}},
      {9, {433, 289, 293, 297, 301, 305, 309, 313, 317, 321, 361}},
      {10, {328, 332, 336, 340, 344, 348, 352, 356, 360, 364, 441}}};
  for (const auto& [row, indices] : rows)
    for (int column = 0; column <= 10; ++column)
      EXPECT_EQ(indexAt({row, column}), indices[static_cast<std::size_t>(column)])
          << row << " " << column;
}

TEST(IndexMap, RightOfTheCentreStandsTheSecondMemberOfTheSameQuartet) {
  for (const int row : {0, 1, 2, 9})
    for (int column = 0; column <= 9; ++column)
      EXPECT_EQ(indexAt({row, 20 - column}), indexAt({row, column}) + 1);
  for (int column = 0; column <= 9; ++column)  // on the central row the arm's right member
    EXPECT_EQ(indexAt({10, 20 - column}), indexAt({10, column}) - 2);
}

TEST(IndexMap, TheFourMembersOfAQuartetAreOneCellReflectedInTheTwoAxes) {
  for (int base = 1; base <= 440; base += 4) {
    if (325 <= base && base <= 364) continue;  // the arms lie on the axes: turned, not reflected
    const Place p = placeOf(base);
    EXPECT_EQ(placeOf(base + 1), (Place{p.row, 20 - p.column})) << base;
    EXPECT_EQ(placeOf(base + 2), (Place{20 - p.row, 20 - p.column})) << base;
    EXPECT_EQ(placeOf(base + 3), (Place{20 - p.row, p.column})) << base;
  }
}

TEST(IndexMap, TheBaseOfAnyMemberIsTheFirstOfItsQuartet) {
  for (int i = 1; i <= 440; ++i) {
    EXPECT_EQ(baseOf(i) % 4, 1) << i;
    EXPECT_LE(baseOf(i), i);
    EXPECT_LT(i, baseOf(i) + 4);
  }
}

TEST(IndexMap, EveryLoopOfFourOverABaseStaysWithinOneBlock) {
  for (const int end : {324, 364, 400, 436, 440}) EXPECT_EQ(baseOf(end) + 3, end);
  EXPECT_EQ(baseOf(centre), centre);
}

TEST(IndexMap, TheLeaderOfAQuartetIsItsCellInTheTopLeftQuadrant) {
  for (int row = 1; row <= 9; ++row)
    for (int column = 1; column <= 9; ++column)
      EXPECT_EQ(placeOf(leaderAt(row, column)), (Place{row, column}));
  EXPECT_EQ(leaderAt(9, 9), 321);
}

}  // namespace
}  // namespace caleidoscopio::test
