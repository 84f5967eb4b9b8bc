#include "memories/memory_files.h"

#include <gtest/gtest.h>

#include <string>

#include "panel/go_stop.h"
#include "support/digit_field.h"
#include "support/hands.h"
#include "support/rig.h"
#include "support/run_end.h"

namespace caleidoscopio::test {
namespace {

const std::string sep(1, pathSeparator);

struct MemoryFiles : testing::Test, Rig {
  static std::string saved(const std::string& name) {
    return "Miro-Vel-Ta" + sep + "Save" + sep + name + ".txt";
  }
  static std::string data(const std::string& name) {
    return "Miro-Vel-Ta" + sep + "Dati" + sep + name + ".txt";
  }
  bool exists(const std::string& path) const { return files.files.count(path) == 1; }
};

TEST_F(MemoryFiles, EachNameLeadsToItsOwnFile) {
  std::vector<std::string> names{"A", "B", "C", "D", "E"};
  for (int n = 0; n <= 99; ++n) names.push_back(std::to_string(n));
  for (const std::string& name : names) {
    s.lblSelez.Caption = name;
    SalvaMemoria(s);
    EXPECT_TRUE(exists(saved(name))) << name;
  }
  EXPECT_EQ(files.files.size(), 105U);
}

TEST_F(MemoryFiles, AnyOtherNameLeadsToNoFileAndEndsTheRun) {
  for (const char* name :
       {"Def", "", "100", "-1", "07", "00", "F", "a", "AA", " 5", "5 ", "../x"}) {
    s.lblSelez.Caption = name;
    EXPECT_TRUE(endsTheRun([&] { SalvaMemoria(s); },
                           {"lblSelez.Caption", '"' + std::string(name) + '"', "\"0\" to \"99\""}))
        << name;
    EXPECT_TRUE(endsTheRun([&] { CaricaMemoria(s); }, {"lblSelez.Caption"})) << name;
  }
  EXPECT_TRUE(files.files.empty());
}

TEST_F(MemoryFiles, TheDefaultAndTheNamesHaveFilesOfTheirOwn) {
  SalvaDefault(s);
  SalvaNomi(s);
  EXPECT_TRUE(exists(data("Default")));
  EXPECT_TRUE(exists(data("Memorie")));
  EXPECT_EQ(defaultMemoryPath(), data("Default"));
}

TEST_F(MemoryFiles, AllLieUnderTheRoot) {
  s.lblDir.Caption = "/root" + sep;
  s.lblSelez.Caption = "17";
  SalvaMemoria(s);
  SalvaDefault(s);
  SalvaNomi(s);
  EXPECT_TRUE(exists("/root" + sep + saved("17")));
  EXPECT_TRUE(exists("/root" + sep + data("Default")));
  EXPECT_TRUE(exists("/root" + sep + data("Memorie")));
}

TEST_F(MemoryFiles, AMemoryAndTheDefaultHaveTheSameForm) {
  s.lblSelez.Caption = "3";
  SalvaMemoria(s);
  SalvaDefault(s);
  EXPECT_EQ(files.files[saved("3")], files.files[data("Default")]);
}

TEST_F(MemoryFiles, AMemoryLoadsWhatItSaved) {
  s.lblSelez.Caption = "3";
  drawQuadrant(s, Rows(9, "012345601"));
  click(s.lblSposta, 7);
  const Rows before = quadrantOf(s);
  SalvaMemoria(s);
  drawQuadrant(s, Rows(9, "000000000"));
  click(s.lblSposta, 2);
  CaricaMemoria(s);
  EXPECT_TRUE(becomes(before, quadrantOf(s), before));
  EXPECT_EQ(s.lblSomma.Caption, "207");
  EXPECT_EQ(s.lblMode[1].Caption, "Campo Diagonale A Out");
  EXPECT_EQ(s.TmrGoA.Interval(), 700);
  EXPECT_EQ(s.lblSposta[7].BackColor, colours::selected);
}

TEST_F(MemoryFiles, WhatAMemoryDoesNotHoldStaysAsItIs) {
  s.lblSelez.Caption = "3";
  SalvaMemoria(s);
  click(s.lblSposta, 9);
  s.lblVoceOpzioni[2].Caption = "Y";
  s.lblValore[2].Caption = "6";
  s.lblSfondoAttivo.Caption = "4";
  s.lblSelSfondo[3].Caption = "2";
  CaricaMemoria(s);
  EXPECT_EQ(s.lblShift.Caption, "9");
  EXPECT_EQ(s.lblCent.Caption, "200");
  EXPECT_EQ(s.lblVoceOpzioni[2].Caption, "Y");
  EXPECT_EQ(s.lblValore[2].Caption, "6");
  EXPECT_EQ(s.lblSfondoAttivo.Caption, "4");
  EXPECT_EQ(s.lblSelSfondo[3].Caption, "2");
}

TEST_F(MemoryFiles, ACellWhoseColourChangedByALoadStillShowsItsOldDigitAndInk) {
  press(s.lblComCol, 1);
  paintCell(s, 1, 5);
  s.lblSelez.Caption = "3";
  SalvaMemoria(s);
  paintCell(s, 1, 2);
  CaricaMemoria(s);
  EXPECT_EQ(s.lblMiro[1].BackColor, s.lblValore[5].BackColor);
  EXPECT_EQ(s.lblMiro[1].Caption, "2");
  EXPECT_EQ(s.lblMiro2[1].Caption, "2");
  EXPECT_EQ(s.lblMiro[1].ForeColor, s.lblValore[2].ForeColor);
}

TEST_F(MemoryFiles, ALoadedSwitchArmsItsTimerForTheNextGoAndDoesNotStartIt) {
  generator.otherwise = 0.0F;
  s.lblSelez.Caption = "3";
  click(s.cmdOnOff, 1);
  SalvaMemoria(s);
  click(s.cmdOnOff, 1);
  CaricaMemoria(s);
  EXPECT_EQ(s.cmdOnOff[1].BackColor, colours::running);
  EXPECT_FALSE(s.TmrGoA.Enabled());
  click(s.cmdGoTimer);
  EXPECT_TRUE(s.TmrGoA.Enabled());
}

TEST_F(MemoryFiles, ALoadDoesNotSettleWhetherTheContourShows) {
  s.lblSelez.Caption = "3";
  s.lblComCol[2].Caption = "0";
  SalvaMemoria(s);
  s.lblComCol[2].Caption = "4";
  s.ShpContour.Visible = true;
  CaricaMemoria(s);
  EXPECT_EQ(s.lblComCol[2].Caption, "0");
  EXPECT_TRUE(s.ShpContour.Visible);
}

TEST_F(MemoryFiles, AFileThatIsNotThereEndsTheRunNamingItAndTheReason) {
  s.lblSelez.Caption = "42";
  EXPECT_TRUE(endsTheRun([&] { CaricaMemoria(s); }, {saved("42"), "no such file"}));
  EXPECT_TRUE(endsTheRun([&] { CaricaDefault(s); }, {data("Default"), "no such file"}));
  EXPECT_TRUE(endsTheRun([&] { CaricaNomi(s); }, {data("Memorie"), "no such file"}));
}

TEST_F(MemoryFiles, AFileThatCannotBeWrittenEndsTheRunNamingItAndTheReason) {
  files.writable = false;
  s.lblSelez.Caption = "42";
  EXPECT_TRUE(endsTheRun([&] { SalvaMemoria(s); }, {saved("42"), "not writable"}));
  EXPECT_TRUE(endsTheRun([&] { SalvaDefault(s); }, {data("Default"), "not writable"}));
  EXPECT_TRUE(endsTheRun([&] { SalvaNomi(s); }, {data("Memorie"), "not writable"}));
}

TEST_F(MemoryFiles, ADefaultCutAtAnyTenthLineEndsTheRunOnTheLineThatIsMissing) {
  SalvaDefault(s);
  std::string& file = files.files[data("Default")];
  const std::string whole = file;
  std::size_t end = 0;
  for (int line = 0; line < 1869; ++line) {
    if (line % 10 == 0) {
      file = whole.substr(0, end);
      EXPECT_TRUE(endsTheRun([&] { CaricaDefault(s); },
                             {"Default.txt, line " + std::to_string(line + 1) + ", ", "ends here"}))
          << line;
    }
    end = whole.find("\r\n", end) + 2;
  }
}

TEST_F(MemoryFiles, AnIndexOutOfRangeInALoadedCaptionEndsTheRunWhereItIsUsed) {
  s.lblSelez.Caption = "3";
  s.lblTav[3].Caption = "200";
  SalvaMemoria(s);
  s.lblTav[3].Caption = "6";
  CaricaMemoria(s);
  EXPECT_TRUE(endsTheRun([&] { click(s.lblColore, 1); }, {"lblColore(200)", "0 to 104"}));
}

}  // namespace
}  // namespace caleidoscopio::test
