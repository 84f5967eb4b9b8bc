#include <gtest/gtest.h>

#include "memories/bank_rig.h"
#include "memories/memory_files.h"
#include "support/run_end.h"
#include "support/snapshot.h"

namespace caleidoscopio::test {
namespace {

struct Bank : BankRig {
  /// The ten buttons of the bank shown by their colours: `#` current, `o` occupied, `.` empty.
  std::string buttons(int first = 0, int last = 9) const {
    std::string all;
    for (int k = first; k <= last; ++k) all += mark(s.lblSave[k].BackColor);
    return all;
  }
  static char mark(Colour back) {
    return back == colours::pressed      ? '#'
           : back == colours::occupied   ? 'o'
           : back == colours::unselected ? '.'
                                         : '?';
  }
  char title(int n) const { return mark(s.lblComb[n].BackColor); }
};

TEST_F(Bank, SavingAnEmptyMemoryAsksForItsTitleInAWhiteBox) {
  save();
  EXPECT_EQ(s.lblComandiVari[1].BackColor, colours::selected);
  s.TxtNomeMemoria.Text = "left over";
  button(3);
  EXPECT_EQ(s.lblSave[10].Caption, "3");
  EXPECT_TRUE(s.FraMemoria.Visible);
  EXPECT_EQ(s.FraMemoria.BackColor, colours::unselected);
  EXPECT_EQ(s.TxtNomeMemoria.Text, "");
  EXPECT_EQ(s.lblSelez.Caption, "3");
  EXPECT_FALSE(files.files.contains(inSave("3")));

  type("Prima");
  ok();
  EXPECT_FALSE(s.FraMemoria.Visible);
  EXPECT_EQ(s.lblComandiVari[1].BackColor, colours::unselected);
  EXPECT_EQ(s.lblNomefile.Caption, "Prima");
  EXPECT_EQ(s.lblComb[3].Caption, "Prima");
  EXPECT_EQ(buttons(), "...#......");
  EXPECT_EQ(title(3), '#');
  EXPECT_TRUE(files.files.contains(inSave("3")));
}

// Two titles stand in a new instrument although no memory is behind them.
TEST_F(Bank, TheBoxOpensWithTheTitleThatIsStoredAlsoOfAnEmptyMemory) {
  save();
  button(0);
  EXPECT_EQ(s.TxtNomeMemoria.Text, "Ciccio");
  button(5);
  EXPECT_EQ(s.TxtNomeMemoria.Text, "Pippo");
  EXPECT_EQ(s.FraMemoria.BackColor, colours::unselected);
}

TEST_F(Bank, SavingTheCurrentMemoryAsksInAGreenBoxAndAnotherInAnOrangeOne) {
  saveUnder(3, "Prima");
  saveUnder(7, "Seconda");
  EXPECT_EQ(buttons(), "...o...#..");
  save();
  button(7);
  EXPECT_EQ(s.FraMemoria.BackColor, colours::pressed);
  EXPECT_EQ(s.TxtNomeMemoria.Text, "Seconda");
  button(3);
  EXPECT_EQ(s.FraMemoria.BackColor, colours::occupied);
  EXPECT_EQ(s.TxtNomeMemoria.Text, "Prima");
}

TEST_F(Bank, EnterInTheBoxIsOkAndAnyOtherKeyOnlyTypes) {
  save();
  button(2);
  type("Con Invio");
  for (const int key : {0, 10, 12, 14, 27, 65}) {
    s.TxtNomeMemoria.raise(Event::KeyPress, 0, key);
    EXPECT_TRUE(s.FraMemoria.Visible) << key;
  }
  EXPECT_FALSE(files.files.contains(inSave("2")));
  enter();
  EXPECT_FALSE(s.FraMemoria.Visible);
  EXPECT_EQ(s.lblComb[2].Caption, "Con Invio");
  EXPECT_TRUE(files.files.contains(inSave("2")));
}

TEST_F(Bank, AnnullaClosesTheBoxAndSavesNothing) {
  save();
  button(2);
  type("Mai");
  annulla();
  EXPECT_FALSE(s.FraMemoria.Visible);
  EXPECT_EQ(s.lblComandiVari[1].BackColor, colours::unselected);
  EXPECT_EQ(s.lblComb[2].Caption, "");
  EXPECT_EQ(s.lblNomefile.Caption, "Default");
  EXPECT_EQ(buttons(), "..........");
  EXPECT_FALSE(files.files.contains(inSave("2")));
  EXPECT_EQ(s.lblSelez.Caption, "2");  // the opening alone chose it
}

TEST_F(Bank, NoTitleTypedSavesUnderTheNumberWithAnEmptyTitle) {
  save();
  button(9);
  ok();
  EXPECT_TRUE(files.files.contains(inSave("9")));
  EXPECT_EQ(s.lblComb[9].Caption, "");
  EXPECT_EQ(s.lblNomefile.Caption, "");
  EXPECT_EQ(title(9), '#');
}

TEST_F(Bank, AMemoryComesBackAsItWasSaved) {
  s.lblVelo[1].Caption = "650";
  s.lblMiro[5].BackColor = {0x123456};
  saveUnder(4, "Quattro");
  s.lblVelo[1].Caption = "700";
  s.lblMiro[5].BackColor = {0x654321};
  saveUnder(6, "Sei");
  button(4);
  EXPECT_EQ(s.lblVelo[1].Caption, "650");
  EXPECT_EQ(s.lblMiro[5].BackColor, Colour{0x123456});
  EXPECT_EQ(s.lblSelez.Caption, "4");
  EXPECT_EQ(s.lblNomefile.Caption, "Quattro");
  EXPECT_EQ(s.lblSave[10].Caption, "4");
  EXPECT_EQ(buttons(), "....#.o...");
  EXPECT_EQ(title(4), '#');
  EXPECT_EQ(title(6), 'o');
}

TEST_F(Bank, AClickOnTheCurrentMemoryLoadsItAgain) {
  s.lblVelo[1].Caption = "650";
  saveUnder(4, "Quattro");
  s.lblVelo[1].Caption = "700";
  button(4);
  EXPECT_EQ(s.lblVelo[1].Caption, "650");
  EXPECT_EQ(buttons(), "....#.....");
}

TEST_F(Bank, AClickOnAnEmptyMemoryOnlyRemembersTheButton) {
  const Snapshot before = snapshotOf(s);
  button(8);
  EXPECT_EQ(s.lblSave[10].Caption, "8");
  s.lblSave[10].Caption = "";
  EXPECT_TRUE(unchangedSince(before, s));
}

TEST_F(Bank, AButtonOfAnyOtherColourDoesNothing) {
  s.lblSave[8].BackColor = colours::selected;
  const Snapshot before = snapshotOf(s);
  for (const bool saving : {false, true}) {
    if (saving) s.lblComandiVari[1].BackColor = colours::selected;
    button(8);
    s.lblSave[10].Caption = "";
    s.lblComandiVari[1].BackColor = colours::unselected;
    EXPECT_TRUE(unchangedSince(before, s));
  }
}

TEST_F(Bank, TheContourFollowsTheToolThatWasLoaded) {
  s.lblComCol[2].Caption = "0";
  saveUnder(1, "senza");
  s.lblComCol[2].Caption = "5";
  s.ShpContour.BorderWidth = 3;  // the tool's own caption is what counts
  saveUnder(2, "con");
  button(1);
  EXPECT_FALSE(s.ShpContour.Visible);
  button(2);
  EXPECT_TRUE(s.ShpContour.Visible);
  EXPECT_EQ(s.ShpContour.BorderWidth, 5);
}

// --- clearing

TEST_F(Bank, CancClearsTheOccupiedMemoryClickedNextAndIsOutThen) {
  saveUnder(3, "Tre");
  saveUnder(4, "Quattro");
  canc();
  EXPECT_EQ(s.lblCanc.BackColor, colours::selected);
  const std::string file = files.files[inSave("3")];
  button(3);
  EXPECT_EQ(buttons(), "....#.....");
  EXPECT_EQ(title(3), '.');
  EXPECT_EQ(s.lblComb[3].Caption, "Tre");  // the title stays
  EXPECT_EQ(s.lblCanc.BackColor, colours::unselected);
  EXPECT_EQ(s.lblSelez.Caption, "4");
  EXPECT_EQ(files.files[inSave("3")], file);
}

TEST_F(Bank, AClearedMemoryCannotBeLoadedButSavedOver) {
  s.lblVelo[1].Caption = "650";
  saveUnder(3, "Tre");
  saveUnder(4, "Quattro");
  canc();
  button(3);
  s.lblVelo[1].Caption = "700";
  const std::string old = files.files[inSave("3")];
  button(3);
  EXPECT_EQ(s.lblVelo[1].Caption, "700");
  save();
  button(3);
  EXPECT_EQ(s.FraMemoria.BackColor, colours::unselected);
  EXPECT_EQ(s.TxtNomeMemoria.Text, "Tre");
  ok();
  EXPECT_NE(files.files[inSave("3")], old);
  EXPECT_EQ(buttons(), "...#o.....");
}

TEST_F(Bank, CancOnTheCurrentMemoryLoadsItAgainAndStaysIn) {
  s.lblVelo[1].Caption = "650";
  saveUnder(3, "Tre");
  s.lblVelo[1].Caption = "700";
  canc();
  button(3);
  EXPECT_EQ(s.lblVelo[1].Caption, "650");
  EXPECT_EQ(buttons(), "...#......");
  EXPECT_EQ(s.lblCanc.BackColor, colours::selected);
}

TEST_F(Bank, CancOnAnEmptyMemoryDoesNothingAndStaysIn) {
  canc();
  button(3);
  EXPECT_EQ(buttons(), "..........");
  EXPECT_EQ(s.lblCanc.BackColor, colours::selected);
  canc();
  EXPECT_EQ(s.lblCanc.BackColor, colours::unselected);
}

TEST_F(Bank, ToSaveAndToClearExcludeEachOther) {
  canc();
  save();
  EXPECT_EQ(s.lblCanc.BackColor, colours::unselected);
  EXPECT_EQ(s.lblComandiVari[1].BackColor, colours::selected);
  button(2);
  EXPECT_TRUE(s.FraMemoria.Visible);
  canc();
  EXPECT_EQ(s.lblCanc.BackColor, colours::selected);
  EXPECT_EQ(s.lblComandiVari[1].BackColor, colours::unselected);
  EXPECT_FALSE(s.FraMemoria.Visible);
}

TEST_F(Bank, SavePressedAgainClosesTheBox) {
  save();
  button(2);
  save();
  EXPECT_EQ(s.lblComandiVari[1].BackColor, colours::unselected);
  EXPECT_FALSE(s.FraMemoria.Visible);
}

TEST_F(Bank, SaveOfAThirdColourGoesOutAndClosesTheBox) {
  save();
  button(2);
  s.lblComandiVari[1].BackColor = colours::pressed;
  s.lblCanc.BackColor = colours::selected;
  save();
  EXPECT_EQ(s.lblComandiVari[1].BackColor, colours::unselected);
  EXPECT_FALSE(s.FraMemoria.Visible);
  EXPECT_EQ(s.lblCanc.BackColor, colours::selected) << "only Save coming on puts it out";
}

TEST_F(Bank, CancOfAThirdColourComesOnAndClosesTheBox) {
  save();
  button(2);
  s.lblCanc.BackColor = colours::pressed;
  canc();
  EXPECT_EQ(s.lblCanc.BackColor, colours::selected);
  EXPECT_EQ(s.lblComandiVari[1].BackColor, colours::unselected);
  EXPECT_FALSE(s.FraMemoria.Visible);
}

TEST_F(Bank, LoadIsNoButton) {
  const Snapshot before = snapshotOf(s);
  pressAndRelease(s.lblComandiVari, 0);
  pressAndRelease(s.lblSave, 10);
  EXPECT_TRUE(unchangedSince(before, s));
}

// --- presets

struct Presets : Bank {
  Presets() {
    for (int i = 0; i < 5; ++i) {
      s.lblVelo[1].Caption = std::to_string(100 + i);
      saveMemory(s, std::string(1, static_cast<char>('A' + i)));
    }
  }
};

TEST_F(Presets, EachLoadsItsFileAndLeavesTheButtonLastClickedAlone) {
  saveUnder(3, "Tre");
  for (int i = 0; i < 5; ++i) {
    button(11 + i);
    EXPECT_EQ(s.lblVelo[1].Caption, std::to_string(100 + i));
    EXPECT_EQ(s.lblSelez.Caption, std::string(1, static_cast<char>('A' + i)));
    EXPECT_EQ(s.lblNomefile.Caption, std::string("Preset ") + static_cast<char>('A' + i));
    EXPECT_EQ(title(101 + i), '#');
    EXPECT_EQ(s.lblSave[10].Caption, "3");
    EXPECT_EQ(buttons(), "...o......");
    std::string presets(5, '.');
    for (int before = 0; before < i; ++before) presets[static_cast<std::size_t>(before)] = 'o';
    presets[static_cast<std::size_t>(i)] = '#';
    EXPECT_EQ(buttons(11, 15), presets);
  }
  button(3);
  EXPECT_EQ(buttons(11, 15), "ooooo");
  EXPECT_EQ(title(105), 'o');
}

TEST_F(Presets, NeitherSaveNorCancReachesOne) {
  const auto before = files.files;
  button(12);
  save();
  button(11);
  EXPECT_FALSE(s.FraMemoria.Visible);
  EXPECT_EQ(s.lblSelez.Caption, "A");
  EXPECT_EQ(s.lblComandiVari[1].BackColor, colours::selected);
  canc();
  button(12);
  EXPECT_EQ(s.lblSelez.Caption, "B");
  EXPECT_EQ(s.lblCanc.BackColor, colours::selected);
  EXPECT_EQ(buttons(11, 15), "o#...");
  EXPECT_EQ(files.files, before);
}

// --- banks

TEST_F(Bank, TheBankGoesRoundBothWays) {
  for (const char* bank : {"1", "2", "3", "4", "5", "6", "7", "8", "9", "0"}) {
    bankUp();
    EXPECT_EQ(s.lblMemo[0].Caption, bank);
  }
  for (const char* bank : {"9", "8", "7", "6", "5", "4", "3", "2", "1", "0"}) {
    bankDown();
    EXPECT_EQ(s.lblMemo[0].Caption, bank);
  }
}

TEST_F(Bank, TheCurrentMemorysButtonIsGreenInItsOwnBankOnly) {
  saveUnder(3, "Tre");
  bankUp();
  EXPECT_EQ(buttons(), "..........");
  saveUnder(5, "Quindici");
  EXPECT_EQ(s.lblSelez.Caption, "15");
  EXPECT_TRUE(files.files.contains(inSave("15")));
  EXPECT_EQ(buttons(), ".....#....");
  bankDown();
  EXPECT_EQ(buttons(), "...o......");
  bankUp();
  EXPECT_EQ(buttons(), ".....#....");
}

TEST_F(Bank, EachOfTheHundredMemoriesHasItsOwnButtonTitleAndFile) {
  for (int n = 0; n <= 99; ++n) {
    if (n > 0 && n % 10 == 0) bankUp();
    saveUnder(n % 10, "titolo " + std::to_string(n));
  }
  for (int n = 0; n <= 99; ++n) {
    EXPECT_EQ(s.lblComb[n].Caption, "titolo " + std::to_string(n));
    EXPECT_TRUE(files.files.contains(inSave(std::to_string(n)))) << n;
    EXPECT_EQ(title(n), n == 99 ? '#' : 'o') << n;
  }
  EXPECT_EQ(files.files.size(), 102U);
}

TEST_F(Bank, AHeldBankButtonStepsAtOnceAndThenEvery150Ms) {
  saveUnder(3, "Tre");
  press(s.lblMemo, 2);
  EXPECT_EQ(s.lblMemo[2].BackColor, colours::pressed);
  EXPECT_EQ(s.lblMemo[0].Caption, "1");
  EXPECT_EQ(buttons(), "..........");
  s.time.advance(149);
  EXPECT_EQ(s.lblMemo[0].Caption, "1");
  s.time.advance(301);
  EXPECT_EQ(s.lblMemo[0].Caption, "4");
  release(s.lblMemo, 2);
  EXPECT_EQ(s.lblMemo[2].BackColor, colours::idle);
  s.time.advance(1000);
  EXPECT_EQ(s.lblMemo[0].Caption, "4");

  press(s.lblMemo, 1);
  s.time.advance(450);
  release(s.lblMemo, 1);
  EXPECT_EQ(s.lblMemo[0].Caption, "0");
  EXPECT_EQ(buttons(), "...#......");  // each repeat recolours too
}

TEST_F(Bank, TheRepeatWithNoButtonHeldStepsDown) {
  tick(s.TmrScorriMemo);
  EXPECT_EQ(s.lblMemo[0].Caption, "9");
  s.lblMemo[1].BackColor = s.lblMemo[2].BackColor = colours::selected;
  tick(s.TmrScorriMemo);
  EXPECT_EQ(s.lblMemo[0].Caption, "8");
}

// Ok marks the button that was clicked, whatever bank has come under it since.
TEST_F(Bank, ABankChangedUnderTheOpenBoxLeavesTheMemoryButMovesTheMark) {
  save();
  button(3);
  bankUp();
  type("Tre");
  ok();
  EXPECT_EQ(s.lblComb[3].Caption, "Tre");
  EXPECT_TRUE(files.files.contains(inSave("3")));
  EXPECT_EQ(buttons(), "...#......");
  EXPECT_EQ(title(13), '.');
  bankUp();
  bankDown();
  EXPECT_EQ(buttons(), "..........");
}

// --- names of files

TEST_F(Bank, OnlyTheExactNamesOfTheListLeadToAFile) {
  for (const char* name : {"Def", "", "a", "F", "05", "100", "-1", " 5", "5 ", "AA", "A.txt"}) {
    s.lblSelez.Caption = name;
    EXPECT_TRUE(endsTheRun([this] { CaricaMemoria(s); }, {"lblSelez.Caption", name})) << name;
    EXPECT_TRUE(endsTheRun([this] { SalvaMemoria(s); }, {"lblSelez.Caption", name})) << name;
  }
  EXPECT_EQ(files.files.size(), 2U);
}

TEST_F(Bank, AnOccupiedMemoryWithoutItsFileEndsTheRunNamingThePath) {
  saveUnder(3, "Tre");
  files.files.erase(inSave("3"));
  EXPECT_TRUE(endsTheRun([this] { button(3); }, {inSave("3"), "cannot be read"}));
}

TEST_F(Bank, AFileThatCannotBeWrittenEndsTheRunNamingThePath) {
  files.writable = false;
  EXPECT_TRUE(endsTheRun([this] { saveUnder(3, "Tre"); }, {inSave("3"), "cannot be written"}));
}

// --- a run

TEST_F(Bank, AllItsControlsButEscAreDisabledDuringARun) {
  click(s.cmdGoTimer);
  for (const bool running : {true, false}) {
    for (int k = 0; k <= 15; ++k) EXPECT_EQ(s.lblSave[k].Enabled, !running) << k;
    for (int k = 1; k <= 2; ++k) EXPECT_EQ(s.lblMemo[k].Enabled, !running) << k;
    EXPECT_EQ(s.lblCanc.Enabled, !running);
    EXPECT_EQ(s.lblComandiVari[0].Enabled, !running);
    EXPECT_EQ(s.lblComandiVari[1].Enabled, !running);
    EXPECT_TRUE(s.lblComandiVari[2].Enabled);
    click(s.cmdGoTimer);
  }
}

}  // namespace
}  // namespace caleidoscopio::test
