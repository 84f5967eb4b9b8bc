#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "support/rig.h"

namespace caleidoscopio::test {
namespace {

struct StoreDefaults : testing::Test, Rig {};

TEST_F(StoreDefaults, FormAndPanelsStandOnTheGround) {
  EXPECT_EQ(s.form.BackColor, Colour{0xD7F7FD});
  for (int i = 0; i <= 2; ++i) EXPECT_EQ(s.FraPannello[i].BackColor, Colour{0xD7F7FD});
  EXPECT_EQ(s.form.geometry().Width, Twips{15360});
  EXPECT_EQ(s.form.geometry().Height, Twips{11520});
}

TEST_F(StoreDefaults, EverythingIsStoppedAndSwitchedOut) {
  EXPECT_EQ(s.cmdGoTimer.BackColor, Colour{0x8000000F});
  for (int k = 0; k <= 5; ++k) EXPECT_EQ(s.cmdOnOff[k].BackColor, Colour{0xC0FFC0});
  EXPECT_EQ(s.lblHide.BackColor, Colour{0xC0C0FF});
  EXPECT_EQ(s.lblSpiaBreak.BackColor, Colour{0xFFFFFF});
}

TEST_F(StoreDefaults, TheDisplayPlaneHasNoDigitsAndOneColour) {
  for (int i = 1; i <= 441; ++i) {
    EXPECT_EQ(s.lblMiro[i].Caption, "");
    EXPECT_EQ(s.lblMiro[i].BackColor, Colour{0xC0C000});
    EXPECT_EQ(s.lblMiro[i].ForeColor, Colour{0x000000});
    EXPECT_EQ(s.lblMiro.geometry(i).FontSize, Points{18});
  }
  EXPECT_EQ(s.lblVoceOpzioni[2].Caption, "N");
  EXPECT_EQ(s.lblVoceOpzioni[3].Caption, "S");
}

TEST_F(StoreDefaults, TheDesignsCaptionsStandAtZero) {
  for (int i = 0; i <= 882; ++i) EXPECT_EQ(s.lblMiro2[i].Caption, "0");
}

TEST_F(StoreDefaults, TheSlotsHaveTheirDigitsColoursAndSwatches) {
  const struct {
    const char* digit;
    Colour back, fore;
    const char* swatch;
  } slots[] = {{"0", {0xC0C000}, {0x000000}, "55"}, {"1", {0x00FFFF}, {0x000000}, "22"},
               {"2", {0x0080FF}, {0x000000}, "14"}, {"3", {0x0000FF}, {0x000000}, "6"},
               {"4", {0xFF00FF}, {0x000000}, "86"}, {"5", {0xFF0080}, {0xFFFFFF}, "78"},
               {"6", {0xFF0000}, {0xFFFFFF}, "70"}};
  for (int k = 0; k <= 6; ++k) {
    for (const Label* slot : {&s.lblValore[k], &s.lblValoreB[k], &s.lblValoreC[k]}) {
      EXPECT_EQ(slot->Caption, slots[k].digit);
      EXPECT_EQ(slot->BackColor, slots[k].back);
      EXPECT_EQ(slot->ForeColor, slots[k].fore);
    }
    EXPECT_EQ(s.lblSfondo[k].Caption, "*");
    EXPECT_EQ(s.lblSfondo[k].BackColor, slots[k].back);
    EXPECT_EQ(s.lblSfondo[k].ForeColor, slots[k].fore);
    for (const Label* swatch : {&s.lblTav[k], &s.lblTavB[k], &s.lblTavC[k]})
      EXPECT_EQ(swatch->Caption, slots[k].swatch);
    EXPECT_EQ(s.lblValore[k].BorderStyle, k == 3 ? 1 : 0);
    EXPECT_EQ(s.lblSfondo[k].BorderStyle, k == 0 ? 1 : 0);
    const Label& taken = s.lblColore[std::stoi(slots[k].swatch)];
    EXPECT_EQ(taken.BorderStyle, 1);
    EXPECT_EQ(taken.BackColor, slots[k].back);
    EXPECT_EQ(taken.ForeColor, slots[k].fore);
  }
  int taken = 0;
  for (int i = 0; i <= 104; ++i) taken += s.lblColore[i].BorderStyle;
  EXPECT_EQ(taken, 7);
}

TEST_F(StoreDefaults, SlotThreeIsActiveAndSlotNoughtTheBackground) {
  EXPECT_EQ(s.lblValAttivo.Caption, "3");
  EXPECT_EQ(s.lblValAttivo.BackColor, Colour{0x0000FF});
  EXPECT_EQ(s.lblValAttivo.ForeColor, Colour{0x000000});
  EXPECT_EQ(s.lblNumAttivo.Caption, "3");
  EXPECT_EQ(s.lblSfondoAttivo.Caption, "0");
  EXPECT_EQ(s.lblSfondoMem.Caption, "0");
  EXPECT_EQ(s.lblValClick.Caption, "");
}

TEST_F(StoreDefaults, TheToolsStandAsTheyComeUp) {
  EXPECT_EQ(s.lblSelSfondo[0].Caption, "Quadro");
  EXPECT_EQ(s.lblSelSfondo[1].Caption, "Cornice");
  EXPECT_EQ(s.lblSelSfondo[2].Caption, "Tutto");
  EXPECT_EQ(s.lblSelSfondo[3].Caption, "1");
  EXPECT_EQ(s.lblSelSfondo[1].BackColor, colours::selected);
  EXPECT_EQ(s.lblClickSfondo.Caption, "0");
  EXPECT_EQ(s.lblComCol[0].Caption, "L");
  EXPECT_EQ(s.lblComCol[1].Caption, "N");
  EXPECT_EQ(s.lblComCol[2].Caption, "2");
  EXPECT_EQ(s.lblComCol[3].Caption, "Disegno");
  EXPECT_EQ(s.lblComCol[4].Caption, "R");
  EXPECT_EQ(s.lblComCol[5].Caption, "1");
  for (const int k : {0, 1, 4}) EXPECT_EQ(s.lblComCol[k].BackColor, colours::unselected);
  EXPECT_FALSE(s.ShpRettangolo.Visible);
}

TEST_F(StoreDefaults, TheShiftComesUpAsCampoOrizzontaleOut) {
  EXPECT_EQ(s.lblOraria.Caption, "Out");
  EXPECT_EQ(s.lblCent.Caption, "200");
  EXPECT_EQ(s.lblShift.Caption, "1");
  EXPECT_EQ(s.lblSomma.Caption, "201");
  EXPECT_EQ(s.lblMode[1].Caption, "Campo Orizzontale Out");
  EXPECT_EQ(s.lblSyncro.Caption, "Sy");
  EXPECT_EQ(s.lblSyncro.BackColor, colours::unselected);
  EXPECT_EQ(s.lblIntervalA[0].Caption, "1");
  for (int i = 1; i <= 24; ++i) {
    EXPECT_EQ(s.lblSposta[i].Caption, std::to_string(i));
    EXPECT_EQ(s.lblSposta[i].BackColor, i == 1 ? colours::selected : colours::unselected);
  }
  for (int i = 1; i <= 12; ++i) EXPECT_EQ(s.lblIntervalA[i].Caption, std::to_string(100 * i));
  for (int i = 1; i <= 9; ++i) {
    EXPECT_EQ(s.lblMemory[i].Caption, "0");
    EXPECT_EQ(s.lblMemory[i].BackColor, colours::unselected);
  }
}

TEST_F(StoreDefaults, TheSpeedRowsDifferFromTheTimersOnPurpose) {
  EXPECT_EQ(s.lblVelo[1].Caption, "500");
  EXPECT_EQ(s.lblVelo[2].Caption, "1000");
  EXPECT_EQ(s.lblVelo[3].Caption, "80");
  EXPECT_EQ(s.TmrGoB.Interval(), 100);
  EXPECT_EQ(s.TmrGoC.Interval(), 1000);
  EXPECT_EQ(s.lblIndexTmr.Caption, "2");
  for (int t = 1; t <= 3; ++t) {
    EXPECT_EQ(s.lblPiùTmr[t].BackColor, colours::idle);
    EXPECT_EQ(s.lblMenoTmr[t].BackColor, colours::idle);
  }
}

TEST_F(StoreDefaults, TheMatrixStandsOnTheFirstGround) {
  for (int i = 0; i <= 24; ++i) {
    EXPECT_EQ(s.lblTotali[i].BackColor, Colour{0xC0C000});
    EXPECT_EQ(s.lblTotaliC[i].BackColor, Colour{0xC0C000});
    EXPECT_EQ(s.lblTot[i].Caption, "0");
    EXPECT_EQ(s.lblTot[i].BackColor, colours::unselected);
  }
}

TEST_F(StoreDefaults, TheTableMarksItsProgrammeAndTheCursorInTheEditedColumn) {
  for (int row = 1; row <= 24; ++row) {
    const Colour inside = row <= 4 ? colours::inRange : colours::unselected;
    EXPECT_EQ(s.lblTmrA[row].BackColor, row == 4 ? colours::selected : inside) << row;
    EXPECT_EQ(s.lblTmrB[row].BackColor, inside) << row;
    EXPECT_EQ(s.lblTmrC[row].BackColor, inside) << row;
  }
  EXPECT_EQ(s.lblSeq[3].Caption, "A");
  EXPECT_EQ(s.lblSeq[4].Caption, "4");
  EXPECT_EQ(s.lblSeq[5].Caption, "4");
}

/// How an element comes up; without a colour any will do.
struct Default {
  const Frame* element;
  const char* caption;
  std::optional<Colour> back = {};
};

void comeUpAs(const Store& s, const std::vector<Default>& defaults) {
  for (const Default& d : defaults) {
    EXPECT_EQ(d.element->Caption, d.caption) << s.controls.nameOf(d.element);
    if (d.back) {
      EXPECT_EQ(d.element->BackColor, *d.back) << s.controls.nameOf(d.element);
    }
  }
}

constexpr Colour red{0xC0C0FF}, white{0xFFFFFF}, face{0x8000000F};

TEST_F(StoreDefaults, TheFramesSectionComesUpWithBothLinesOutAndFreshColoursIn) {
  comeUpAs(s, {
                  {&s.lblCorniceOpzio[1], "Out", red},
                  {&s.lblCorniceOpzio[2], "Out", red},
                  {&s.lblRandomC, "Random", red},
                  {&s.lblRndC[0], "2"},
                  {&s.lblRndC[1], "<"},
                  {&s.lblRndC[2], ">"},
                  {&s.lblIndFRnd, ""},
                  {&s.lblColCornice, "7", white},
                  {&s.lblNumCas, "1"},
                  {&s.lblScegliColTmr, "0"},
                  {&s.lblSyn, "Sy", white},
                  {&s.lblVelo[3], "80"},
              });
  for (const Frame* hidden :
       std::initializer_list<const Frame*>{&s.lblNumCas, &s.lblScegliColTmr, &s.lblSyn})
    EXPECT_FALSE(hidden->Visible) << s.controls.nameOf(hidden);
  EXPECT_EQ(s.TmrGoC.Interval(), 1000);
  EXPECT_EQ(s.TmrFrqRnd.Interval(), 100);
  EXPECT_FALSE(s.TmrGoC.Enabled() || s.TmrFrqRnd.Enabled());
}

TEST_F(StoreDefaults, TheBreaksSectionComesUpWithElevenPatternsAtRandomAlternating) {
  comeUpAs(s, {
                  {&s.lblBreakMode[0], "11", white},
                  {&s.lblBreakMode[1], "1", red},
                  {&s.lblBreakMode[2], "2", red},
                  {&s.lblBreakMode[3], "3", red},
                  {&s.lblBreakMode[4], "4", red},
                  {&s.lblBreakMode[5], "5", red},
                  {&s.lblBreakMode[6], "6", red},
                  {&s.lblBreakMode[7], "7", red},
                  {&s.lblBreakMode[8], "8", red},
                  {&s.lblBreakMode[9], "9", red},
                  {&s.lblBreakMode[10], "10", red},
                  {&s.lblBreakMode[11], "11", red},
                  {&s.lblBreakMode[12], "12", white},
                  {&s.lblBreakMode[13], "All", white},
                  {&s.lblBreakMode[14], "Alt", white},
                  {&s.lblBreakMode[15], "I", white},
                  {&s.lblBreakMode[16], "0", white},
                  {&s.lblBreakMode[17], "1", white},
                  {&s.lblBreakMode[18], "R", white},
                  {&s.lblBreakMode[19], "D", red},
                  {&s.lblBreakMode[20], "Immediato", white},
                  {&s.lblBreakMode[21], "R", white},
                  {&s.lblBreakMode[22], "-", face},
                  {&s.lblBreakMode[23], "+", face},
                  {&s.lblBreakMode[24], "Rnd", white},
                  {&s.lblBreakMode[25], "1", Colour{0xFFFFC0}},
                  {&s.lblBreakMode[26], "M", red},
                  {&s.lblSpiaBreak, "", white},
                  {&s.lblBreak, "22", red},
                  {&s.lblTrans, "3"},
                  {&s.lblColSCelto, "4"},
                  {&s.lblBrk[0], "3000"},
                  {&s.lblBrk[1], "-"},
                  {&s.lblBrk[2], "+"},
                  {&s.lblBrk[3], "2"},
                  {&s.lblBrk[4], "1"},
                  {&s.lblBrk[5], ""},
                  {&s.lblTmrBreak[0], "100"},
                  {&s.lblTmrBreak[1], "-"},
                  {&s.lblTmrBreak[2], "+"},
                  {&s.Command7, "Break"},
                  {&s.Command8, "stop Tmr"},
              });
  for (int i = 0; i <= 26; ++i)
    EXPECT_EQ(s.lblBreakMode[i].ForeColor, Colour{i == 20 ? 0x000080U : 0U}) << i;
  for (int i = 1; i <= 13; ++i) EXPECT_EQ(s.lblIntBrk[i].Caption, "0") << i;
  const struct {
    const Timer& timer;
    int interval;
  } timers[] = {{s.TmrBrk, 3000},
                {s.TmrBreak, 3000},
                {s.TmrAspetta, 0},
                {s.TmrScorriBrk, 75},
                {s.TmrVeloBreak, 75}};
  for (const auto& [timer, interval] : timers) {
    EXPECT_EQ(timer.Interval(), interval);
    EXPECT_FALSE(timer.Enabled());
  }
}

TEST_F(StoreDefaults, HoldersWithoutAnEngineKeepWhatAMemoryKnowsOfThem) {
  EXPECT_EQ(s.lblFase.Caption, "1");
  EXPECT_EQ(s.lblSquareOpz.BackColor, colours::unselected);
  EXPECT_EQ(s.lblColSq.Caption, "7");
}

TEST_F(StoreDefaults, TheScreenTellsInItalianHowToGetThePanels) {
  const std::string& line = s.lblScritteVarie[8].Caption;
  EXPECT_NE(line.find("tasto"), std::string::npos);
  EXPECT_NE(line.find("clic"), std::string::npos);
}

TEST_F(StoreDefaults, ServiceControlsAreNotShown) {
  for (const Label* label :
       {&static_cast<const Label&>(s.Label3), &static_cast<const Label&>(s.Label7),
        &static_cast<const Label&>(s.Command1),
        &static_cast<const Label&>(s.cmdDisegnaRettangoli2)})
    EXPECT_FALSE(label->Visible);
  EXPECT_EQ(s.Label3.Caption, "Mostra Miro2");
  EXPECT_FALSE(s.FraMiro2.Visible);
}

}  // namespace
}  // namespace caleidoscopio::test
