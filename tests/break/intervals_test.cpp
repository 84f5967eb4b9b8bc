#include "break/intervals.h"

#include <gtest/gtest.h>

#include <string>

#include "support/rig.h"
#include "support/run_end.h"

namespace caleidoscopio::test {
namespace {

struct BreakIntervals : testing::Test, Rig {
  void base(const char* ms, const char* variations) {
    s.lblBrk[0].Caption = ms;
    s.lblBrk[3].Caption = variations;
  }
};

TEST_F(BreakIntervals, WithoutVariationsTheIntervalIsTheBaseAndADrawIsMade) {
  base("3000", "0");
  pick(1, 1);
  SorteggiaIntervalloBreak(s);
  EXPECT_EQ(s.TmrBrk.Interval(), 3000);
  EXPECT_EQ(s.lblBrk[5].Caption, "3000");
  EXPECT_EQ(generator.draws, 1);
}

TEST_F(BreakIntervals, EachVariationIsASecondLonger) {
  base("3000", "12");
  pick(13, 13);
  SorteggiaIntervalloBreak(s);
  for (int i = 1; i <= 13; ++i)
    EXPECT_EQ(s.lblIntBrk[i].Caption, std::to_string(3000 + 1000 * (i - 1)));
  EXPECT_EQ(s.TmrBrk.Interval(), 15000);
  EXPECT_EQ(s.lblBrk[5].Caption, "15000");
}

TEST_F(BreakIntervals, AllEntriesAreEquallyLikely) {
  base("100", "2");
  for (int k = 1; k <= 3; ++k) {
    pick(k, 3);
    SorteggiaIntervalloBreak(s);
    EXPECT_EQ(s.TmrBrk.Interval(), 100 + 1000 * (k - 1));
  }
}

TEST_F(BreakIntervals, TheLargestNumberOf16BitsIsStillDrawn) {
  base("31767", "1");
  pick(2, 2);
  SorteggiaIntervalloBreak(s);
  EXPECT_EQ(s.TmrBrk.Interval(), 32767);
}

TEST_F(BreakIntervals, ABaseAbove32767EndsTheRunBeforeTheDrawAlsoWithoutVariations) {
  base("40000", "0");
  generator.otherwise = 0.0F;
  EXPECT_TRUE(endsTheRun([&] { SorteggiaIntervalloBreak(s); },
                         {"overflow", "lblBrk(0)", "40000", "32767"}));
  EXPECT_EQ(generator.draws, 0);
}

TEST_F(BreakIntervals, AVariationAbove32767EndsTheRunBeforeTheDrawAndTheEntriesBeforeItStay) {
  base("30000", "3");
  generator.otherwise = 0.0F;
  EXPECT_TRUE(endsTheRun([&] { SorteggiaIntervalloBreak(s); },
                         {"overflow", "lblBrk(0)", "30000", "32767"}));
  EXPECT_EQ(generator.draws, 0);
  EXPECT_EQ(s.lblIntBrk[1].Caption, "30000");
  EXPECT_EQ(s.lblIntBrk[2].Caption, "31000");
  EXPECT_EQ(s.lblIntBrk[3].Caption, "32000");
  EXPECT_EQ(s.lblIntBrk[4].Caption, "0");
}

TEST_F(BreakIntervals, ABaseThatIsNoNumberEndsTheRunAndNamesIt) {
  base("often", "0");
  EXPECT_TRUE(endsTheRun([&] { SorteggiaIntervalloBreak(s); }, {"lblBrk(0).Caption", "\"often\""}));
}

}  // namespace
}  // namespace caleidoscopio::test
