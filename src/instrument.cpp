#include "instrument.h"

#include "break/break_options.h"
#include "break/break_speeds.h"
#include "break/controller.h"
#include "colours/changes.h"
#include "colours/random_active.h"
#include "colours/steps.h"
#include "frame/frame.h"
#include "memories/bank.h"
#include "mosaic/cells.h"
#include "mosaic/painting.h"
#include "mosaic/slots.h"
#include "mosaic/tools.h"
#include "panel/go_stop.h"
#include "panel/leave.h"
#include "panel/speeds.h"
#include "panel/start_up.h"
#include "sequencer/editing.h"
#include "sequencer/steps.h"
#include "shift/shift.h"
#include "transform/aggrega.h"
#include "transform/angoli.h"
#include "transform/crea_disegno.h"
#include "transform/lineare.h"
#include "transform/scambia.h"
#include "transform/transform.h"

namespace caleidoscopio {

namespace {

/// The handler of one event of a control, for its elements from `first` to `last`. What no row
/// names takes no press.
struct HandlerRow {
  Control& control;
  int first, last;
  Event event;
  Control::Handler handler;
};

/// Hands a handler the part of the store that it knows.
template <class Part>
Control::Handler on(Store& s, void (*handler)(Part&, int)) {
  return [&part = static_cast<Part&>(s), handler](int index) { handler(part, index); };
}
template <class Part>
Control::Handler on(Store& s, void (*handler)(Part&)) {
  return [&part = static_cast<Part&>(s), handler](int) { handler(part); };
}

/// Timers A and B remember a speed for each of their modes.
void rememberSpeed(Store& s, int t) {
  if (t == 1) rememberShiftInterval(s);
  if (t == 2) rememberTransformInterval(s);
}

void tieHandlers(Store& s) {
  using enum Event;
  const HandlerRow rows[] = {
      // panel
      {s.form, 0, 0, Click, on(s, Form_Click)},
      {s.form, 0, 0, KeyDown, on(s, Form_KeyDown)},
      {s.cmdGoTimer, 0, 0, Click, on(s, cmdGoTimer_Click)},
      {s.cmdOnOff, 0, 5, Click, on(s, cmdOnOff_Click)},
      {s.lblHide, 0, 0, Click, on(s, lblHide_Click)},
      {s.lblPiùTmr, 1, 3, MouseDown, on(s, lblPiùTmr_MouseDown)},
      {s.lblPiùTmr, 1, 3, MouseUp,
       [&s](int t) {
         lblPiùTmr_MouseUp(s, t);
         rememberSpeed(s, t);
       }},
      {s.lblMenoTmr, 1, 3, MouseDown, on(s, lblMenoTmr_MouseDown)},
      {s.lblMenoTmr, 1, 3, MouseUp,
       [&s](int t) {
         lblMenoTmr_MouseUp(s, t);
         rememberSpeed(s, t);
       }},
      {s.TmrVeloPiù, 0, 0, Tick, on(s, TmrVeloPiù_Timer)},
      {s.TmrVeloMeno, 0, 0, Tick, on(s, TmrVeloMeno_Timer)},
      {s.TmrScorriPiù, 0, 0, Tick, on(s, TmrScorriPiù_Timer)},
      {s.TmrScorriMeno, 0, 0, Tick, on(s, TmrScorriMeno_Timer)},
      // mosaic
      {s.lblMiro, 1, 441, Click, on(s, lblMiro_Click)},
      {s.lblValore, 0, 6, Click, on(s, lblValore_Click)},
      {s.lblColore, 1, 104, Click, on(s, lblColore_Click)},
      {s.lblPiù, 0, 6, MouseDown, on(s, lblPiù_MouseDown)},
      {s.lblPiù, 0, 6, MouseUp, on(s, lblPiù_MouseUp)},
      {s.lblPiù, 0, 6, Click, on(s, lblPiù_Click)},
      {s.TmrColori, 0, 0, Tick, on(s, TmrColori_Timer)},
      {s.lblTotali, 0, 24, Click, on(s, lblTotali_Click)},
      {s.lblSfondo, 0, 6, Click, on(s, lblSfondo_Click)},
      {s.lblSelSfondo, 0, 2, Click, on(s, lblSelSfondo_Click)},
      {s.lblComCol, 0, 4, MouseDown, on(s, lblComCol_MouseDown)},
      // The tool of a lower folder sets off the design of a higher one.
      {s.lblComCol, 6, 6, MouseDown,
       [&s](int k) {
         lblComCol_MouseDown(s, k);
         CreaDisegno(s);
       }},
      {s.lblComCol, 7, 8, MouseDown, on(s, lblComCol_MouseDown)},
      {s.lblComCol, 2, 3, MouseUp, on(s, lblComCol_MouseUp)},
      {s.lblComCol, 6, 6, MouseUp, on(s, lblComCol_MouseUp)},
      {s.lblBack, 0, 0, MouseDown, on(s, lblBack_MouseDown)},
      {s.lblBack, 0, 0, MouseUp, on(s, lblBack_MouseUp)},
      {s.Label3, 0, 0, Click, on(s, Label3_Click)},
      {s.cmdDisegnaRettangoli2, 0, 0, Click, on(s, cmdDisegnaRettangoli2_Click)},
      // shift
      {s.lblSposta, 1, 24, Click, on(s, lblSposta_Click)},
      {s.lblOraria, 0, 0, MouseDown, on(s, lblOraria_MouseDown)},
      {s.lblOraria, 0, 0, MouseUp, on(s, lblOraria_MouseUp)},
      {s.lblSyncro, 0, 0, Click, on(s, lblSyncro_Click)},
      {s.TmrGoA, 0, 0, Tick, on(s, TmrGoA_Timer)},
      // frame
      {s.TmrGoC, 0, 0, Tick, on(s, TmrGoC_Timer)},
      {s.lblCorniceOpzio, 1, 2, MouseDown, on(s, lblCorniceOpzio_MouseDown)},
      {s.lblRandomC, 0, 0, Click, on(s, lblRandomC_Click)},
      {s.lblRndC, 1, 2, MouseDown, on(s, lblRndC_MouseDown)},
      {s.lblRndC, 1, 2, MouseUp, on(s, lblRndC_MouseUp)},
      {s.TmrFrqRnd, 0, 0, Tick, on(s, TmrFrqRnd_Timer)},
      {s.lblColCornice, 0, 0, MouseDown, on(s, lblColCornice_MouseDown)},
      {s.lblColCornice, 0, 0, MouseUp, on(s, lblColCornice_MouseUp)},
      // break
      {s.Command7, 0, 0, Click, on(s, Command7_Click)},
      {s.Command8, 0, 0, Click, on(s, Command8_Click)},
      {s.TmrBreak, 0, 0, Tick, on(s, TmrBreak_Timer)},
      {s.TmrBrk, 0, 0, Tick, on(s, TmrBrk_Timer)},
      {s.TmrAspetta, 0, 0, Tick, on(s, TmrAspetta_Timer)},
      {s.lblBreakMode, 1, 14, Click, on(s, lblBreakMode_Click)},
      {s.lblBreakMode, 18, 19, Click, on(s, lblBreakMode_Click)},
      {s.lblBreakMode, 21, 21, Click, on(s, lblBreakMode_Click)},
      {s.lblBreakMode, 14, 14, MouseDown, on(s, lblBreakMode_MouseDown)},
      {s.lblBreakMode, 14, 14, MouseUp, on(s, lblBreakMode_MouseUp)},
      {s.lblBreakMode, 18, 18, MouseDown, on(s, lblBreakMode_MouseDown)},
      {s.lblBreakMode, 18, 18, MouseUp, on(s, lblBreakMode_MouseUp)},
      {s.lblBreakMode, 22, 24, MouseDown, on(s, lblBreakMode_MouseDown)},
      {s.lblBreakMode, 22, 24, MouseUp, on(s, lblBreakMode_MouseUp)},
      {s.lblBreakMode, 0, 26, MouseMove, on(s, lblBreakMode_MouseMove)},
      {s.lblTmrBreak, 1, 2, MouseDown, on(s, lblTmrBreak_MouseDown)},
      {s.lblTmrBreak, 1, 2, MouseUp, on(s, lblTmrBreak_MouseUp)},
      {s.TmrVeloBreak, 0, 0, Tick, on(s, TmrVeloBreak_Timer)},
      {s.lblBrk, 1, 3, MouseDown, on(s, lblBrk_MouseDown)},
      {s.lblBrk, 1, 3, MouseUp, on(s, lblBrk_MouseUp)},
      {s.TmrScorriBrk, 0, 0, Tick, on(s, TmrScorriBrk_Timer)},
      // colours
      {s.lblCambioCol, 0, 11, Click, on(s, lblCambioCol_Click)},
      {s.lblCambioCol, 0, 11, MouseDown, on(s, lblCambioCol_MouseDown)},
      {s.lblCambioCol, 0, 11, MouseUp, on(s, lblCambioCol_MouseUp)},
      {s.lblNSc, 0, 0, MouseDown, on(s, lblNSc_MouseDown)},
      {s.lblNSc, 0, 0, MouseUp, on(s, lblNSc_MouseUp)},
      {s.lblTmrRndCol, 1, 3, MouseDown, on(s, lblTmrRndCol_MouseDown)},
      {s.lblTmrRndCol, 1, 3, MouseUp, on(s, lblTmrRndCol_MouseUp)},
      {s.TmrRndColor, 0, 0, Tick, on(s, TmrRndColor_Timer)},
      {s.TmrScorriRndCol, 0, 0, Tick, on(s, TmrScorriRndCol_Timer)},
      {s.TmrGoD, 0, 0, Tick, on(s, TmrGoD_Timer)},
      {s.Command1, 0, 0, Click, on(s, ColoreCasualeAttivo)},
      // transform
      {s.lblTransf, 1, 12, Click, on(s, lblTransf_Click)},
      {s.TmrGoB, 0, 0, Tick, on(s, TmrGoB_Timer)},
      {s.lblCrea, 1, 11, MouseDown, on(s, lblCrea_MouseDown)},
      {s.lblCrea, 1, 11, MouseUp, on(s, lblCrea_MouseUp)},
      {s.TmrCrea, 0, 0, Tick, on(s, TmrCrea_Timer)},
      {s.lblAngoli, 0, 0, Click, on(s, lblAngoli_Click)},
      {s.lblLung, 1, 8, Click, on(s, lblLung_Click)},
      {s.lblColNumber, 0, 0, MouseDown, on(s, lblColNumber_MouseDown)},
      {s.lblColNumber, 0, 0, MouseUp, on(s, lblColNumber_MouseUp)},
      {s.lblMinMax, 1, 5, MouseDown, on(s, lblMinMax_MouseDown)},
      {s.lblOpzAggrega, 0, 1, MouseDown, on(s, lblOpzAggrega_MouseDown)},
      {s.lblOpzAggrega, 0, 1, MouseUp, on(s, lblOpzAggrega_MouseUp)},
      {s.lblAgg2, 0, 0, Click, on(s, lblAgg2_Click)},
      {s.lblNScambi, 0, 0, MouseDown, on(s, lblNScambi_MouseDown)},
      {s.lblNScambi, 0, 0, MouseUp, on(s, lblNScambi_MouseUp)},
      // sequencer
      {s.TmrSequencer, 0, 0, Tick, on(s, TmrSequencer_Timer)},
      {s.lblSeq, 1, 3, MouseDown, on(s, lblSeq_MouseDown)},
      {s.lblSeq, 5, 7, MouseDown, on(s, lblSeq_MouseDown)},
      {s.lblSeq, 9, 10, MouseDown, on(s, lblSeq_MouseDown)},
      {s.lblSeq, 11, 11, MouseDown, on(s, lblSeq_MouseDown)},
      {s.lblSeq, 13, 13, MouseDown, on(s, lblSeq_MouseDown)},
      {s.lblSeq, 1, 3, MouseUp, on(s, lblSeq_MouseUp)},
      {s.lblSeq, 5, 7, MouseUp, on(s, lblSeq_MouseUp)},
      {s.lblSeq, 9, 10, MouseUp, on(s, lblSeq_MouseUp)},
      {s.lblSeq, 13, 13, MouseUp, on(s, lblSeq_MouseUp)},
      {s.lblSeq, 9, 10, Click, on(s, lblSeq_Click)},
      {s.lblSeq, 13, 13, Click, on(s, lblSeq_Click)},
      {s.TmrScorriSeq, 0, 0, Tick, on(s, TmrScorriSeq_Timer)},
      {s.TmrStepTotali, 0, 0, Tick, on(s, TmrStepTotali_Timer)},
      {s.lblAvanza, 0, 1, MouseDown, on(s, lblAvanza_MouseDown)},
      {s.lblAvanza, 0, 1, MouseUp, on(s, lblAvanza_MouseUp)},
      {s.TmrAvanza, 0, 0, Tick, on(s, TmrAvanza_Timer)},
      {s.lblNOrdine, 25, 25, MouseDown, on(s, lblNOrdine_MouseDown)},
      {s.lblNOrdine, 25, 25, MouseUp, on(s, lblNOrdine_MouseUp)},
      {s.lblNOrdine, 25, 25, Click, on(s, lblNOrdine_Click)},
      {s.lblDisattiva, 0, 2, Click, on(s, lblDisattiva_Click)},
      // memories
      {s.lblSave, 0, 9, Click, on(s, lblSave_Click)},
      {s.lblSave, 11, 15, Click, on(s, lblSave_Click)},
      {s.lblSalvaComb, 0, 1, Click, on(s, lblSalvaComb_Click)},
      {s.TxtNomeMemoria, 0, 0, KeyPress, on(s, TxtNomeMemoria_KeyPress)},
      {s.lblCanc, 0, 0, Click, on(s, lblCanc_Click)},
      {s.lblComandiVari, 0, 2, Click,
       [&s](int k) {
         if (k == 2)
           leave(s);
         else
           lblComandiVari_Click(s, k);
       }},
      {s.lblMemo, 1, 2, MouseDown, on(s, lblMemo_MouseDown)},
      {s.lblMemo, 1, 2, MouseUp, on(s, lblMemo_MouseUp)},
      {s.TmrScorriMemo, 0, 0, Tick, on(s, TmrScorriMemo_Timer)},
      // end picture
      {s.lblZQ, 0, 0, Click, on(s, lblZQ_Click)},
  };
  for (const HandlerRow& row : rows) row.control.tie(row.event, row.first, row.last, row.handler);
}

}  // namespace

Instrument::Instrument(Platform& platform) {
  s.platform = &platform;
  for (const Group* group :
       {&s.windowGroup, &s.fieldGroup, &s.slotGroup, &s.toolGroup, &s.panelGroup, &s.shiftGroup,
        &s.transformGroup, &s.frameGroup, &s.breakGroup, &s.colourGroup, &s.sequencerGroup,
        &s.memoryGroup, &s.endGroup, &s.timerGroup})
    s.controls.add(*group);
  tieHandlers(s);
  placeControls(s);
}

void Instrument::start() {
  Form_Load(s);
}

}  // namespace caleidoscopio
