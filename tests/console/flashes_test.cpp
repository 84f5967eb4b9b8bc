#include "console/flashes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace caleidoscopio::console {
namespace {

constexpr Colour black{0x000000}, white{0xFFFFFF}, red{0x0000FF}, green{0x00FF00}, blue{0xFF0000};
constexpr Colour grey(std::uint32_t part) {
  return {part << 16 | part << 8 | part};
}

Picture filled(Colour colour) {
  Picture picture;
  picture.fill(colour);
  return picture;
}

/// A black field with a rectangle of one colour.
Picture rectangle(int row, int column, int rows, int columns, Colour colour) {
  Picture picture = filled(black);
  for (int r = row; r < row + rows; ++r)
    for (int c = column; c < column + columns; ++c)
      picture[static_cast<std::size_t>(r * side + c)] = colour;
  return picture;
}

/// The worst second of a field all of one colour, which takes the colours in turn every `step` ms.
WorstSecond worstOf(std::uint64_t step, const std::vector<Colour>& colours) {
  FlashWatch watch(0, filled(colours.front()));
  std::uint64_t now = 0;
  for (std::size_t i = 1; i < colours.size(); ++i) watch.see(now += step, filled(colours[i]));
  return watch.worst();
}

std::vector<Colour> turns(Colour first, Colour second, int changes) {
  std::vector<Colour> colours{first};
  for (int i = 0; i < changes; ++i) colours.push_back(i % 2 == 0 ? second : first);
  return colours;
}

int flashesOf(const std::vector<Colour>& colours) {
  return worstOf(1, colours).flashes;
}

TEST(Luminance, IsThatOfTheScreensPrimaries) {
  EXPECT_DOUBLE_EQ(luminanceOf(black), 0);
  EXPECT_NEAR(luminanceOf(white), 1, 1e-9);
  EXPECT_NEAR(luminanceOf(red), 0.2126, 1e-9);
  EXPECT_NEAR(luminanceOf(green), 0.7152, 1e-9);
  EXPECT_NEAR(luminanceOf(blue), 0.0722, 1e-9);
  EXPECT_NEAR(luminanceOf(grey(0x80)), 0.2158605, 1e-6);
  EXPECT_NEAR(luminanceOf(grey(0x08)), 8 / 255.0 / 12.92, 1e-9);
}

TEST(Luminance, OfASystemColourIsWhatTheWindowShows) {
  EXPECT_DOUBLE_EQ(luminanceOf(colours::idle), luminanceOf({0xDCE6E9}));
  EXPECT_NEAR(luminanceOf({0x80000005}), 1, 1e-9);
}

TEST(Redness, CountsRedAboveTheRest) {
  EXPECT_NEAR(rednessOf(red).amount, 320, 1e-9);
  EXPECT_TRUE(rednessOf(red).saturated);
  EXPECT_EQ(rednessOf(white).amount, 0);
  EXPECT_FALSE(rednessOf(white).saturated);
  EXPECT_EQ(rednessOf(black).amount, 0);
  EXPECT_FALSE(rednessOf(black).saturated);
}

TEST(Redness, FourFifthsOfItAreSaturated) {
  // Green at 0x88 gives off 0.2462, a quarter of red is the border.
  EXPECT_TRUE(rednessOf({0x0088FF}).saturated);
  EXPECT_FALSE(rednessOf({0x008AFF}).saturated);
}

TEST(Flashes, AreTwoChangesEach) {
  EXPECT_EQ(flashesOf(turns(black, white, 1)), 0);
  EXPECT_EQ(flashesOf(turns(black, white, 2)), 1);
  EXPECT_EQ(flashesOf(turns(white, black, 2)), 1);
  EXPECT_EQ(flashesOf(turns(black, white, 3)), 1);
  EXPECT_EQ(flashesOf(turns(black, white, 9)), 4);
}

TEST(Flashes, MoreThanThreeBreakTheRule) {
  EXPECT_FALSE(worstOf(1, turns(black, white, 7)).breaksTheRule());
  EXPECT_TRUE(worstOf(1, turns(black, white, 8)).breaksTheRule());
}

TEST(Flashes, OfLessThanATenthAreNone) {
  // 0x59 gives off 0.09990, 0x5A 0.10224.
  EXPECT_EQ(flashesOf(turns(black, grey(0x59), 8)), 0);
  EXPECT_EQ(flashesOf(turns(black, grey(0x5A), 8)), 4);
}

TEST(Flashes, WhereEvenTheDarkerStateIsBrightAreNone) {
  // 0xE7 gives off 0.799, 0xE8 0.807.
  EXPECT_EQ(flashesOf(turns(white, grey(0xE7), 8)), 4);
  EXPECT_EQ(flashesOf(turns(white, grey(0xE8), 8)), 0);
}

TEST(Flashes, SmallStepsOneWayAddUp) {
  EXPECT_EQ(flashesOf({black, grey(0x40), grey(0x60), grey(0x40), black}), 1);
  EXPECT_EQ(flashesOf({black, grey(0x40), grey(0x80), white, grey(0x80), black}), 1);
}

TEST(Flashes, ALullBetweenTwoChangesOneWayMakesNoneOfThem) {
  EXPECT_EQ(flashesOf({black, grey(0x80), grey(0x78), white, grey(0xF8), white}), 0);
}

TEST(Flashes, OfRedCountWhereTheLightIsTheSame) {
  // 0x7F7F00 in red's place gives off about the light of red alone.
  const Colour teal{0x7F7F00};
  ASSERT_LT(std::abs(luminanceOf(teal) - luminanceOf(red)), 0.1);
  EXPECT_EQ(flashesOf(turns(red, teal, 8)), 4);
  EXPECT_EQ(flashesOf(turns(teal, {0x8080FF}, 1)), 0);
}

TEST(Flashes, OfADarkRedAreNone) {
  // 0x47 in red alone makes 20.1, 0x46 19.5.
  EXPECT_EQ(flashesOf(turns(black, {0x000046}, 8)), 0);
  EXPECT_EQ(flashesOf(turns(black, {0x000047}, 8)), 4);
}

TEST(Flashes, OfAPaleRedAreNone) {
  // Red changes by more than 20, but it is saturated on neither side, nor does the light change.
  const Colour rose{0x9090FF}, ash{0xB4B4B4};
  ASSERT_LT(std::abs(luminanceOf(rose) - luminanceOf(ash)), 0.1);
  ASSERT_GT(rednessOf(rose).amount, 20);
  EXPECT_EQ(flashesOf(turns(rose, ash, 8)), 0);
}

TEST(Flashes, OfLightAndOfRedAreNotAddedUp) {
  // Each turn is one of light and one of red at once.
  EXPECT_EQ(flashesOf(turns(black, red, 6)), 3);
}

TEST(WorstSecond, IsShorterThanASecondByNothing) {
  // Eight changes 142 ms apart lie within 994 ms, 143 ms apart within 1001 ms.
  EXPECT_EQ(worstOf(142, turns(black, white, 20)).flashes, 4);
  EXPECT_EQ(worstOf(143, turns(black, white, 20)).flashes, 3);
  // Two changes a second apart are no flash.
  EXPECT_EQ(worstOf(999, turns(black, white, 4)).flashes, 1);
  EXPECT_EQ(worstOf(1000, turns(black, white, 4)).flashes, 0);
}

TEST(WorstSecond, BeginsWithItsFirstChange) {
  FlashWatch watch(5000, filled(black));
  EXPECT_EQ(watch.worst().start, 5000U);
  watch.see(7000, filled(white));
  watch.see(9000, filled(black));
  EXPECT_EQ(watch.worst().start, 5000U);
  watch.see(9300, filled(white));
  EXPECT_EQ(watch.worst().start, 9000U);
  EXPECT_EQ(watch.worst().flashes, 1);
  watch.see(20000, filled(black));
  watch.see(20001, filled(white));
  EXPECT_EQ(watch.worst().start, 9000U) << "the earlier of two alike";
}

TEST(WorstSecond, TakesTheBlockWithTheMostCells) {
  const auto cellsOf = [](const Picture& lit) {
    FlashWatch watch(0, filled(black));
    watch.see(1, lit);
    watch.see(2, filled(black));
    return watch.worst().cells;
  };
  EXPECT_EQ(cellsOf(filled(white)), 88);
  EXPECT_EQ(cellsOf(rectangle(0, 0, 2, 11, white)), 22);
  EXPECT_EQ(cellsOf(rectangle(19, 10, 2, 11, white)), 22);
  EXPECT_EQ(cellsOf(rectangle(7, 13, 21 - 7, 3, white)), 24) << "no block is higher than 8 rows";
  EXPECT_EQ(cellsOf(rectangle(4, 0, 3, 21, white)), 33) << "no block is wider than 11 columns";
  EXPECT_EQ(cellsOf(rectangle(5, 5, 3, 7, white)), 0) << "21 cells are too few";
}

TEST(WorstSecond, CountsNoCellsFromBlockToBlock) {
  Picture corners = rectangle(0, 0, 4, 5, white);
  for (std::size_t i = 0; i < cellCount / 2; ++i) corners[cellCount - 1 - i] = corners[i];
  FlashWatch watch(0, filled(black));
  watch.see(1, corners);
  watch.see(2, filled(black));
  EXPECT_EQ(watch.worst().flashes, 0) << "20 cells in each of two corners";
}

TEST(WorstSecond, EachCellCountsByItself) {
  // 22 cells flash four times and all others once: the worst are the few.
  FlashWatch watch(0, filled(black));
  std::uint64_t now = 0;
  watch.see(++now, filled(white));
  watch.see(++now, filled(black));
  for (int i = 0; i < 3; ++i) {
    watch.see(++now, rectangle(3, 2, 2, 11, white));
    watch.see(++now, filled(black));
  }
  EXPECT_EQ(watch.worst().flashes, 4);
  EXPECT_EQ(watch.worst().cells, 22);
}

}  // namespace
}  // namespace caleidoscopio::console
