#include "colours/intervals.h"

#include <gtest/gtest.h>

#include <string>

#include "support/rig.h"
#include "support/run_end.h"

namespace caleidoscopio::test {
namespace {

struct ColourIntervals : testing::Test, Rig {
  void base(const char* ms, const char* furtherSeconds) {
    s.lblTmrRndCol[0].Caption = ms;
    s.lblTmrRndCol[3].Caption = furtherSeconds;
  }
};

TEST_F(ColourIntervals, WithoutFurtherSecondsTheIntervalIsExactlyTheBase) {
  base("1250", "0");
  pick(1, 1);
  ScegliIntervalloColore(s);
  EXPECT_EQ(s.TmrGoD.Interval(), 1250);
  EXPECT_EQ(s.lblTmrRndCol[6].Caption, "1250");
  EXPECT_EQ(generator.draws, 1);
}

TEST_F(ColourIntervals, TheTableHoldsTheBaseAndASecondMoreInEachEntry) {
  base("500", "12");
  pick(13, 13);
  ScegliIntervalloColore(s);
  for (int i = 1; i <= 13; ++i)
    EXPECT_EQ(s.lblIntCol[i].Caption, std::to_string(500 + 1000 * (i - 1)));
  EXPECT_EQ(s.TmrGoD.Interval(), 12500);
  EXPECT_EQ(s.lblTmrRndCol[6].Caption, "12500");
}

TEST_F(ColourIntervals, EntriesBeyondTheCountKeepWhatTheyHad) {
  base("500", "2");
  s.lblIntCol[4].Caption = "old";
  pick(1, 3);
  ScegliIntervalloColore(s);
  EXPECT_EQ(s.lblIntCol[3].Caption, "2500");
  EXPECT_EQ(s.lblIntCol[4].Caption, "old");
}

TEST_F(ColourIntervals, TheFirstEntryIsTheBasesCaptionAsItStands) {
  base(" +700 ", "0");
  pick(1, 1);
  ScegliIntervalloColore(s);
  EXPECT_EQ(s.lblIntCol[1].Caption, " +700 ");
  EXPECT_EQ(s.lblTmrRndCol[6].Caption, " +700 ");
  EXPECT_EQ(s.TmrGoD.Interval(), 700);
}

TEST_F(ColourIntervals, AllEntriesAreEquallyLikely) {
  base("1000", "3");
  for (int k = 1; k <= 4; ++k) {
    pick(k, 4);
    ScegliIntervalloColore(s);
    EXPECT_EQ(s.TmrGoD.Interval(), 1000 * k);
  }
}

TEST_F(ColourIntervals, CountsBeyond16BitsAndTheRunGoesOn) {
  base("50000", "12");
  pick(13, 13);
  ScegliIntervalloColore(s);
  EXPECT_EQ(s.TmrGoD.Interval(), 62000);
}

TEST_F(ColourIntervals, ABaseThatIsNoNumberEndsTheRunBeforeTheDraw) {
  base("x", "0");
  EXPECT_TRUE(endsTheRun([&] { ScegliIntervalloColore(s); }, {"lblTmrRndCol(0).Caption", "\"x\""}));
  EXPECT_EQ(generator.draws, 0);
}

TEST_F(ColourIntervals, ACountBelowNoughtEndsTheRunAfterTheDraw) {
  base("1000", "-1");
  generator.otherwise = 0.0F;
  EXPECT_TRUE(endsTheRun([&] { ScegliIntervalloColore(s); }, {"division by zero"}));
  EXPECT_EQ(generator.draws, 1);
}

TEST_F(ColourIntervals, MoreEntriesThanTheTableHasEndTheRunNamingIt) {
  base("1000", "13");
  EXPECT_TRUE(endsTheRun([&] { ScegliIntervalloColore(s); }, {"lblIntCol(14)", "1 to 13"}));
}

TEST_F(ColourIntervals, AnIntervalBeyondTheTimersLongestIsTheLongest) {
  base("2147482000", "2");
  for (const auto& [k, interval] : {std::pair{1, 2147482000}, {2, 2147483000}, {3, 2147483647}}) {
    pick(k, 3);
    ScegliIntervalloColore(s);
    EXPECT_EQ(s.TmrGoD.Interval(), interval);
    EXPECT_EQ(s.lblTmrRndCol[6].Caption, std::to_string(interval));
  }
}

}  // namespace
}  // namespace caleidoscopio::test
