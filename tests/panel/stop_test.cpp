#include <gtest/gtest.h>

#include "panel/go_stop.h"
#include "support/hands.h"
#include "support/rig.h"

namespace caleidoscopio::test {
namespace {

/// An instrument that runs with all six timers.
struct Stop : testing::Test, Rig {
  Stop() {
    generator.otherwise = 0.0F;
    for (int k = 0; k <= 5; ++k) s.cmdOnOff[k].BackColor = colours::running;
    click(s.cmdGoTimer);
  }
  void stop() { click(s.cmdGoTimer); }
  bool running() const { return s.cmdGoTimer.BackColor == colours::running; }
};

TEST_F(Stop, TurnsTheButtonBackAndEveryEngineOff) {
  stop();
  EXPECT_EQ(s.cmdGoTimer.BackColor, colours::idle);
  EXPECT_EQ(s.time.nextDue(), Time::never);
  for (int k = 0; k <= 5; ++k) EXPECT_EQ(s.cmdOnOff[k].BackColor, colours::running);
}

TEST_F(Stop, LeavesABreakSweepUnderWayToRunOutToItsEnd) {
  s.TmrBreak.setEnabled(true);
  stop();
  EXPECT_TRUE(s.TmrBreak.Enabled());
}

TEST_F(Stop, PutsTheRepeatOutAndKeepsTheLampForTheNextGo) {
  s.lblSpiaBreak.BackColor = s.lblBreakMode[21].BackColor = colours::selected;
  stop();
  EXPECT_EQ(s.lblBreakMode[21].BackColor, colours::unselected);
  EXPECT_EQ(s.lblSpiaBreak.BackColor, colours::selected);
  click(s.cmdGoTimer);
  EXPECT_EQ(s.lblBreakMode[21].BackColor, colours::selected);
}

TEST_F(Stop, LeavesTheRepeatWhenTheLampIsOut) {
  s.lblBreakMode[21].BackColor = colours::selected;
  stop();
  EXPECT_EQ(s.lblBreakMode[21].BackColor, colours::selected);
}

TEST_F(Stop, BringsTheTableBackToItsPlace) {
  s.lblSeq[11].BackColor = colours::selected;
  s.FraPannello[2].Visible = false;
  s.FraPannello.geometry(2).Left = {0};
  stop();
  EXPECT_TRUE(s.FraPannello[2].Visible);
  EXPECT_EQ(s.FraPannello.geometry(2).Left, Twips{2730});
}

TEST_F(Stop, AnyColourOfTheTablesButtonButWhiteShowsTheTable) {
  s.lblSeq[11].BackColor = colours::pressed;
  stop();
  EXPECT_TRUE(s.FraPannello[2].Visible);
}

TEST_F(Stop, HidesTheTableThatIsNotWantedWithoutMovingIt) {
  s.FraPannello[2].Visible = true;
  s.FraPannello.geometry(2).Left = {210};
  stop();
  EXPECT_FALSE(s.FraPannello[2].Visible);
  EXPECT_EQ(s.FraPannello.geometry(2).Left, Twips{210});
}

TEST_F(Stop, PlacesTheTableByRatioOrByOffsetOfTheScreen) {
  s.lblSeq[11].BackColor = colours::selected;
  platform.screen = {19200, 14400};
  stop();
  EXPECT_EQ(s.FraPannello.geometry(2).Left, Twips{2730 * 1.25});
  click(s.cmdGoTimer);
  platform.screen = {20490, 11520};
  stop();
  EXPECT_EQ(s.FraPannello.geometry(2).Left, Twips{2565 + 2730});
}

TEST_F(Stop, ShowsTheMarkOfTheRectangleToolOnlyWhileTheToolIsOn) {
  stop();
  EXPECT_FALSE(s.ShpRettangolo.Visible);
  click(s.cmdGoTimer);
  s.lblComCol[4].BackColor = colours::selected;
  stop();
  EXPECT_TRUE(s.ShpRettangolo.Visible);
}

TEST_F(Stop, UnlocksTheMemories) {
  stop();
  for (int i = 0; i <= 15; ++i) EXPECT_TRUE(s.lblSave[i].Enabled) << i;
  EXPECT_TRUE(s.lblCanc.Enabled && s.lblMemo[1].Enabled && s.lblMemo[2].Enabled);
  for (int i = 0; i <= 2; ++i) EXPECT_TRUE(s.lblComandiVari[i].Enabled) << i;
}

TEST_F(Stop, DoesNotBringHiddenPanelsBack) {
  stop();
  EXPECT_FALSE(s.FraPannello[0].Visible || s.FraPannello[1].Visible);
}

TEST_F(Stop, StepsTheCursorBackByARow) {
  s.lblSeq[4].Caption = "3";
  stop();
  EXPECT_EQ(s.lblSeq[4].Caption, "2");
}

TEST_F(Stop, WithTheCursorAtOneGoesToTheLastRowOfTheRange) {
  s.lblSeq[4].Caption = "1";
  s.lblSeq[5].Caption = "9";
  stop();
  EXPECT_EQ(s.lblSeq[4].Caption, "9");
}

TEST_F(Stop, StepsTheCursorBackWithTheSequencerOutToo) {
  s.cmdOnOff[5].BackColor = colours::pressed;
  s.lblSeq[4].Caption = "3";
  stop();
  EXPECT_EQ(s.lblSeq[4].Caption, "2");
}

TEST_F(Stop, TheFirstKeyStopsAllTimersAndShowsThePanelsAndTheSecondDoesNothing) {
  s.form.raise(Event::KeyDown, 0, 65);
  EXPECT_FALSE(running());
  EXPECT_TRUE(s.FraPannello[0].Visible && s.FraPannello[1].Visible);
  EXPECT_EQ(s.time.nextDue(), Time::never);
  s.form.raise(Event::KeyDown, 0, 65);
  EXPECT_FALSE(running());
  EXPECT_TRUE(s.FraPannello[0].Visible && s.FraPannello[1].Visible);
}

TEST_F(Stop, AClickOnTheBareFormStopsAsAKeyDoes) {
  click(s.form);
  EXPECT_FALSE(running());
  EXPECT_TRUE(s.FraPannello[0].Visible && s.FraPannello[1].Visible);
  click(s.form);
  EXPECT_FALSE(running());
}

TEST_F(Stop, WithHideUnselectedKeysAndClicksOnTheFormHaveNoEffect) {
  click(s.lblHide);
  s.form.raise(Event::KeyDown, 0, 65);
  click(s.form);
  EXPECT_TRUE(running());
  EXPECT_FALSE(s.FraPannello[0].Visible);
}

TEST_F(Stop, AClickOnACellIsNoClickOnTheForm) {
  click(s.lblMiro, 100);
  EXPECT_TRUE(running());
  EXPECT_EQ(s.lblMiro[100].BackColor, s.lblValAttivo.BackColor);
}

TEST(Hide, AClickTogglesItAndNothingElse) {
  Rig rig;
  Store& s = rig.s;
  click(s.lblHide);
  EXPECT_EQ(s.lblHide.BackColor, colours::unselected);
  EXPECT_TRUE(s.FraPannello[0].Visible);
  click(s.lblHide);
  EXPECT_EQ(s.lblHide.BackColor, colours::selected);
}

}  // namespace
}  // namespace caleidoscopio::test
