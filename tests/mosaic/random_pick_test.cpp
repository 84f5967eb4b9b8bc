#include "mosaic/random_pick.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "panel/numbers.h"
#include "support/rig.h"
#include "support/run_end.h"

namespace caleidoscopio::test {
namespace {

struct RandomPick : testing::Test, Rig {
  std::int64_t pickAt(int minute, int second, float r, std::int64_t n) {
    clock.time.minute = minute;
    clock.time.second = second;
    generator.queue = {r};
    return CasualeMinuti(s, n);
  }
  static constexpr float almostOne = 0.99999994F;
};

TEST_F(RandomPick, AtTheFullHourTheDrawAloneDecides) {
  EXPECT_EQ(pickAt(0, 0, 0.0F, 7), 1);
  EXPECT_EQ(pickAt(0, 0, 0.5F, 7), 4);
  EXPECT_EQ(pickAt(0, 0, almostOne, 7), 7);
  EXPECT_EQ(pickAt(0, 0, 0.25F, 4), 2);
}

TEST_F(RandomPick, MinuteOver60AndSecondOver61SaltTheDraw) {
  // 30 / 60 + 0.25 - 0 = 0.75: the 76th of 101
  EXPECT_EQ(pickAt(30, 0, 0.25F, 101), 76);
  // 0.5 - 30 / 61 = 0.0082: the first of 101; by 60 it would be the same as no draw at all
  EXPECT_EQ(pickAt(0, 30, 0.5F, 101), 1);
  // 30 / 60 - 30 / 61 + 0 = 0.0082 of 1000: the 9th, where equal divisors would give the first
  EXPECT_EQ(pickAt(30, 30, 0.0F, 1000), 9);
}

TEST_F(RandomPick, TheHourAndTheYearDoNotMatter) {
  clock.time = {23, 15, 0, 1999};
  generator.queue = {0.5F, 0.5F};
  const std::int64_t late = CasualeMinuti(s, 101);
  clock.time = {1, 15, 0, 2040};
  EXPECT_EQ(CasualeMinuti(s, 101), late);
}

TEST_F(RandomPick, AtMinute59AndSecond0TheProductExceedsNAndThePickStaysInRange) {
  // 59 / 60 + 0.5 = 1.4833: 10 of 7, and three beyond the range is the fourth
  EXPECT_EQ(pickAt(59, 0, 0.5F, 7), 4);
  for (const int n : {1, 2, 3, 7, 81, 101})
    for (const float r : {0.0F, 0.25F, 0.5F, almostOne}) {
      const std::int64_t k = pickAt(59, 0, r, n);
      EXPECT_TRUE(1 <= k && k <= n) << n << " " << r << " " << k;
    }
}

TEST_F(RandomPick, AtMinute0AndSecond59TheProductIsNegativeAndThePickStaysInRange) {
  // 0 - 59 / 61 = -0.967: -7 of 7, which is the first
  EXPECT_EQ(pickAt(0, 59, 0.0F, 7), 1);
  // 0.5 - 59 / 61 = -0.467: -4 of 7, the fourth
  EXPECT_EQ(pickAt(0, 59, 0.5F, 7), 4);
  for (const int n : {1, 2, 3, 7, 81, 101})
    for (const float r : {0.0F, 0.25F, 0.5F, almostOne}) {
      const std::int64_t k = pickAt(0, 59, r, n);
      EXPECT_TRUE(1 <= k && k <= n) << n << " " << r << " " << k;
    }
}

TEST_F(RandomPick, OfOneYieldsOneAndStillDraws) {
  for (int minute = 0; minute <= 59; ++minute)
    for (int second = 0; second <= 59; ++second)
      ASSERT_EQ(pickAt(minute, second, 0.7F, 1), 1) << minute << ":" << second;
  EXPECT_EQ(generator.draws, 3600);
}

TEST_F(RandomPick, EveryEvaluationDrawsAfresh) {
  generator.queue = {0.0F, 0.5F};
  EXPECT_EQ(CasualeMinuti(s, 2), 1);
  EXPECT_EQ(CasualeMinuti(s, 2), 2);
  EXPECT_EQ(generator.draws, 2);
}

TEST_F(RandomPick, OfNothingEndsTheRunAfterItsDraw) {
  generator.queue = {0.5F};
  EXPECT_TRUE(endsTheRun([&] { CasualeMinuti(s, 0); }, {"division by zero", "0"}));
  EXPECT_EQ(generator.draws, 1);
  generator.queue = {0.5F};
  EXPECT_TRUE(endsTheRun([&] { CasualeMinuti(s, -1); }, {"-1"}));
}

TEST_F(RandomPick, TheCaptionThatTheCountWasReadFromAnswersForThePickToo) {
  s.lblNSc.Caption = "0";
  generator.queue = {0.5F, 0.5F};
  EXPECT_TRUE(endsTheRun([&] { CasualeMinuti(s, number(s, s.lblNSc)); },
                         {"division by zero", "lblNSc.Caption is \"0\""}));
  s.lblNSc.Caption = "100";
  EXPECT_TRUE(endsTheRun([&] { s.lblValore[CasualeMinuti(s, number(s, s.lblNSc)) - 1]; },
                         {"lblValore(50)", "lblNSc.Caption is \"100\""}));
}

TEST_F(RandomPick, EachValueComesUpEquallyOftenWhateverTheTimeOfDay) {
  // An even comb of draws, so that a bias of the salt would show as an uneven count.
  constexpr int n = 7;
  constexpr int draws = 7000;
  for (const auto& [minute, second] :
       std::vector<std::pair<int, int>>{{0, 0}, {0, 59}, {59, 0}, {59, 59}, {17, 42}}) {
    std::vector<int> count(n + 1);
    for (int d = 0; d < draws; ++d) {
      const float r = (static_cast<float>(d) + 0.5F) / static_cast<float>(draws);
      ++count[static_cast<std::size_t>(pickAt(minute, second, r, n))];
    }
    for (int k = 1; k <= n; ++k)
      EXPECT_NEAR(count[static_cast<std::size_t>(k)], draws / n, 1)
          << k << " at " << minute << ":" << second;
  }
}

TEST_F(RandomPick, AValueOfTheRigsDrawsIsTheOneThatWasMeant) {
  for (const int n : {2, 3, 4, 7, 8, 24, 49, 81, 101})
    for (int k = 1; k <= n; ++k) {
      pick(k, n);
      EXPECT_EQ(CasualeMinuti(s, n), k) << n;
    }
}

}  // namespace
}  // namespace caleidoscopio::test
