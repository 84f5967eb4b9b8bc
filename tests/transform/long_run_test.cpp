#include <gtest/gtest.h>

#include <array>
#include <string>

#include "support/seeded.h"

namespace caleidoscopio::test {
namespace {

using Census = std::array<int, 8>;

/// How many quartets of the field have each slot's colour; the last counts those of no slot.
Census census(Store& s) {
  Census counts{};
  for (int i = 1; i <= fieldEnd; i += 4) {
    std::size_t k = 0;
    while (k <= 6 && s.lblMiro[i].BackColor != s.lblValore[static_cast<int>(k)].BackColor) ++k;
    ++counts[k];
  }
  return counts;
}

/// Clicks an option or two of a mode, as a person would in the middle of a run.
void play(SeededRig& rig, int mode) {
  Store& s = rig.s;
  SeededDraws& draws = rig.generator;
  const auto press = [](const Control& control, int i) {
    control.raise(Event::MouseDown, i);
    control.raise(Event::MouseUp, i);
  };
  press(s.lblNSc, 0);
  switch (mode) {
    case 1:
      press(s.lblCrea, draws.among(6));
      press(s.lblCrea, 11);
      press(s.lblComCol, 6 + draws.among(2));
      click(s.lblCambioCol, draws.among(4));
      return;
    case 2:
      return click(s.lblAngoli);
    case 3:
      click(s.lblLung, draws.among(8));
      press(s.lblColNumber, 0);
      if (draws.among(2) == 1) click(s.lblTransf, 3);
      return;
    case 5:
      press(s.lblMinMax, draws.among(5));
      press(s.lblOpzAggrega, draws.among(2) - 1);
      return;
    case 6:
      return press(s.lblNScambi, 0);
    default:
      return;
  }
}

class LongRun : public testing::TestWithParam<int> {};

TEST_P(LongRun, KeepsTheFieldFourfoldAndEndsNothing) {
  const int mode = GetParam();
  SeededRig rig(static_cast<unsigned>(mode) + 40);
  Store& s = rig.s;
  scatter(s, rig.generator);
  click(s.lblTransf, mode);
  s.TmrGoB.setEnabled(true);
  Census before = census(s);
  for (int n = 0; n < longRun; ++n) {
    if (n % 500 == 0) {
      play(rig, mode);
      before = census(s);
    }
    if (n % 5000 == 0) s.lblComCol.raise(Event::MouseDown, 1);
    s.TmrGoB.raise(Event::Tick);
    if (n % 50 != 0) continue;
    ASSERT_EQ(unequalQuartet(s), 0) << "after tick " << n;
    ASSERT_EQ(unnamedSlot(s), -1) << "after tick " << n;
    const bool digits = s.lblVoceOpzioni[2].Caption == "Y";
    for (int i = 1; i <= cellCount; ++i) {
      ASSERT_EQ(s.lblMiro[i].BackColor, s.lblMiro2[i].BackColor) << "cell " << i;
      ASSERT_EQ(s.lblMiro[i].Caption, digits ? s.lblMiro2[i].Caption : "") << "cell " << i;
    }
    if (mode == 6) {
      ASSERT_EQ(census(s), before) << "after tick " << n;
    }
    if (mode >= 2) {
      ASSERT_EQ(census(s)[7], 0);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(EveryMode, LongRun, testing::Range(1, 7));

TEST(LongRunOfDesigns, NeverReachesTheColumnsOfTheFrame) {
  SeededRig rig(9);
  Store& s = rig.s;
  for (int k : {3, 4, 5, 6}) s.lblCrea[k].Caption = "10";
  bool rows = false;
  for (int n = 0; n < 300; ++n) {
    s.TmrGoB.raise(Event::Tick);
    for (int i = 401; i <= 436; ++i) ASSERT_EQ(s.lblMiro[i].BackColor, s.lblValore[0].BackColor);
    for (int i = 365; i <= 400; ++i)
      rows = rows || s.lblMiro[i].BackColor != s.lblValore[0].BackColor;
  }
  EXPECT_TRUE(rows);
}

/// An hour with timers A, B and F, every mode of B in turn and the shifts between.
Picture hour(unsigned seed) {
  SeededRig rig(seed);
  Store& s = rig.s;
  scatter(s, rig.generator);
  for (int k : {0, 1, 2}) click(s.cmdOnOff, k);
  click(s.lblCambioCol, 9);
  s.lblTmrRndCol[3].Caption = "12";
  click(s.cmdGoTimer);
  for (int minute = 0; minute < 60; ++minute) {
    click(s.lblTransf, minute % 6 + 1);
    click(s.lblSposta, minute % 12 + 1);
    rig.clock.time.minute = minute;
    s.time.advance(60'000);
  }
  EXPECT_EQ(s.time.now(), 3'600'000U);
  EXPECT_EQ(unequalQuartet(s), 0);
  EXPECT_EQ(unnamedSlot(s), -1);
  click(s.cmdGoTimer);
  const Picture last = picture(s);
  s.time.advance(10'000);
  EXPECT_EQ(picture(s), last) << "Stop stops all of them";
  return last;
}

TEST(AnHourOfShiftsTransformsAndColours, EndsInTheSamePictureForTheSameSeed) {
  const Picture one = hour(2026);
  EXPECT_EQ(one, hour(2026));
  EXPECT_NE(one, hour(2027));
}

}  // namespace
}  // namespace caleidoscopio::test
