#include "transform/lineare.h"

#include <gtest/gtest.h>

#include <string>

#include "support/seeded.h"

namespace caleidoscopio::test {
namespace {

struct Lineare : testing::Test {
  Rig rig;
  Store& s = rig.s;

  void slotInto(Label& carried, int k) {
    carried.Caption = s.lblValore[k].Caption;
    carried.BackColor = s.lblValore[k].BackColor;
    carried.ForeColor = s.lblValore[k].ForeColor;
  }
  /// The walker on a leader in mid-run, with slots 5 and 6 to paint with.
  void walk(int leader, const char* direction, const char* left = "5") {
    s.lblCasel.Caption = std::to_string(leader);
    s.lblDirezione.Caption = direction;
    s.lblLungh.Caption = left;
    slotInto(s.lblCarat, 5);
    slotInto(s.lblCarat2, 6);
  }
  int stepFrom(int leader, const char* direction) {
    walk(leader, direction);
    PassoLineare(s);
    return std::stoi(s.lblCasel.Caption);
  }
};

TEST_F(Lineare, StepsOnTheTorusFromEveryLeaderInEveryDirection) {
  const auto leader = [](int r, int c) { return 1 + 36 * ((r + 9) % 9) + 4 * ((c + 9) % 9); };
  for (int r = 0; r <= 8; ++r)
    for (int c = 0; c <= 8; ++c) {
      EXPECT_EQ(stepFrom(leader(r, c), "-36"), leader(r - 1, c));
      EXPECT_EQ(stepFrom(leader(r, c), "4"), leader(r, c + 1));
      EXPECT_EQ(stepFrom(leader(r, c), "36"), leader(r + 1, c));
      EXPECT_EQ(stepFrom(leader(r, c), "-4"), leader(r, c - 1));
    }
  EXPECT_EQ(stepFrom(1, "-36"), 289);
  EXPECT_EQ(stepFrom(1, "-4"), 33);
  EXPECT_EQ(stepFrom(321, "4"), 289);
  EXPECT_EQ(stepFrom(321, "36"), 33);
}

TEST_F(Lineare, PaintsTheQuartetItComesToOnBothPlanes) {
  walk(41, "4");
  PassoLineare(s);
  for (int m = 0; m <= 3; ++m) {
    EXPECT_EQ(s.lblMiro[45 + m].BackColor, s.lblValore[5].BackColor);
    EXPECT_EQ(s.lblMiro[45 + m].ForeColor, s.lblValore[5].ForeColor);
    EXPECT_EQ(s.lblMiro[45 + m].Caption, "");
    EXPECT_TRUE(sameCell(s.lblMiro2[45 + m], s.lblValore[5]));
    EXPECT_EQ(s.lblMiro[41 + m].BackColor, s.lblValore[0].BackColor);
  }
  EXPECT_EQ(s.lblLungh.Caption, "4");
  EXPECT_EQ(rig.generator.draws, 0);
}

TEST_F(Lineare, ShowsDigitsWhereTheyAreShown) {
  s.lblVoceOpzioni[2].Caption = "Y";
  walk(41, "4");
  PassoLineare(s);
  for (int m = 0; m <= 3; ++m) EXPECT_EQ(s.lblMiro[45 + m].Caption, "5");
}

TEST_F(Lineare, InvertsWhereItsFirstColourStandsComparingColoursAlone) {
  walk(41, "4");
  paintQuartet(s, 45, 5);
  s.lblMiro[45].Caption = "9";
  s.lblMiro[45].ForeColor = {0x123456};
  PassoLineare(s);
  EXPECT_TRUE(sameCell(s.lblMiro2[45], s.lblValore[6]));
  // Where the second stands, the first comes again.
  PassoLineare(s);
  walk(41, "4");
  PassoLineare(s);
  EXPECT_TRUE(sameCell(s.lblMiro2[45], s.lblValore[5]));
}

TEST_F(Lineare, LooksAtTheDisplayOfTheLeaderAlone) {
  walk(41, "4");
  paintQuartet(s, 45, 5);
  s.lblMiro[45].BackColor = s.lblValore[1].BackColor;
  PassoLineare(s);
  EXPECT_TRUE(sameCell(s.lblMiro2[45], s.lblValore[5]));
}

TEST_F(Lineare, AnEndedRunBeginsAnotherAndStepsInTheSameTick) {
  walk(41, "4", "0");
  rig.pick(2, 3);  // length 4
  rig.pick(3, 4);  // up
  rig.pick(1, 5);  // the first colour stays
  rig.pick(3, 4);  // second colour: slot 2
  PassoLineare(s);
  EXPECT_EQ(s.lblDirezione.Caption, "-36");
  EXPECT_EQ(s.lblCasel.Caption, "5");
  EXPECT_EQ(s.lblLungh.Caption, "3");
  EXPECT_EQ(s.lblCarat.Caption, "5");
  EXPECT_EQ(s.lblCarat2.Caption, "2");
  EXPECT_TRUE(rig.generator.queue.empty());
}

TEST_F(Lineare, OneRunInFiveDrawsANewFirstColour) {
  walk(41, "4", "0");
  rig.pick(1, 3);
  rig.pick(1, 4);
  rig.pick(5, 5);  // it hits
  rig.pick(2, 4);  // first colour: slot 1
  rig.pick(2, 4);  // second: the same, drawn again
  rig.pick(4, 4);
  PassoLineare(s);
  EXPECT_EQ(s.lblCarat.Caption, "1");
  EXPECT_EQ(s.lblProvaCambioCol.Caption, "1");
  EXPECT_EQ(s.lblCarat2.Caption, "3");
  EXPECT_TRUE(rig.generator.queue.empty());
}

TEST_F(Lineare, EveryRunStandsAtARightAngleToTheOneBefore) {
  const struct {
    const char* before;
    const char* after[4];
  } turns[] = {{"", {"-36", "4", "36", "-4"}},
               {"-36", {"4", "4", "-4", "-4"}},
               {"36", {"4", "4", "-4", "-4"}},
               {"4", {"36", "36", "-36", "-36"}},
               {"-4", {"36", "36", "-36", "-36"}}};
  for (const auto& turn : turns)
    for (int d = 1; d <= 4; ++d) {
      walk(161, turn.before, "0");
      rig.pick(1, 3);
      rig.pick(d, 4);
      rig.pick(1, 5);
      rig.pick(1, 4);
      PassoLineare(s);
      EXPECT_EQ(s.lblDirezione.Caption, turn.after[d - 1]) << '"' << turn.before << "\" " << d;
    }
}

TEST_F(Lineare, ThirtyFailuresLeaveTheTwoColoursEqual) {
  walk(41, "4", "0");
  s.lblColNumber.Caption = "1";
  slotInto(s.lblCarat, 0);
  rig.pick(1, 3);
  rig.pick(1, 4);
  rig.pick(1, 5);
  for (int i = 0; i < 30; ++i) rig.pick(1, 1);
  PassoLineare(s);
  EXPECT_TRUE(rig.generator.queue.empty());
  EXPECT_TRUE(sameCell(s.lblCarat, s.lblCarat2));
}

TEST_F(Lineare, PreparingDrawsPlaceColoursLengthAndDirectionInThisOrder) {
  paintQuartet(s, 157, 2);
  rig.pick(40, 81);
  rig.pick(3, 4);  // the colour found: drawn again
  rig.pick(2, 4);
  rig.pick(3, 3);  // length 7
  rig.pick(2, 4);  // to the right
  PreparaLineare(s);
  EXPECT_EQ(s.lblCasel.Caption, "157");
  EXPECT_TRUE(sameCell(s.lblCarat, s.lblMiro2[157]));
  EXPECT_EQ(s.lblCarat2.Caption, "1");
  EXPECT_EQ(s.lblLungh.Caption, "6");
  EXPECT_EQ(s.lblDirezione.Caption, "4");
  EXPECT_TRUE(rig.generator.queue.empty());
}

TEST_F(Lineare, PreparingWithLengthOneLeavesTheFirstTickToBeginARun) {
  rig.pick(1, 81);
  rig.pick(2, 4);
  rig.pick(1, 3);
  rig.pick(2, 4);
  PreparaLineare(s);
  EXPECT_EQ(s.lblLungh.Caption, "0");
  rig.pick(2, 3);
  rig.pick(1, 4);
  rig.pick(1, 5);
  rig.pick(2, 4);
  PassoLineare(s);
  EXPECT_EQ(s.lblCasel.Caption, "37") << "down, at a right angle to the direction prepared";
}

TEST_F(Lineare, PreparingDoesNotForgetTheDirection) {
  s.lblDirezione.Caption = "36";
  rig.pick(1, 81);
  rig.pick(2, 4);
  rig.pick(1, 3);
  rig.pick(4, 4);
  PreparaLineare(s);
  EXPECT_EQ(s.lblDirezione.Caption, "-4");
}

TEST_F(Lineare, WithNoDirectionAndStepsLeftItPaintsWhereItStandsUntilTheRunEnds) {
  walk(41, "", "2");
  PassoLineare(s);
  EXPECT_TRUE(sameCell(s.lblMiro2[41], s.lblValore[5]));
  PassoLineare(s);
  EXPECT_TRUE(sameCell(s.lblMiro2[41], s.lblValore[6]));
  EXPECT_EQ(s.lblCasel.Caption, "41");
  EXPECT_EQ(s.lblLungh.Caption, "0");
  EXPECT_EQ(rig.generator.draws, 0);
}

TEST_F(Lineare, LengthsAreListedFromTheLowEnd) {
  click(s.lblLung, 8);
  click(s.lblLung, 4);
  const char* list[] = {"3", "1", "7", "8", "0", "0", "0", "0", "0"};
  for (int i = 0; i <= 8; ++i) EXPECT_EQ(s.lblLunghez[i].Caption, list[i]);
}

TEST_F(Lineare, TheLastLengthCannotBePutOut) {
  for (int k : {1, 4, 7}) click(s.lblLung, k);
  for (int k = 1; k <= 8; ++k)
    EXPECT_EQ(s.lblLung[k].BackColor, k == 7 ? colours::selected : colours::unselected);
  EXPECT_EQ(s.lblLunghez[0].Caption, "1");
  EXPECT_EQ(s.lblLunghez[1].Caption, "7");
  click(s.lblLung, 1);
  click(s.lblLung, 7);
  click(s.lblLung, 1);
  EXPECT_EQ(s.lblLung[1].BackColor, colours::selected);
}

TEST_F(Lineare, WhereAMemoryLitOtherLengthsTheListStillDecides) {
  // One length in the list, two lit: the click puts out length 1 and keeps the one clicked.
  s.lblLunghez[0].Caption = "1";
  click(s.lblLung, 7);
  EXPECT_EQ(s.lblLung[1].BackColor, colours::unselected);
  EXPECT_EQ(s.lblLung[7].BackColor, colours::selected);
  EXPECT_EQ(s.lblLunghez[0].Caption, "1");
  // Three in the list, one lit: it goes out, and the next run finds no length.
  s.lblLunghez[0].Caption = "3";
  s.lblLung[4].BackColor = colours::unselected;
  click(s.lblLung, 7);
  EXPECT_EQ(s.lblLunghez[0].Caption, "0");
  rig.generator.otherwise = 0.5F;
  walk(41, "4", "0");
  EXPECT_THROW(PassoLineare(s), RunEnded);
}

TEST_F(Lineare, TheNumberOfColoursWalksFromOneToSeven) {
  for (const char* n : {"5", "6", "7", "1", "2"}) {
    s.lblColNumber.raise(Event::MouseDown);
    EXPECT_EQ(s.lblColNumber.BackColor, colours::pressed);
    EXPECT_EQ(s.lblColNumber.Caption, n);
    s.lblColNumber.raise(Event::MouseUp);
    EXPECT_EQ(s.lblColNumber.BackColor, colours::unselected);
  }
}

}  // namespace
}  // namespace caleidoscopio::test
