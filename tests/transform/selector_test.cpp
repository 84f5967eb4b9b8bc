#include <gtest/gtest.h>

#include <string>

#include "support/seeded.h"

namespace caleidoscopio::test {
namespace {

struct Selector : testing::Test {
  SeededRig rig{7};
  Store& s = rig.s;
  /// The one panel shown, 0 for none, -1 for several.
  int shown() {
    int found = 0;
    for (int i = 1; i <= 12; ++i)
      if (s.FraTransf[i].Visible) found = found ? -1 : i;
    return found;
  }
  void run() {
    s.cmdGoTimer.BackColor = colours::running;
    s.cmdOnOff[2].BackColor = colours::running;
  }
};

TEST_F(Selector, EachModeShowsItsNameItsSpeedAndItsPanelAlone) {
  const struct {
    const char* name;
    int interval, panel;
  } modes[] = {{"Crea Disegno", 1000, 1}, {"Angoli", 200, 7},  {"Lineare", 50, 9},
               {"Traccia", 100, 3},       {"Aggrega", 80, 10}, {"Scambia", 200, 2}};
  EXPECT_EQ(shown(), 1);
  for (int k = 1; k <= 6; ++k) {
    click(s.lblTransf, k);
    EXPECT_EQ(s.lblTransf[0].Caption, std::to_string(k));
    EXPECT_EQ(s.lblMode[2].Caption, modes[k - 1].name);
    EXPECT_EQ(s.lblVelo[2].Caption, std::to_string(modes[k - 1].interval));
    EXPECT_EQ(s.TmrGoB.Interval(), modes[k - 1].interval);
    EXPECT_EQ(shown(), modes[k - 1].panel);
    for (int i = 1; i <= 12; ++i)
      EXPECT_EQ(s.lblTransf[i].BackColor, i == k ? colours::selected : colours::unselected);
    EXPECT_FALSE(s.TmrGoB.Enabled()) << "the instrument is stopped";
  }
}

TEST_F(Selector, ScambiaTakesItsSpeedFromTheSixthHolderNotFromTheOneInItsPanel) {
  s.lblInterv[6].Caption = "210";
  s.lblInterv[7].Caption = "70";
  click(s.lblTransf, 6);
  EXPECT_EQ(s.lblVelo[2].Caption, "210");
}

TEST_F(Selector, ModesBeyondSixHaveNeitherPanelNorEngine) {
  run();
  for (int k = 7; k <= 12; ++k) {
    click(s.lblTransf, 5);
    click(s.lblTransf, k);
    EXPECT_EQ(s.lblMode[2].Caption, "Aggrega");
    EXPECT_EQ(s.lblVelo[2].Caption, "80");
    EXPECT_EQ(shown(), 0);
    EXPECT_EQ(s.lblTransf[k].BackColor, colours::selected);
    EXPECT_TRUE(s.TmrGoB.Enabled());
    const Picture before = picture(s);
    s.time.advance(1000);
    EXPECT_EQ(picture(s), before);
  }
}

TEST_F(Selector, AClickRestartsThePeriodOnlyWhereTimerBTakesPart) {
  run();
  click(s.lblTransf, 4);
  s.time.advance(60);
  click(s.lblTransf, 4);
  EXPECT_EQ(s.time.nextDue(), 160U);
  s.cmdOnOff[2].BackColor = colours::pressed;
  click(s.lblTransf, 4);
  EXPECT_FALSE(s.TmrGoB.Enabled());
}

TEST_F(Selector, AClickOnTheModeInUseRunsItsPreparationAgain) {
  click(s.lblTransf, 3);
  const std::string direction = s.lblDirezione.Caption;
  ASSERT_FALSE(direction.empty());
  s.lblCasel.Caption = "nowhere";
  click(s.lblTransf, 3);
  EXPECT_NE(s.lblCasel.Caption, "nowhere");
  // The direction before is not forgotten: the new one stands at a right angle to it.
  EXPECT_NE(std::stoi(direction) % 36 == 0, std::stoi(s.lblDirezione.Caption) % 36 == 0);
}

TEST_F(Selector, ASpeedSetForAModeIsThereAgainAfterAnother) {
  click(s.lblTransf, 2);
  s.lblPiùTmr.raise(Event::MouseDown, 2);
  s.time.advance(70);
  s.lblPiùTmr.raise(Event::MouseUp, 2);
  EXPECT_EQ(s.lblVelo[2].Caption, "225");
  click(s.lblTransf, 5);
  EXPECT_EQ(s.lblVelo[2].Caption, "80");
  click(s.lblTransf, 2);
  EXPECT_EQ(s.lblVelo[2].Caption, "225");
}

TEST_F(Selector, ATickRunsTheEngineThatTheHolderNames) {
  run();
  scatter(s, rig.generator);
  for (int k = 1; k <= 6; ++k) {
    click(s.lblTransf, k);
    if (k == 4) scatter(s, rig.generator);
    const Picture before = picture(s);
    s.time.advance(static_cast<std::uint64_t>(s.TmrGoB.Interval()) * 3);
    EXPECT_NE(picture(s), before) << "mode " << k;
  }
  for (const char* none : {"0", "7", "", "1 ", "01"}) {
    s.lblTransf[0].Caption = none;
    const Picture before = picture(s);
    s.TmrGoB.raise(Event::Tick);
    EXPECT_EQ(picture(s), before) << '"' << none << '"';
  }
}

TEST(Dispatcher, DrawsAColourForAngoliOnlyWhileTheTimerIsOff) {
  for (const bool on : {false, true}) {
    Rig rig;
    Store& s = rig.s;
    s.lblTransf[0].Caption = "2";
    s.lblAngolo[18].Caption = "3";
    s.TmrGoB.setEnabled(on);
    s.lblAngolo[1].Caption = "5";
    rig.pick(7, 7);
    s.TmrGoB.raise(Event::Tick);
    EXPECT_EQ(rig.generator.draws, on ? 0 : 1);
    EXPECT_EQ(s.lblColSCelto.Caption, on ? "4" : "6");
  }
}

}  // namespace
}  // namespace caleidoscopio::test
