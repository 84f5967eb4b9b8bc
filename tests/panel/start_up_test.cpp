#include "panel/start_up.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/run_end.h"
#include "support/started_rig.h"

namespace caleidoscopio::test {
namespace {

const std::string sep(1, pathSeparator);
const std::string defaultFile = "Miro-Vel-Ta" + sep + "Dati" + sep + "Default.txt";
const std::string namesFile = "Miro-Vel-Ta" + sep + "Dati" + sep + "Memorie.txt";

/// A generator and files that write down the order in which they are asked.
struct Asked {
  std::vector<std::string> log;
  struct Draws : SetDraws {
    Asked& asked;
    explicit Draws(Asked& a) : asked(a) {}
    void seed(const WallTime& time) override {
      asked.log.push_back("seed " + std::to_string(time.minute) + ":" +
                          std::to_string(time.second));
    }
    float draw() override {
      asked.log.emplace_back("draw");
      return 0.0F;
    }
  };
  struct Files : FilesInMemory {
    Asked& asked;
    explicit Files(Asked& a) : asked(a) {}
    std::string root() override {
      asked.log.emplace_back("root");
      return FilesInMemory::root();
    }
    std::optional<std::string> read(const std::string& path, std::string& why) override {
      asked.log.push_back("read " + path);
      return FilesInMemory::read(path, why);
    }
  };
};

TEST(StartUp, SeedsFirstThenFindsTheRootThenReadsDefaultAndNamesThenGoes) {
  Asked asked;
  Asked::Draws generator(asked);
  Asked::Files files(asked);
  StartableRig source;
  files.files = source.files.files;
  StandingClock clock;
  clock.time = {12, 34, 56, 2026};
  Platform platform{clock, generator, files, {}};
  Instrument instrument(platform);
  instrument.start();
  EXPECT_EQ(asked.log, (std::vector<std::string>{"seed 34:56", "root", "read " + defaultFile,
                                                 "read " + namesFile, "draw", "draw"}));
}

TEST(StartUp, EndsInARun) {
  const StartedRig rig;
  EXPECT_EQ(rig.s.cmdGoTimer.BackColor, colours::running);
  EXPECT_FALSE(rig.s.FraPannello[0].Visible);
  EXPECT_EQ(rig.generator.seeds, 1);
}

TEST(StartUp, RunsTheTimersThatTheDefaultMemoryHasSwitchedIn) {
  StartableRig rig;
  click(rig.s.cmdOnOff, 1);
  SalvaDefault(rig.s);
  click(rig.s.cmdOnOff, 1);
  rig.instrument.start();
  EXPECT_TRUE(rig.s.TmrGoA.Enabled());
  EXPECT_FALSE(rig.s.TmrGoB.Enabled());
}

TEST(StartUp, NamesTheDefaultMemoryWhateverTheListOfNamesSays) {
  StartableRig rig;
  rig.s.lblNomefile.Caption = "Another";
  rig.s.lblSelez.Caption = "17";
  SalvaNomi(rig.s);
  rig.instrument.start();
  EXPECT_EQ(rig.s.lblNomefile.Caption, "Default");
  EXPECT_EQ(rig.s.lblSelez.Caption, "Def");
}

TEST(StartUp, GoesThroughWithABankThatIsNoNumberAndShowsNoTitles) {
  for (const char* bank : {"x", "", "10", "-1"}) {
    StartableRig rig;
    rig.s.lblMemo[0].Caption = bank;
    SalvaNomi(rig.s);
    rig.instrument.start();
    EXPECT_EQ(rig.s.lblMemo[0].Caption, bank);
    for (int n = 0; n <= 99; ++n) EXPECT_FALSE(rig.s.lblComb[n].Visible) << bank << ' ' << n;
  }
}

TEST(StartUp, TheDesignStartsAsTheDisplayOfTheDefaultMemory) {
  StartableRig rig;
  rig.s.lblMiro[7].BackColor = {0x0000FF};
  rig.s.lblMiro2[7].BackColor = {0x123456};
  SalvaDefault(rig.s);
  rig.instrument.start();
  EXPECT_EQ(rig.s.lblMiro2[7].BackColor, Colour{0x0000FF});
  for (int i = 1; i <= 441; ++i) EXPECT_EQ(rig.s.lblMiro2[i].BackColor, rig.s.lblMiro[i].BackColor);
}

TEST(StartUp, PlacesTheOptionFramesOnEachOtherAndCutsTheLeftPanel) {
  const StartedRig rig;
  for (int i = 1; i <= 12; ++i) {
    EXPECT_EQ(rig.s.FraTransf.geometry(i).Left, Twips{105});
    EXPECT_EQ(rig.s.FraTransf.geometry(i).Top, Twips{3150});
  }
  EXPECT_EQ(rig.s.FraMemoria.geometry().Left, Twips{105});
  EXPECT_EQ(rig.s.FraMemoria.geometry().Top, Twips{8505});
  EXPECT_EQ(rig.s.FraPannello.geometry(0).Width, Twips{2255});
}

TEST(StartUp, TheLeftPanelIsBuiltWiderThanItShows) {
  const Rig rig;
  EXPECT_EQ(rig.s.FraPannello.geometry(0).Width, Twips{8760});
}

TEST(StartUp, TheCreditLineEndsInTheYearOfTheClockInFourDigits) {
  for (const auto& [year, digits] : {std::pair{2031, "2031"}, {987, "0987"}}) {
    StartableRig rig;
    rig.clock.time.year = year;
    rig.instrument.start();
    EXPECT_TRUE(rig.s.lblScritteVarie[9].Caption.ends_with(digits))
        << rig.s.lblScritteVarie[9].Caption;
  }
}

TEST(StartUp, ShowsTheContourWithItsWidthOrHidesItAtNought) {
  StartableRig wide;
  wide.s.lblComCol[2].Caption = "5";
  SalvaDefault(wide.s);
  wide.instrument.start();
  EXPECT_TRUE(wide.s.ShpContour.Visible);
  EXPECT_EQ(wide.s.ShpContour.BorderWidth, 5);

  StartableRig none;
  none.s.lblComCol[2].Caption = "0";
  SalvaDefault(none.s);
  none.instrument.start();
  EXPECT_FALSE(none.s.ShpContour.Visible);
}

TEST(StartUp, AContourThatIsNoNumberEndsTheRunBeforeGoAndIsNamed) {
  for (const char* width : {"wide", ""}) {
    StartableRig rig;
    rig.s.lblComCol[2].Caption = width;
    SalvaDefault(rig.s);
    EXPECT_TRUE(endsTheRun([&] { rig.instrument.start(); },
                           {"lblComCol(2).Caption", '"' + std::string(width) + '"'}));
    EXPECT_EQ(rig.s.cmdGoTimer.BackColor, colours::idle);
    EXPECT_EQ(rig.s.time.nextDue(), Time::never);
    EXPECT_EQ(rig.s.lblSelez.Caption, "Def") << "what comes before it was done";
  }
}

TEST(StartUp, ReadsUnderTheRootThatWasFound) {
  StartableRig source;
  Rig rig;
  rig.generator.otherwise = 0.0F;
  rig.files.rootFolder = "/somewhere" + sep;
  for (const auto& [path, text] : source.files.files)
    rig.files.files[rig.files.rootFolder + path] = text;
  rig.instrument.start();
  EXPECT_EQ(rig.s.lblDir.Caption, "/somewhere" + sep);
}

TEST(StartUp, WithNoRootFoundTheFolderStaysAsItWas) {
  StartableRig rig;
  rig.instrument.start();
  EXPECT_EQ(rig.s.lblDir.Caption, "");

  StartableRig source;
  Rig elsewhere;
  elsewhere.generator.otherwise = 0.0F;
  elsewhere.s.lblDir.Caption = "here" + sep;
  for (const auto& [path, text] : source.files.files)
    elsewhere.files.files["here" + sep + path] = text;
  elsewhere.instrument.start();
  EXPECT_EQ(elsewhere.s.lblDir.Caption, "here" + sep);
}

TEST(StartUp, AMissingDefaultMemoryEndsTheRunAndNamesTheFile) {
  StartableRig rig;
  rig.files.files.erase(defaultFile);
  EXPECT_TRUE(endsTheRun([&] { rig.instrument.start(); }, {defaultFile, "no such file"}));
  EXPECT_EQ(rig.s.cmdGoTimer.BackColor, colours::idle);
}

TEST(StartUp, AMissingListOfNamesEndsTheRunAndNamesTheFile) {
  StartableRig rig;
  rig.files.files.erase(namesFile);
  EXPECT_TRUE(endsTheRun([&] { rig.instrument.start(); }, {namesFile, "no such file"}));
  EXPECT_EQ(rig.s.cmdGoTimer.BackColor, colours::idle);
}

TEST(StartUp, AStartThatEndsAtTheFilesHasSeededAndPlacedTheNamingBoxBefore) {
  StartableRig rig;
  rig.files.files.clear();
  runEndOf([&] { rig.instrument.start(); });
  EXPECT_EQ(rig.generator.seeds, 1);
  EXPECT_EQ(rig.s.FraMemoria.geometry().Top, Twips{8505});
  EXPECT_TRUE(rig.s.lblScritteVarie[9].Caption.ends_with("2026"));
  EXPECT_EQ(rig.s.FraPannello.geometry(0).Width, Twips{8760});
}

}  // namespace
}  // namespace caleidoscopio::test
