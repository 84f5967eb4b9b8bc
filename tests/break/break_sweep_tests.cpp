// One step of a sweep, and whole sweeps: what is written, in which order of steps, by which kind.
#include <gtest/gtest.h>

#include <set>

#include "break/patterns.h"
#include "break/sweep.h"
#include "break_rig.h"
#include "mosaic/index_map.h"

namespace caleidoscopio::test {
namespace {

struct BreakSweep : testing::Test {
  BreakRig rig;
  Store& s = rig.s;

  void SetUp() override {
    s.lblVoceOpzioni[2].Caption = "Y";
    makeEveryCellItsOwn(s);
  }
  void set(int pattern, const char* kind, bool out) {
    s.lblBreakMode[17].Caption = std::to_string(pattern);
    s.lblTrans.Caption = kind;
    s.lblBreak.BackColor = out ? colours::selected : colours::unselected;
    s.lblBreak.Caption = std::to_string(startValue(*findBreakPattern(pattern)));
  }
  /// One step, and the display cells that it changed.
  std::set<int> step() {
    const auto before = planeOf(s.lblMiro);
    SweepBreak(s);
    std::set<int> changed;
    for (int i = 1; i <= 441; ++i)
      if (tripleOf(s.lblMiro[i]) != before[static_cast<std::size_t>(i)]) changed.insert(i);
    return changed;
  }
  std::vector<std::set<int>> sweep() {
    std::vector<std::set<int>> steps;
    while (s.lblBreak.Caption != "1") steps.push_back(step());
    return steps;
  }
};

std::set<int> row(std::initializer_list<int> rows) {
  std::set<int> cells;
  for (int r : rows)
    for (int c = 0; c < 21; ++c) cells.insert(indexAt({r, c}));
  return cells;
}

TEST_F(BreakSweep, EveryPatternBothWaysUncoversEachCellOnceAndInIsOutReversed) {
  for (int pattern = 1; pattern <= 12; ++pattern) {
    set(pattern, "3", true);
    const auto out = sweep();
    EXPECT_EQ(planeOf(s.lblMiro), planeOf(s.lblMiro2)) << pattern;
    makeEveryCellItsOwn(s);
    set(pattern, "3", false);
    auto in = sweep();
    EXPECT_EQ(planeOf(s.lblMiro), planeOf(s.lblMiro2)) << pattern;
    makeEveryCellItsOwn(s);

    EXPECT_EQ(out.size(), static_cast<std::size_t>(findBreakPattern(pattern)->rings));
    std::size_t written = 0;
    for (const auto& step : out) written += step.size();
    EXPECT_EQ(written, 441U) << pattern;
    std::reverse(in.begin(), in.end());
    EXPECT_EQ(in, out) << pattern;
  }
}

TEST_F(BreakSweep, EveryPatternBothWaysPaintsEachCellOnceInKindsOneAndTwo) {
  for (const char* kind : {"1", "2"})
    for (int pattern = 1; pattern <= 12; ++pattern)
      for (bool out : {true, false}) {
        makeEveryCellItsOwn(s);
        set(pattern, kind, out);
        std::size_t written = 0;
        for (const auto& step : sweep()) written += step.size();
        EXPECT_EQ(written, 441U) << pattern;
        for (int i = 1; i <= 441; ++i) {
          EXPECT_EQ(tripleOf(s.lblMiro[i]), tripleOf(s.lblValore[4]));
          EXPECT_EQ(tripleOf(s.lblMiro2[i]), tripleOf(s.lblValore[4]));
        }
      }
}

TEST_F(BreakSweep, OrizzontaleOutGoesFromTheCentralRowToTheEdges) {
  set(1, "3", true);
  const auto steps = sweep();
  EXPECT_EQ(steps.front(), row({10}));
  EXPECT_EQ(steps[1], row({9, 11}));
  EXPECT_EQ(steps.back(), row({0, 20}));
}

TEST_F(BreakSweep, OrizzontaleInComesFromTheEdgesToTheCentralRow) {
  set(1, "3", false);
  const auto steps = sweep();
  EXPECT_EQ(steps.front(), row({0, 20}));
  EXPECT_EQ(steps.back(), row({10}));
}

TEST_F(BreakSweep, KindThreeNeverWritesTheDesignPlane) {
  const auto design = planeOf(s.lblMiro2);
  set(5, "3", true);
  for (int i = 0; i < 5; ++i) step();
  EXPECT_EQ(planeOf(s.lblMiro2), design);
  sweep();
  EXPECT_EQ(planeOf(s.lblMiro2), design);
}

TEST_F(BreakSweep, ASweepOfColourCutShortLeavesThePaintedPartInTheDesign) {
  set(1, "1", true);
  step();
  step();
  for (int i = 1; i <= 441; ++i) {
    const bool painted = row({9, 10, 11}).contains(i);
    EXPECT_EQ(s.lblMiro2[i].BackColor, s.lblMiro[i].BackColor);
    EXPECT_EQ(s.lblMiro2[i].BackColor == s.lblValore[4].BackColor, painted) << i;
    // The commit finds no slot for the other cells, and their digits stay.
    EXPECT_EQ(s.lblMiro2[i].Caption, painted ? "4" : "p" + std::to_string(i));
  }
}

TEST_F(BreakSweep, WithoutDigitsTheDisplayKeepsItsCaptionsAndTheDesignGetsItsDigits) {
  s.lblVoceOpzioni[2].Caption = "N";
  for (int pattern : {1, 12}) {
    makeEveryCellItsOwn(s);
    set(pattern, "2", true);
    sweep();
    for (int i = 1; i <= 441; ++i) {
      EXPECT_EQ(s.lblMiro[i].Caption, "d" + std::to_string(i));
      EXPECT_EQ(s.lblMiro2[i].Caption, "4");
      EXPECT_EQ(s.lblMiro[i].BackColor, s.lblValore[4].BackColor);
    }
  }
  makeEveryCellItsOwn(s);
  set(2, "3", true);
  sweep();
  for (int i = 1; i <= 441; ++i) {
    EXPECT_EQ(s.lblMiro[i].Caption, "d" + std::to_string(i));
    EXPECT_EQ(s.lblMiro[i].BackColor, s.lblMiro2[i].BackColor);
  }
}

TEST_F(BreakSweep, ImmediatoTakesTheDesignDigitFromTheSlotItself) {
  s.lblValore[2].BackColor = s.lblValore[4].BackColor;  // two slots of one colour
  set(12, "1", true);
  step();
  EXPECT_EQ(s.lblMiro2[1].Caption, "4");
  set(1, "1", true);
  step();
  EXPECT_EQ(s.lblMiro2[1].Caption, "2") << "the commit of other patterns asks the slots in order";
}

TEST_F(BreakSweep, ImmediatoIsTheSameInBothDirections) {
  for (const char* kind : {"1", "3"}) {
    set(12, kind, true);
    step();
    const auto out = planeOf(s.lblMiro);
    makeEveryCellItsOwn(s);
    set(12, kind, false);
    step();
    EXPECT_EQ(planeOf(s.lblMiro), out);
    makeEveryCellItsOwn(s);
  }
}

TEST_F(BreakSweep, ACountAboveTheRingsWritesNoCellButFallsAndCommits) {
  for (bool out : {true, false}) {
    makeEveryCellItsOwn(s);
    set(1, "1", out);
    s.lblBreak.Caption = "13";
    EXPECT_TRUE(step().empty());
    EXPECT_EQ(s.lblBreak.Caption, "12");
    EXPECT_EQ(s.lblMiro2[7].BackColor, s.lblMiro[7].BackColor) << "committed";
    EXPECT_EQ(step(), out ? row({10}) : row({0, 20}));

    makeEveryCellItsOwn(s);
    set(1, "3", out);
    s.lblBreak.Caption = "13";
    EXPECT_TRUE(step().empty());
    EXPECT_NE(s.lblMiro2[7].BackColor, s.lblMiro[7].BackColor) << "kind 3 commits nothing";
  }
}

TEST_F(BreakSweep, ImmediatoWithACountOtherThanItsStepWritesNothing) {
  for (const char* kind : {"1", "2", "3"})
    for (const char* count : {"3", "22", "1"}) {
      makeEveryCellItsOwn(s);
      const auto design = planeOf(s.lblMiro2);
      set(12, kind, true);
      s.lblBreak.Caption = count;
      EXPECT_TRUE(step().empty());
      EXPECT_EQ(planeOf(s.lblMiro2), design);
      EXPECT_EQ(s.lblBreak.Caption, std::to_string(std::stoi(count) - 1));
    }
}

TEST_F(BreakSweep, AnUnknownPatternLetsTheCountFallAndKindsOneAndTwoStillCommit) {
  for (const char* unknown : {"0", "13", "-1", "99"}) {
    makeEveryCellItsOwn(s);
    set(1, "2", true);
    s.lblBreakMode[17].Caption = unknown;
    EXPECT_TRUE(step().empty());
    EXPECT_EQ(s.lblBreak.Caption, "11");
    EXPECT_EQ(s.lblMiro2[9].BackColor, s.lblMiro[9].BackColor);

    makeEveryCellItsOwn(s);
    s.lblTrans.Caption = "3";
    EXPECT_TRUE(step().empty());
    EXPECT_EQ(s.lblBreak.Caption, "10");
    EXPECT_NE(s.lblMiro2[9].BackColor, s.lblMiro[9].BackColor);
  }
}

TEST_F(BreakSweep, ASlotOrACountThatIsNoNumberEndsTheRun) {
  set(1, "1", true);
  s.lblColSCelto.Caption = "9";
  EXPECT_THROW(SweepBreak(s), RunEnded);
  s.lblColSCelto.Caption = "";
  EXPECT_THROW(SweepBreak(s), RunEnded);
  s.lblBreak.Caption = "x";
  EXPECT_THROW(SweepBreak(s), RunEnded);
}

}  // namespace
}  // namespace caleidoscopio::test
