#include "panel/speeds.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/hands.h"
#include "support/rig.h"
#include "support/run_end.h"

namespace caleidoscopio::test {
namespace {

struct Speeds : testing::Test, Rig {
  std::string velo(int t) const { return s.lblVelo[t].Caption; }
  /// What one step of plus makes of a value.
  std::string plus(const std::string& value) {
    s.lblVelo[2].Caption = value;
    tick(s.TmrVeloPiù);
    return velo(2);
  }
  std::string minus(const std::string& value) {
    s.lblVelo[2].Caption = value;
    tick(s.TmrVeloMeno);
    return velo(2);
  }
};

TEST_F(Speeds, PressNamesTheRowAndStartsTheTwoTimersOfItsDirectionWithoutAStep) {
  press(s.lblPiùTmr, 3);
  EXPECT_EQ(s.lblIndexTmr.Caption, "3");
  EXPECT_EQ(s.lblPiùTmr[3].BackColor, colours::pressed);
  EXPECT_TRUE(s.TmrVeloPiù.Enabled() && s.TmrScorriPiù.Enabled());
  EXPECT_FALSE(s.TmrVeloMeno.Enabled() || s.TmrScorriMeno.Enabled());
  EXPECT_EQ(velo(3), "80");
  release(s.lblPiùTmr, 3);
  press(s.lblMenoTmr, 1);
  EXPECT_EQ(s.lblIndexTmr.Caption, "1");
  EXPECT_EQ(s.lblMenoTmr[1].BackColor, colours::pressed);
  EXPECT_TRUE(s.TmrVeloMeno.Enabled() && s.TmrScorriMeno.Enabled());
  EXPECT_FALSE(s.TmrVeloPiù.Enabled() || s.TmrScorriPiù.Enabled());
}

TEST_F(Speeds, APressOnPlusAt500ReleasedUnder70MsGivesNothing) {
  press(s.lblPiùTmr, 1);
  s.time.advance(69);
  release(s.lblPiùTmr, 1);
  EXPECT_EQ(velo(1), "500");
  EXPECT_EQ(s.TmrGoA.Interval(), 500);
}

TEST_F(Speeds, APressOnPlusAt500ReleasedAfter100MsGives550) {
  press(s.lblPiùTmr, 1);
  s.time.advance(100);
  release(s.lblPiùTmr, 1);
  s.time.advance(1000);
  EXPECT_EQ(velo(1), "550");
  EXPECT_EQ(s.TmrGoA.Interval(), 550);
}

TEST_F(Speeds, TheFirstStepComesAt70MsAndTheSecondAt138SinceTheFirstShortenedThePeriod) {
  press(s.lblPiùTmr, 1);
  s.time.advance(69);
  EXPECT_EQ(velo(1), "500");
  s.time.advance(1);
  EXPECT_EQ(velo(1), "550");
  s.time.advance(67);
  EXPECT_EQ(velo(1), "550");
  s.time.advance(1);
  EXPECT_EQ(velo(1), "600");
}

TEST_F(Speeds, TheBandsOfPlusAreClosedRanges) {
  const std::vector<std::pair<std::string, std::string>> steps{
      {"10", "20"},       {"90", "100"},      {"100", "125"},     {"475", "500"},
      {"500", "550"},     {"950", "1000"},    {"1000", "1100"},   {"9900", "10000"},
      {"10000", "10500"}, {"29500", "30000"}, {"30000", "30000"}, {"95", "95"},
      {"9", "9"},         {"480", "480"},     {"9950", "9950"},   {"29600", "29600"}};
  for (const auto& [from, to] : steps) EXPECT_EQ(plus(from), to) << from;
}

TEST_F(Speeds, TheBandsOfMinusAreClosedRanges) {
  const std::vector<std::pair<std::string, std::string>> steps{
      {"10", "10"},      {"20", "10"},       {"100", "90"},      {"125", "100"},
      {"500", "475"},    {"550", "500"},     {"1000", "950"},    {"1100", "1000"},
      {"10000", "9900"}, {"10500", "10000"}, {"30000", "29500"}, {"15", "15"},
      {"110", "110"},    {"520", "520"},     {"1050", "1050"},   {"30500", "30500"}};
  for (const auto& [from, to] : steps) EXPECT_EQ(minus(from), to) << from;
}

TEST_F(Speeds, NinetyFiveStandsStillUnderPlusAndGoesTo85UnderMinus) {
  EXPECT_EQ(plus("95"), "95");
  EXPECT_EQ(minus("95"), "85");
}

TEST_F(Speeds, MinusUndoesPlusAtEveryValueThatTheButtonsReach) {
  for (std::string value = "10"; value != "30000";) {
    const std::string next = plus(value);
    ASSERT_NE(next, value);
    EXPECT_EQ(minus(next), value);
    value = next;
  }
}

TEST_F(Speeds, ALongHoldOfMinusRunsFrom30000To10AndStaysThere) {
  s.lblVelo[1].Caption = "30000";
  press(s.lblMenoTmr, 1);
  s.time.advance(5000);
  EXPECT_EQ(velo(1), "10");
  s.time.advance(1000);
  EXPECT_EQ(velo(1), "10");
  release(s.lblMenoTmr, 1);
  EXPECT_EQ(s.TmrGoA.Interval(), 10);
}

TEST_F(Speeds, ALongHoldOfPlusEndsAt30000) {
  s.lblVelo[3].Caption = "10";
  press(s.lblPiùTmr, 3);
  s.time.advance(6000);
  EXPECT_EQ(velo(3), "30000");
}

TEST_F(Speeds, MinusReTimesTheEngineAtEachStepAndPlusOnlyAtTheRelease) {
  Timer* const engines[] = {&s.TmrGoA, &s.TmrGoB, &s.TmrGoC};
  for (int t = 1; t <= 3; ++t) {
    const Timer& engine = *engines[t - 1];
    s.lblVelo[t].Caption = "500";
    const int before = engine.Interval();
    press(s.lblPiùTmr, t);
    s.time.advance(70);
    EXPECT_EQ(velo(t), "550");
    EXPECT_EQ(engine.Interval(), before);
    release(s.lblPiùTmr, t);
    EXPECT_EQ(engine.Interval(), 550);
    press(s.lblMenoTmr, t);
    s.time.advance(70);
    EXPECT_EQ(velo(t), "500");
    EXPECT_EQ(engine.Interval(), 500);
    release(s.lblMenoTmr, t);
  }
}

TEST_F(Speeds, AMinusTickThatMakesNoStepWritesNoInterval) {
  s.lblIndexTmr.Caption = "1";
  s.lblVelo[1].Caption = "10";
  tick(s.TmrVeloMeno);
  EXPECT_EQ(s.TmrGoA.Interval(), 500);
}

TEST_F(Speeds, TheStepsQuickenFrom70MsDownTo4) {
  for (int expected = 68; expected >= 4; expected -= 2) {
    tick(s.TmrScorriPiù);
    EXPECT_EQ(s.TmrVeloPiù.Interval(), expected);
  }
  tick(s.TmrScorriPiù);
  EXPECT_EQ(s.TmrVeloPiù.Interval(), 4);
}

TEST_F(Speeds, ScorriPiùEndsByTurningItselfOff) {
  press(s.lblPiùTmr, 1);
  s.TmrVeloPiù.setInterval(5);
  tick(s.TmrScorriPiù);
  EXPECT_EQ(s.TmrVeloPiù.Interval(), 3);
  EXPECT_TRUE(s.TmrScorriPiù.Enabled());
  s.TmrScorriPiù.setInterval(33);
  tick(s.TmrScorriPiù);
  EXPECT_FALSE(s.TmrScorriPiù.Enabled());
  EXPECT_EQ(s.TmrScorriPiù.Interval(), 70);
  EXPECT_EQ(s.TmrVeloPiù.Interval(), 3);
}

TEST_F(Speeds, ScorriMenoEndsByTurningScorriPiùOffAndTicksOnItself) {
  press(s.lblMenoTmr, 1);
  s.TmrScorriPiù.setEnabled(true);
  s.TmrScorriPiù.setInterval(33);
  s.TmrVeloMeno.setInterval(4);
  tick(s.TmrScorriMeno);
  EXPECT_TRUE(s.TmrScorriMeno.Enabled());
  EXPECT_FALSE(s.TmrScorriPiù.Enabled());
  EXPECT_EQ(s.TmrScorriPiù.Interval(), 70);
  EXPECT_EQ(s.TmrVeloMeno.Interval(), 4);
  release(s.lblMenoTmr, 1);
  EXPECT_FALSE(s.TmrScorriMeno.Enabled());
}

TEST_F(Speeds, ReleasePutsTheThreeButtonsAndTheTwoTimersToRest) {
  press(s.lblPiùTmr, 1);
  s.lblPiùTmr[2].BackColor = colours::pressed;
  s.time.advance(500);
  EXPECT_LT(s.TmrVeloPiù.Interval(), 70);
  release(s.lblPiùTmr, 1);
  for (int t = 1; t <= 3; ++t) EXPECT_EQ(s.lblPiùTmr[t].BackColor, colours::idle);
  EXPECT_FALSE(s.TmrVeloPiù.Enabled() || s.TmrScorriPiù.Enabled());
  EXPECT_EQ(s.TmrVeloPiù.Interval(), 70);
  EXPECT_EQ(s.TmrScorriPiù.Interval(), 70);
}

struct ReleaseInARun : Speeds {
  ReleaseInARun() {
    generator.otherwise = 0.0F;
    for (int k = 1; k <= 3; ++k) click(s.cmdOnOff, k);
    s.lblVelo[1].Caption = s.lblVelo[2].Caption = s.lblVelo[3].Caption = "1000";
    click(s.cmdGoTimer);
  }
  /// The milliseconds until the timer is due, found by turning all others off.
  std::uint64_t dueIn(Timer& timer) {
    for (Timer* other : {&s.TmrGoA, &s.TmrGoB, &s.TmrGoC})
      if (other != &timer) other->setEnabled(false);
    return s.time.nextDue() - s.time.now();
  }
};

TEST_F(ReleaseInARun, RestartsAAndBAndCInStep) {
  s.time.advance(400);
  press(s.lblPiùTmr, 3);
  release(s.lblPiùTmr, 3);
  EXPECT_EQ(s.time.nextDue(), 1400U);
  s.TmrGoA.setEnabled(false);
  EXPECT_EQ(s.time.nextDue(), 1400U);
  s.TmrGoB.setEnabled(false);
  EXPECT_EQ(s.time.nextDue(), 1400U);
}

TEST_F(ReleaseInARun, RestartsNothingWhileTimerBIsOut) {
  click(s.cmdOnOff, 2);
  s.time.advance(400);
  press(s.lblPiùTmr, 3);
  release(s.lblPiùTmr, 3);
  EXPECT_EQ(dueIn(s.TmrGoA), 600U);
}

TEST_F(ReleaseInARun, LeavesATimerOffWhoseSwitchIsOut) {
  click(s.cmdOnOff, 1);
  press(s.lblMenoTmr, 3);
  release(s.lblMenoTmr, 3);
  EXPECT_FALSE(s.TmrGoA.Enabled());
  EXPECT_TRUE(s.TmrGoB.Enabled() && s.TmrGoC.Enabled());
}

TEST_F(Speeds, AReleaseWhileStoppedStartsNothing) {
  for (int k = 1; k <= 3; ++k) click(s.cmdOnOff, k);
  press(s.lblPiùTmr, 1);
  release(s.lblPiùTmr, 1);
  EXPECT_FALSE(s.TmrGoA.Enabled() || s.TmrGoB.Enabled() || s.TmrGoC.Enabled());
}

TEST_F(Speeds, TheSelectedShiftAloneRemembersTheIntervalOfA) {
  s.lblIntervalA[0].Caption = "9";
  press(s.lblPiùTmr, 1);
  s.time.advance(70);
  release(s.lblPiùTmr, 1);
  for (int i = 1; i <= 12; ++i)
    EXPECT_EQ(s.lblIntervalA[i].Caption, i == 9 ? "550" : std::to_string(100 * i));
}

TEST_F(Speeds, WithSyncroOneChangeSetsAllTwelveShiftIntervals) {
  click(s.lblSyncro);
  press(s.lblMenoTmr, 1);
  s.time.advance(70);
  release(s.lblMenoTmr, 1);
  for (int i = 1; i <= 12; ++i) EXPECT_EQ(s.lblIntervalA[i].Caption, "475");
  EXPECT_EQ(s.lblIntervalA[0].Caption, "1");
}

TEST_F(Speeds, AnyColourOfSyncroButWhiteTiesAllTwelve) {
  s.lblSyncro.BackColor = {0x123456};
  press(s.lblPiùTmr, 1);
  release(s.lblPiùTmr, 1);
  for (int i = 1; i <= 12; ++i) EXPECT_EQ(s.lblIntervalA[i].Caption, "500");
}

TEST_F(Speeds, ASpeedReleaseWithFamily13To24IsRememberedNowhere) {
  for (const char* family : {"13", "24"}) {
    s.lblIntervalA[0].Caption = family;
    press(s.lblPiùTmr, 1);
    release(s.lblPiùTmr, 1);
    for (int i = 1; i <= 12; ++i) EXPECT_EQ(s.lblIntervalA[i].Caption, std::to_string(100 * i));
    EXPECT_EQ(s.lblIntervalA[0].Caption, family);
  }
}

TEST_F(Speeds, AFamilyOfNoughtIsOverwrittenByItsOwnSpeed) {
  s.lblIntervalA[0].Caption = "0";
  press(s.lblPiùTmr, 1);
  release(s.lblPiùTmr, 1);
  EXPECT_EQ(s.lblIntervalA[0].Caption, "500") << "element 0 is an element like any other";
  for (int i = 1; i <= 12; ++i) EXPECT_EQ(s.lblIntervalA[i].Caption, std::to_string(100 * i));
  // From then on it names no family.
  press(s.lblPiùTmr, 1);
  EXPECT_TRUE(endsTheRun([&] { release(s.lblPiùTmr, 1); }, {"lblIntervalA(500)", "0 to 12"}));
}

TEST_F(Speeds, AFamilyThatNoButtonChoosesEndsTheRunAtTheRelease) {
  for (const char* family : {"25", "-1"}) {
    s.lblIntervalA[0].Caption = family;
    press(s.lblMenoTmr, 1);
    EXPECT_TRUE(endsTheRun([&] { release(s.lblMenoTmr, 1); },
                           {"lblIntervalA(" + std::string(family) + ")", "0 to 12"}));
  }
  s.lblSyncro.BackColor = colours::selected;  // all twelve at once ask for no family
  press(s.lblMenoTmr, 1);
  release(s.lblMenoTmr, 1);
  EXPECT_EQ(s.lblIntervalA[12].Caption, "500");
}

TEST_F(Speeds, TimerBRemembersItsIntervalForTheTransformSelected) {
  s.lblTransf[0].Caption = "5";
  press(s.lblMenoTmr, 2);
  s.time.advance(70);
  release(s.lblMenoTmr, 2);
  EXPECT_EQ(velo(2), "950");
  EXPECT_EQ(s.TmrGoB.Interval(), 950);
  EXPECT_EQ(s.lblInterv[5].Caption, "950");
  EXPECT_EQ(s.lblInterv[4].Caption, "100");
  EXPECT_EQ(s.lblIntervalA[1].Caption, "100");
}

TEST_F(Speeds, ASpeedThatIsNoNumberEndsTheRunAndNamesIt) {
  s.lblVelo[1].Caption = "fast";
  press(s.lblPiùTmr, 1);
  EXPECT_TRUE(
      endsTheRun([&] { s.time.advance(70); }, {"lblVelo(1).Caption", "\"fast\"", "number"}));
}

}  // namespace
}  // namespace caleidoscopio::test
