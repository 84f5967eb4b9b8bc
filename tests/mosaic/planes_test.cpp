#include <gtest/gtest.h>

#include "mosaic/cells.h"
#include "support/hands.h"
#include "support/rig.h"

namespace caleidoscopio::test {
namespace {

struct Planes : testing::Test, Rig {
  void set(Label& cell, const char* caption, std::uint32_t back, std::uint32_t fore) {
    cell.Caption = caption;
    cell.BackColor = {back};
    cell.ForeColor = {fore};
  }
  testing::AssertionResult holds(const Label& cell, const char* caption, std::uint32_t back,
                                 std::uint32_t fore) {
    if (cell.Caption == caption && cell.BackColor == Colour{back} && cell.ForeColor == Colour{fore})
      return testing::AssertionSuccess();
    return testing::AssertionFailure() << '"' << cell.Caption << "\" " << std::hex
                                       << cell.BackColor.value << " " << cell.ForeColor.value;
  }
  void showDigits(bool on) { s.lblVoceOpzioni[2].Caption = on ? "Y" : "N"; }
};

TEST_F(Planes, RipristinaCellaTakesTheDesignsColoursAndUnderYItsDigit) {
  set(s.lblMiro2[5], "4", 0x111111, 0x222222);
  RipristinaCella(s, 5);
  EXPECT_TRUE(holds(s.lblMiro[5], "", 0x111111, 0x222222));
  showDigits(true);
  RipristinaCella(s, 5);
  EXPECT_TRUE(holds(s.lblMiro[5], "4", 0x111111, 0x222222));
}

TEST_F(Planes, ScriviCellaTakesASlotAndLeavesTheDesign) {
  set(s.lblMiro2[5], "4", 0x111111, 0x222222);
  ScriviCella(s, 5, 6);
  EXPECT_TRUE(holds(s.lblMiro[5], "", 0xFF0000, 0xFFFFFF));
  showDigits(true);
  ScriviCella(s, 5, 5);
  EXPECT_TRUE(holds(s.lblMiro[5], "5", 0xFF0080, 0xFFFFFF));
  EXPECT_TRUE(holds(s.lblMiro2[5], "4", 0x111111, 0x222222));
}

TEST_F(Planes, CopiaCellaCopiesFromTheFirstToTheSecond) {
  showDigits(true);
  set(s.lblMiro[1], "2", 0x111111, 0x222222);
  CopiaCella(s, 1, 9);
  EXPECT_TRUE(holds(s.lblMiro[9], "2", 0x111111, 0x222222));
  EXPECT_TRUE(holds(s.lblMiro[1], "2", 0x111111, 0x222222));
}

TEST_F(Planes, ConsolidaPianoGivesTheDesignTheColoursOfTheDisplayAndDerivesTheDigit) {
  set(s.lblMiro[1], "", 0x00FFFF, 0x333333);
  set(s.lblMiro[441], "", 0xFF0000, 0x444444);
  ConsolidaPiano(s);
  EXPECT_TRUE(holds(s.lblMiro2[1], "1", 0x00FFFF, 0x333333));
  EXPECT_TRUE(holds(s.lblMiro2[441], "6", 0xFF0000, 0x444444));
  EXPECT_TRUE(holds(s.lblMiro[1], "", 0x00FFFF, 0x333333));
}

TEST_F(Planes, ConsolidaPianoNeverReadsTheDisplaysDigits) {
  showDigits(true);
  set(s.lblMiro[1], "9", 0x00FFFF, 0);
  ConsolidaPiano(s);
  EXPECT_EQ(s.lblMiro2[1].Caption, "1");
}

TEST_F(Planes, ACellWhoseColourMatchesTwoSlotsReceivesTheDigitOfTheLowerOne) {
  s.lblValore[2].BackColor = s.lblValore[5].BackColor = {0x777777};
  s.lblValore[2].Caption = "b";
  s.lblMiro[40].BackColor = {0x777777};
  ConsolidaPiano(s);
  EXPECT_EQ(s.lblMiro2[40].Caption, "b");
}

TEST_F(Planes, ACellWhoseColourIsInNoSlotKeepsItsOldDesignDigit) {
  s.lblMiro[40].BackColor = {0x777777};
  s.lblMiro2[40].Caption = "5";
  ConsolidaPiano(s);
  EXPECT_TRUE(holds(s.lblMiro2[40], "5", 0x777777, 0));
}

TEST_F(Planes, ElementSevenIsNoSlotForTheCommit) {
  s.lblValore[7].BackColor = {0x777777};
  s.lblValore[7].Caption = "7";
  s.lblMiro[40].BackColor = {0x777777};
  ConsolidaPiano(s);
  EXPECT_EQ(s.lblMiro2[40].Caption, "0");
}

TEST_F(Planes, TheCommitLeavesSpareCellsAndSnapshotAlone) {
  set(s.lblMiro[0], "", 0x111111, 0);
  for (const int i : {0, 442, 882}) set(s.lblMiro2[i], "x", 0x222222, 0x333333);
  ConsolidaPiano(s);
  for (const int i : {0, 442, 882}) EXPECT_TRUE(holds(s.lblMiro2[i], "x", 0x222222, 0x333333)) << i;
}

TEST_F(Planes, PaintingWritesBothPlanesAndTheDisplaysDigitOnlyUnderY) {
  paintBothPlanes(s, 3, s.lblValore[4], "4");
  EXPECT_TRUE(holds(s.lblMiro[3], "", 0xFF00FF, 0));
  EXPECT_TRUE(holds(s.lblMiro2[3], "4", 0xFF00FF, 0));
  showDigits(true);
  paintBothPlanes(s, 3, s.lblValore[6], "6");
  EXPECT_TRUE(holds(s.lblMiro[3], "6", 0xFF0000, 0xFFFFFF));
}

/// cmdDisegnaRettangoli2 looks for the first cell in which the planes differ.
struct PlanesCompared : Planes {
  PlanesCompared() {
    for (int i = 1; i <= 441; ++i) copyCell(s.lblMiro2[i], s.lblMiro[i]);
  }
  std::string found() {
    click(s.cmdDisegnaRettangoli2);
    return s.lblProva1.Caption + s.lblProva2.Caption;
  }
};

TEST_F(PlanesCompared, WithNoDifferenceBothHoldersAreEmpty) {
  s.lblProva1.Caption = s.lblProva2.Caption = "x";
  EXPECT_EQ(found(), "");
}

TEST_F(PlanesCompared, StopsAtTheFirstCellThatDiffers) {
  s.lblMiro[300].ForeColor = {1};
  EXPECT_EQ(found(), "300F");
  s.lblMiro2[200].BackColor = {1};
  EXPECT_EQ(found(), "200B");
  s.lblMiro2[199].Caption = "1";
  EXPECT_EQ(found(), "199C");
}

TEST_F(PlanesCompared, TellsTheCaptionFirstThenBackThenFore) {
  s.lblMiro[441].ForeColor = {1};
  EXPECT_EQ(found(), "441F");
  s.lblMiro[441].BackColor = {1};
  EXPECT_EQ(found(), "441B");
  s.lblMiro[441].Caption = "1";
  EXPECT_EQ(found(), "441C");
}

TEST_F(PlanesCompared, WithoutDigitsADesignsDigitStopsItOnCellOne) {
  s.lblMiro2[1].Caption = "0";
  EXPECT_EQ(found(), "1C");
}

TEST_F(Planes, Label3ShowsAndHidesTheFrameOfTheDesign) {
  click(s.Label3);
  EXPECT_TRUE(s.FraMiro2.Visible);
  click(s.Label3);
  EXPECT_FALSE(s.FraMiro2.Visible);
}

}  // namespace
}  // namespace caleidoscopio::test
