#include <gtest/gtest.h>

#include <sstream>

#include "support/rig.h"

namespace caleidoscopio::test {
namespace {

// Every control in the order of the dump: first and last index, or nothing for a single one.
constexpr const char* listed = R"(
form, frmMiroVelTaZQ, TxtNomeMemoria, ImgZQ, ShpContour, ShpRettangolo,
FraPannello 0..2, FraTransf 1..12, FraMemoria, FraMiro2, FraRandom, Frame2, Frame4, Frame6, FraZQ,
lblMiro 0..441, lblMiro2 0..882, lblVoceOpzioni 2..3, lblIndex, lblMemC, lblMemory 0..9,
lblValore 0..7, lblSfondo 0..7, lblTav 0..7, lblPiù 0..6, lblValoreB 0..6, lblTavB 0..6,
lblValoreC 0..6, lblTavC 0..6, lblColore 0..104, lblTotali 0..24, lblTot 0..24, lblTotaliC 0..24,
lblValAttivo, lblNumAttivo, lblSfondoAttivo, lblSfondoMem, lblMemoCol, lblValClick,
lblSelSfondo 0..3, lblClickSfondo, lblComCol 0..8, lblCopia 1..4, lblBack, lblProva, lblProva1,
lblProva2, Label3, Label7, Command1, cmdDisegnaRettangoli2,
cmdGoTimer, cmdOnOff 0..5, lblHide, lblSpiaBreak, lblMode 1..2, lblVelo 1..3, lblPiùTmr 1..3,
lblMenoTmr 1..3, lblIndexTmr, lblScritteVarie 0..49, lblDir,
lblSposta 0..24, lblOraria, lblCent, lblShift, lblSomma, lblIntervalA 0..12, lblSyncro,
lblTransf 0..12, lblInterv 1..12, lblCrea 0..11, lblAngoli, lblAngolo 0..21, lblColSCelto,
lblLung 1..8, lblLunghez 0..8, lblColNumber, lblCasel, lblCarat, lblCarat2, lblProvaCambioCol,
lblDirezione, lblLungh, lblDirez 1..5, lblSuccessive 0..5, lblDirezB 1..4, lblSuccessiveB 1..4,
lblCasScelta, lblColTraccia, lblRndColor, lblRndPoss, lblRisistema, lblMinMax 0..5,
lblAggrega 0..6, lblCap 0..6, lblAgg2, lblContaAg, lblNRandom, lblOpzAggrega 0..1, lblNScambi,
lblSceltaN 1..82, lblRimaste, lblCountScelte, lblRndCasella, lblScelta 1..24, lblFase,
lblSquareOpz, lblColSq,
lblCorniceOpzio 1..2, lblRandomC, lblRndC 0..2, lblIndFRnd, lblColCornice, lblNumCas,
lblScegliColTmr, lblSyn,
lblBreakMode 0..26, lblBreak, lblTrans, lblBrk 0..5, lblIntBrk 1..13, lblTmrBreak 0..2, Command7,
Command8,
lblCambioCol 0..11, lblNSc, lblTmrRndCol 0..6, lblIntCol 1..13, lblPRovaTotColSel,
lblSeq 0..13, lblNOrdine 0..25, lblTmrA 0..24, lblTmrB 0..24, lblTmrC 0..24, lblDisattiva 0..2,
lblAvanza 0..1,
lblSave 0..15, lblMemo 0..2, lblSelez, lblNomefile, lblComb 0..106, lblCanc, lblComandiVari 0..2,
lblSalvaComb 0..1, lblAvvertimento,
lblAvvertimento2, lblZQ, lblScritteVarieC,
TmrGoA, TmrGoB, TmrGoC, TmrBrk, TmrSequencer, TmrGoD, TmrBreak, TmrAspetta, TmrCrea,
TmrRandomColori, TmrRndColor, TmrColori, TmrVeloPiù, TmrVeloMeno, TmrScorriPiù, TmrScorriMeno,
TmrScorriMemo, TmrScorriBrk, TmrVeloBreak, TmrScorriRndCol, TmrScorriSeq, TmrAvanza,
TmrStepParziali, TmrStepTotali, TmrFrqRnd, TmrRndFreq, TmrAlterna,)";

std::vector<std::string> expectedControls() {
  std::vector<std::string> all;
  std::istringstream text(listed);
  for (std::string one; std::getline(text >> std::ws, one, ',');) all.push_back(one);
  return all;
}

std::string described(const Control& control) {
  std::string text(control.name());
  if (!control.single())
    text += ' ' + std::to_string(control.first()) + ".." + std::to_string(control.last());
  return text;
}

TEST(Controls, StandInTheOrderOfTheDumpWithTheirBounds) {
  Rig rig;
  std::vector<std::string> controls;
  for (const Control* control : rig.s.controls.all()) controls.push_back(described(*control));
  EXPECT_EQ(controls, expectedControls());
}

}  // namespace
}  // namespace caleidoscopio::test
