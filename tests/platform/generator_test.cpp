#include <gtest/gtest.h>

#include <vector>

#include "platform/built_in_generator.h"
#include "platform/machine_clock.h"

namespace caleidoscopio::test {
namespace {

std::vector<float> draws(BuiltInGenerator& generator, int count) {
  std::vector<float> all;
  for (int i = 0; i < count; ++i) all.push_back(generator.draw());
  return all;
}

constexpr WallTime noon{12, 0, 0, 2026};
constexpr WallTime aSecondLater{12, 0, 1, 2026};

TEST(BuiltInGenerator, DrawsFrom0ToBelow1) {
  BuiltInGenerator generator;
  generator.fixSeed(1);
  double sum = 0;
  for (int i = 0; i < 1000000; ++i) {
    const float r = generator.draw();
    ASSERT_GE(r, 0);
    ASSERT_LT(r, 1);
    sum += static_cast<double>(r);
  }
  EXPECT_NEAR(sum / 1000000, 0.5, 0.002);
}

TEST(BuiltInGenerator, TheSameReadingOfTheClockGivesTheSameDraws) {
  BuiltInGenerator a, b, c;
  a.seed(noon);
  b.seed(noon);
  c.seed(aSecondLater);
  const auto first = draws(a, 20);
  EXPECT_EQ(first, draws(b, 20));
  EXPECT_NE(first, draws(c, 20));
}

TEST(BuiltInGenerator, AFixedSeedHoldsNowAndForALaterSeeding) {
  BuiltInGenerator a, b;
  a.fixSeed(7);
  const auto first = draws(a, 20);
  a.seed(noon);
  EXPECT_EQ(draws(a, 20), first);
  b.seed(aSecondLater);
  b.fixSeed(7);
  EXPECT_EQ(draws(b, 20), first);
}

TEST(BuiltInGenerator, TheDrawsAreTheSameOnEveryMachine) {
  BuiltInGenerator generator;
  generator.fixSeed(7);
  EXPECT_EQ(draws(generator, 4),
            (std::vector<float>{0xc11f65p-24F, 0xf30567p-24F, 0x1e0edcp-24F, 0xe4546cp-24F}));
}

TEST(MachineClock, ReadsAPlausibleTime) {
  const WallTime now = MachineClock().now();
  EXPECT_TRUE(0 <= now.hour && now.hour <= 23) << now.hour;
  EXPECT_TRUE(0 <= now.minute && now.minute <= 59) << now.minute;
  EXPECT_TRUE(0 <= now.second && now.second <= 59) << now.second;
  EXPECT_GE(now.year, 2024);
}

}  // namespace
}  // namespace caleidoscopio::test
