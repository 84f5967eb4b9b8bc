// The C section of the panel: directions, random, rarity with its held arrows, number of slots.
#include <gtest/gtest.h>

#include "support/rig.h"

namespace caleidoscopio::test {
namespace {

struct FrameOptions : testing::Test {
  Rig rig;
  Store& s = rig.s;
};

TEST_F(FrameOptions, ADirectionCyclesOffOutInWithItsColour) {
  for (int n : {1, 2}) {
    Label& option = s.lblCorniceOpzio[n];
    option.Caption = "Off";
    option.BackColor = colours::idle;  // as the sequencer leaves it
    s.lblCorniceOpzio.raise(Event::MouseDown, n);
    EXPECT_EQ(option.Caption, "Out");
    EXPECT_EQ(option.BackColor, colours::selected);
    s.lblCorniceOpzio.raise(Event::MouseDown, n);
    EXPECT_EQ(option.Caption, "In");
    EXPECT_EQ(option.BackColor, colours::selected);
    s.lblCorniceOpzio.raise(Event::MouseDown, n);
    EXPECT_EQ(option.Caption, "Off");
    EXPECT_EQ(option.BackColor, colours::unselected);
  }
}

TEST_F(FrameOptions, OneDirectionLeavesTheOtherAloneUnlessTied) {
  s.lblCorniceOpzio.raise(Event::MouseDown, 1);
  EXPECT_EQ(s.lblCorniceOpzio[2].Caption, "Out");
  s.lblSyn.BackColor = colours::selected;
  s.lblCorniceOpzio.raise(Event::MouseDown, 1);  // In to Off
  EXPECT_EQ(s.lblCorniceOpzio[2].Caption, "Off");
  EXPECT_EQ(s.lblCorniceOpzio[2].BackColor, colours::unselected);
  s.lblCorniceOpzio.raise(Event::MouseDown, 2);
  EXPECT_EQ(s.lblCorniceOpzio[1].Caption, "Out");
  EXPECT_EQ(s.lblCorniceOpzio[1].BackColor, colours::selected);
}

TEST_F(FrameOptions, TheTieActsOnThePressAlone) {
  s.lblSyn.BackColor = colours::selected;
  s.lblRandomC.BackColor = colours::unselected;
  s.lblCorniceOpzio[2].Caption = "In";
  s.TmrGoC.raise(Event::Tick);
  EXPECT_EQ(s.lblCorniceOpzio[1].Caption, "Out");
  EXPECT_EQ(s.lblCorniceOpzio[2].Caption, "In");
}

TEST_F(FrameOptions, AnUnknownDirectionDoesNotCycle) {
  s.lblCorniceOpzio[1].Caption = "Up";
  s.lblCorniceOpzio.raise(Event::MouseDown, 1);
  EXPECT_EQ(s.lblCorniceOpzio[1].Caption, "Up");
  EXPECT_EQ(s.lblCorniceOpzio[1].BackColor, colours::selected);
}

TEST_F(FrameOptions, RandomTurnsOnFromWhiteAndOffFromAnyOtherColour) {
  click(s.lblRandomC);
  EXPECT_EQ(s.lblRandomC.BackColor, colours::unselected);
  click(s.lblRandomC);
  EXPECT_EQ(s.lblRandomC.BackColor, colours::selected);
  s.lblRandomC.BackColor = colours::pressed;
  click(s.lblRandomC);
  EXPECT_EQ(s.lblRandomC.BackColor, colours::unselected);
}

TEST_F(FrameOptions, AnArrowStepsAtThePressAndEveryHundredMillisecondsWhileHeld) {
  s.lblRndC.raise(Event::MouseDown, 2);
  EXPECT_EQ(s.lblRndC[0].Caption, "3");
  EXPECT_EQ(s.lblRndC[2].BackColor, colours::pressed);
  EXPECT_EQ(s.lblIndFRnd.Caption, "2");
  s.time.advance(299);
  EXPECT_EQ(s.lblRndC[0].Caption, "5");
  s.time.advance(1);
  EXPECT_EQ(s.lblRndC[0].Caption, "6");
  s.lblRndC.raise(Event::MouseUp, 2);
  EXPECT_EQ(s.lblRndC[2].BackColor, colours::idle);
  s.time.advance(1000);
  EXPECT_EQ(s.lblRndC[0].Caption, "6");
  s.lblRndC.raise(Event::MouseDown, 1);
  EXPECT_EQ(s.lblRndC[0].Caption, "5");
  EXPECT_EQ(s.lblIndFRnd.Caption, "1");
  s.time.advance(100);
  EXPECT_EQ(s.lblRndC[0].Caption, "4");
}

TEST_F(FrameOptions, TheRarityGoesRoundAtBothEnds) {
  s.lblRndC[0].Caption = "36";
  s.lblRndC.raise(Event::MouseDown, 2);
  EXPECT_EQ(s.lblRndC[0].Caption, "1");
  s.lblRndC.raise(Event::MouseDown, 1);
  EXPECT_EQ(s.lblRndC[0].Caption, "36");
  s.time.advance(100);
  EXPECT_EQ(s.lblRndC[0].Caption, "35");
}

TEST_F(FrameOptions, TheHeldArrowIsComparedAsText) {
  s.TmrFrqRnd.setEnabled(true);
  for (const char* notUp : {"", "02", "x"}) {
    s.lblRndC[0].Caption = "10";
    s.lblIndFRnd.Caption = notUp;
    s.time.advance(100);
    EXPECT_EQ(s.lblRndC[0].Caption, "9") << notUp;
  }
}

TEST_F(FrameOptions, APressOnTheRarityItselfDoesNothing) {
  s.lblRndC.raise(Event::MouseDown, 0);
  EXPECT_EQ(s.lblRndC[0].Caption, "2");
  EXPECT_EQ(s.lblRndC[0].BackColor, colours::unselected);
  EXPECT_FALSE(s.TmrFrqRnd.Enabled());
}

TEST_F(FrameOptions, TheNumberOfSlotsFlashesAtThePressAndStepsAtTheRelease) {
  for (const char* next : {"2", "3", "4", "5", "6", "7", "2"}) {
    const std::string was = s.lblColCornice.Caption;
    s.lblColCornice.raise(Event::MouseDown);
    EXPECT_EQ(s.lblColCornice.BackColor, colours::pressed);
    EXPECT_EQ(s.lblColCornice.Caption, was);
    s.lblColCornice.raise(Event::MouseUp);
    EXPECT_EQ(s.lblColCornice.BackColor, colours::unselected);
    EXPECT_EQ(s.lblColCornice.Caption, next);
  }
}

TEST_F(FrameOptions, ANumberOfSlotsOutsideTwoToSevenStays) {
  for (const char* odd : {"1", "8", "0", "", "22", "x"}) {
    s.lblColCornice.Caption = odd;
    s.lblColCornice.raise(Event::MouseUp);
    EXPECT_EQ(s.lblColCornice.Caption, odd);
  }
}

TEST_F(FrameOptions, AnOptionTakesEffectAtTheNextTick) {
  s.lblRandomC.BackColor = colours::unselected;
  s.lblMiro[329].BackColor = {0x111111};
  s.lblMiro[441].BackColor = {0x222222};
  s.lblCorniceOpzio[1].Caption = "Off";
  s.lblCorniceOpzio.raise(Event::MouseDown, 1);
  EXPECT_EQ(s.lblMiro[441].BackColor, Colour{0x222222});
  s.TmrGoC.raise(Event::Tick);
  EXPECT_EQ(s.lblMiro[441].BackColor, Colour{0x111111});
}

}  // namespace
}  // namespace caleidoscopio::test
