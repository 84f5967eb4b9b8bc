#include <gtest/gtest.h>

#include "memories/bank_rig.h"
#include "platform/disk_files.h"
#include "platform/scratch_folder.h"

namespace caleidoscopio::test {
namespace {

// What a person may type, and what only a foreign file could hold.
const std::string titles[] = {
    "",
    " ",
    "  spazi in mezzo  e ai lati  ",
    "\"",
    "\"\"",
    "\"\"\"",
    "\"tra virgolette\"",
    "una \"parola\" in mezzo",
    "finisce con \"",
    "\" comincia così",
    "uno, due, tre",
    ",",
    "\",\"",
    "#TRUE#",
    "12648384",
    "-2147483633",
    "C:\\Programmi\\",
    "\t",
    "perché città naïve Straße",
    "Ωμέγα Жизнь",
    "שלום عالم",
    "日本語 한국어 ไทย",
    "👁️‍🗨️ 𝔘𝔫𝔦𝔠𝔬𝔡𝔢 e\xcc\x80",
    "\xff\xfe non è testo \x80",
    std::string("zero \0 dentro", 13),
    std::string(3000, 'x'),
};

TEST(Titles, EachComesBackToTheByteAfterLeavingAndStartingAgain) {
  StartedRig first;
  click(first.s.cmdGoTimer);
  BankHands person(first.s);
  int n = 0;
  for (const std::string& title : titles) {
    if (n > 0 && n % 10 == 0) person.bankUp();
    person.saveUnder(n++ % 10, title);
  }
  person.escape();

  StartableRig second;
  second.files.files = first.files.files;
  second.instrument.start();
  n = 0;
  for (const std::string& title : titles) EXPECT_EQ(second.s.lblComb[n++].Caption, title);
}

TEST(Titles, TheBoxHandsBackTheTitleThatItWasGiven) {
  StartedRig rig;
  click(rig.s.cmdGoTimer);
  BankHands person(rig.s);
  for (const std::string& title : titles) {
    person.saveUnder(4, title);
    EXPECT_EQ(rig.s.lblNomefile.Caption, title);
    person.save();
    person.button(4);
    EXPECT_EQ(rig.s.TxtNomeMemoria.Text, title);
    person.annulla();
  }
}

TEST(Titles, TheListHasALineForEachTitleWithItsQuotesAsTyped) {
  StartedRig rig;
  click(rig.s.cmdGoTimer);
  BankHands person(rig.s);
  person.saveUnder(2, "una \"parola\", e basta");
  person.escape();
  const std::string& names = rig.files.files[namesFile];
  EXPECT_EQ(names.substr(0, names.find('\n') + 1), "\"una \"parola\", e basta\"\r\n");
  EXPECT_NE(names.find("\r\n\"una \"parola\", e basta\"\r\n12648384\r\n"), std::string::npos);
}

struct TitlesOnDisk : ScratchFolder {};

TEST_F(TitlesOnDisk, EachIsKeptToTheByteInARealFileToo) {
  std::filesystem::create_directories(folder / "Miro-Vel-Ta/Dati");
  std::filesystem::create_directories(folder / "Miro-Vel-Ta/Save");
  DiskFiles disk = DiskFiles::under(at(""));
  StandingClock clock;
  SetDraws generator;
  Platform platform{clock, generator, disk, {}};
  {
    Instrument first(platform);
    int n = 0;
    for (const std::string& title : titles) first.s.lblComb[n++].Caption = title;
    SalvaNomi(first.s);
  }
  Instrument second(platform);
  CaricaNomi(second.s);
  int n = 0;
  for (const std::string& title : titles) EXPECT_EQ(second.s.lblComb[n++].Caption, title);
}

}  // namespace
}  // namespace caleidoscopio::test
