#include "memories/record.h"

namespace caleidoscopio {

namespace {

// A memory: the sequencer, the picture, the tools, the slots, then timers F, A, B, C and D.
const RecordRun memory[] = {
    {0,
     0,
     {"lblSeq(4).Caption", "lblSeq(3).Caption", "lblSeq(5).Caption", "lblSeq(11).BackColor",
      "lblSeq(0).Caption", "TmrSequencer.Interval", "lblScritteVarie(12).BackColor",
      "lblScritteVarie(13).BackColor", "lblScritteVarie(19).BackColor"}},
    {1,
     24,
     {"lblNOrdine(i).BackColor", "lblTmrA(i).Caption", "lblTmrA(i).BackColor", "lblTmrB(i).Caption",
      "lblTmrB(i).BackColor", "lblTmrC(i).Caption", "lblTmrC(i).BackColor"}},
    {0, 0, {"FraPannello(2).Visible", "cmdOnOff(5).BackColor"}},
    {1, 441, {"lblMiro(i).BackColor", "lblMiro2(i).BackColor"}},
    {1, 104, {"lblColore(i).BorderStyle"}},
    {0,
     0,
     {"lblComCol(2).Caption", "ShpContour.BorderColor", "ShpContour.BorderWidth",
      "lblComCol(0).BackColor"}},
    {1, 441, {"lblMiro(i).BorderStyle"}},
    {0,
     0,
     {"lblComCol(3).Caption", "lblScritteVarie(7).ForeColor", "lblScritteVarie(8).ForeColor",
      "lblScritteVarie(9).ForeColor", "form.BackColor", "lblComCol(7).BackColor",
      "lblComCol(8).BackColor"}},
    {0,
     6,
     {"lblValore(i).BackColor", "lblValore(i).ForeColor", "lblValore(i).BorderStyle",
      "lblTav(i).Caption", "lblSfondo(i).BackColor", "lblSfondo(i).ForeColor",
      "lblSfondo(i).BorderStyle"}},
    {0, 0, {"lblValAttivo.Caption", "lblValAttivo.BackColor", "lblValAttivo.ForeColor"}},
    {0, 2, {"lblSelSfondo(i).BackColor"}},
    {1, 3, {"lblCambioCol(i).BackColor"}},
    {9, 10, {"lblCambioCol(i).BackColor"}},
    {0,
     0,
     {"lblCambioCol(6).Caption", "lblNSc.Caption", "cmdOnOff(0).BackColor",
      "lblTmrRndCol(0).Caption", "TmrGoD.Interval", "lblMode(1).Caption", "lblSomma.Caption",
      "lblSyncro.BackColor"}},
    {1, 12, {"lblSposta(i).Caption", "lblSposta(i).BackColor", "lblIntervalA(i).Caption"}},
    {0,
     0,
     {"lblIntervalA(0).Caption", "lblOraria.Caption", "lblVelo(1).Caption", "TmrGoA.Interval",
      "cmdOnOff(1).BackColor", "lblMode(2).Caption"}},
    {0, 7, {"lblTransf(i).Caption", "lblTransf(i).BackColor"}},
    {1, 7, {"lblInterv(i).Caption"}},
    {0, 0, {"lblVelo(2).Caption", "TmrGoB.Interval"}},
    {1, 6, {"lblCrea(i).Caption"}},
    {0, 0, {"lblCrea(11).Caption", "lblAngoli.Caption", "lblColNumber.Caption"}},
    {1, 8, {"lblLung(i).BackColor"}},
    {0, 0, {"lblCasel.Caption", "lblLungh.Caption"}},
    {1, 5, {"lblMinMax(i).BackColor"}},
    {0, 1, {"lblOpzAggrega(i).Caption"}},
    {0, 0, {"lblFase.Caption", "lblSquareOpz.BackColor", "lblColSq.Caption", "lblNScambi.Caption"}},
    {1, 12, {"FraTransf(i).Visible"}},
    {0, 0, {"cmdOnOff(2).BackColor"}},
    {1, 2, {"lblCorniceOpzio(i).Caption", "lblCorniceOpzio(i).BackColor"}},
    {0,
     0,
     {"lblSyn.BackColor", "lblRandomC.BackColor", "lblRndC(0).Caption", "lblColCornice.Caption",
      "lblVelo(3).Caption", "TmrGoC.Interval", "cmdOnOff(3).BackColor"}},
    {0, 26, {"lblBreakMode(i).Caption", "lblBreakMode(i).BackColor"}},
    {0,
     0,
     {"lblBrk(0).Caption", "lblBrk(3).Caption", "cmdOnOff(4).BackColor", "TmrAspetta.Interval",
      "TmrBreak.Interval", "TmrVeloBreak.Interval", "TmrBrk.Interval", "TmrScorriBrk.Interval",
      "lblTmrBreak(0).Caption"}},
};

// The list of names.
const RecordRun names[] = {
    {0, 0, {"lblNomefile.Caption", "lblSelez.Caption", "lblMemo(0).Caption"}},
    {0, 105, {"lblComb(i).Caption", "lblComb(i).BackColor"}},
    {0, 15, {"lblSave(i).BackColor"}},
};

}  // namespace

std::span<const RecordRun> memoryRuns() {
  return memory;
}
std::span<const RecordRun> nameRuns() {
  return names;
}

}  // namespace caleidoscopio
