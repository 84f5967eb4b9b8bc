#include <gtest/gtest.h>

#include "memories/bank_rig.h"
#include "support/run_end.h"

namespace caleidoscopio::test {
namespace {

/// "Esc" and the end picture.
struct Leaving : BankRig {
  std::vector<Timer*> timers() {
    std::vector<Timer*> all;
    for (Control* timer : s.timerGroup.controls())
      all.push_back(static_cast<Timer*>(timer->element(0)));
    return all;
  }
};

TEST_F(Leaving, EscSavesTheDefaultMemoryAndTheNamesAndNothingElse) {
  saveUnder(3, "Tre");
  const std::string memory = files.files[inSave("3")];
  s.lblVelo[1].Caption = "650";
  escape();
  EXPECT_EQ(files.files.size(), 3U);
  EXPECT_EQ(files.files[inSave("3")], memory);

  StartableRig next;
  next.files.files = files.files;
  next.instrument.start();
  EXPECT_EQ(next.s.lblVelo[1].Caption, "650");
  EXPECT_EQ(next.s.lblComb[3].Caption, "Tre");
  EXPECT_EQ(next.s.lblComb[3].BackColor, colours::pressed);
  EXPECT_EQ(next.s.lblSave[3].BackColor, colours::pressed);
  // Title and choice are the default memory's, whatever the list says.
  EXPECT_EQ(next.s.lblNomefile.Caption, "Default");
  EXPECT_EQ(next.s.lblSelez.Caption, "Def");
}

TEST_F(Leaving, TheBankShownComesUpAgain) {
  for (int i = 0; i < 7; ++i) bankUp();
  escape();
  StartableRig next;
  next.files.files = files.files;
  next.instrument.start();
  EXPECT_EQ(next.s.lblMemo[0].Caption, "7");
}

TEST_F(Leaving, EscPutsTheEndPictureInTheFormsPlaceWithItsMessage) {
  EXPECT_FALSE(s.frmMiroVelTaZQ.Visible);
  s.lblAvvertimento.Caption = "A presto";
  escape();
  EXPECT_TRUE(s.frmMiroVelTaZQ.Visible);
  EXPECT_FALSE(s.form.Visible);
  EXPECT_EQ(s.lblAvvertimento2.Caption, "A presto");
  EXPECT_FALSE(s.ended);
}

TEST_F(Leaving, TheMessageIsUntilNextTime) {
  escape();
  EXPECT_EQ(s.lblAvvertimento2.Caption, "...alla prossima!");
}

TEST_F(Leaving, EscDuringARunTurnsEveryTimerOff) {
  for (int k = 0; k <= 5; ++k) s.cmdOnOff[k].BackColor = colours::running;
  click(s.cmdGoTimer);
  for (Timer* timer : timers()) timer->setEnabled(true);
  escape();
  for (const Timer* timer : timers()) EXPECT_FALSE(timer->Enabled());
  EXPECT_EQ(s.time.nextDue(), Time::never);
}

TEST_F(Leaving, AClickOnTheEndPictureEndsTheProgramAndSavesNothing) {
  escape();
  const auto before = files.files;
  s.lblVelo[1].Caption = "650";
  click(s.lblZQ);
  EXPECT_TRUE(s.ended);
  EXPECT_EQ(files.files, before);
}

// The repeat is out while stopped, but the lamp remembers it: so does the default memory.
TEST_F(Leaving, WithTheLampLitTheRepeatIsSavedAsSelected) {
  s.lblSpiaBreak.BackColor = colours::selected;
  ASSERT_EQ(s.lblBreakMode[21].BackColor, colours::unselected);
  escape();
  StartableRig next;
  next.files.files = files.files;
  next.instrument.start();
  EXPECT_EQ(next.s.lblBreakMode[21].BackColor, colours::selected);
  EXPECT_EQ(next.s.lblSpiaBreak.BackColor, colours::selected);  // by the Go of the start
}

TEST_F(Leaving, WithTheLampOutTheRepeatIsSavedAsItStands) {
  escape();
  EXPECT_EQ(s.lblBreakMode[21].BackColor, colours::unselected);
}

TEST_F(Leaving, AFileThatCannotBeWrittenEndsTheRunBeforeTheEndPicture) {
  files.writable = false;
  EXPECT_TRUE(endsTheRun([this] { escape(); }, {defaultFile, "cannot be written"}));
  EXPECT_FALSE(s.frmMiroVelTaZQ.Visible);
}

}  // namespace
}  // namespace caleidoscopio::test
