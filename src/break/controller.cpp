#include "break/controller.h"

#include "break/design.h"
#include "break/intervals.h"
#include "break/patterns.h"
#include "break/sweep.h"
#include "mosaic/cells.h"
#include "mosaic/random_pick.h"
#include "mosaic/slots.h"
#include "panel/numbers.h"
#include "transform/crea_disegno.h"

namespace caleidoscopio {

namespace {

constexpr Colour inSweep{0x0000FF};  ///< on the button of the running pattern

// Elements of lblBreakMode that a sweep locks, beside 1 to 14.
constexpr int kind = 18, newDesign = 19, repeat = 21, order = 24;

bool selected(const Label& label) {
  return label.BackColor == colours::selected;
}

/// "1" one colour, "2" changing colours, "3" a new design. An unknown choice leaves the last kind.
void chooseKind(BreakControls& s) {
  const std::string& choice = s.lblBreakMode[kind].Caption;
  if (choice == "U") s.lblTrans.Caption = "1";
  if (choice == "C") s.lblTrans.Caption = "2";
  if (choice == "N") s.lblTrans.Caption = "3";
  if (choice == "R") s.lblTrans.Caption = text(CasualeMinuti(s, 3));
}

/// What the sweep will bring: a new picture, or a colour.
void prepare(BreakControls& s) {
  if (s.lblTrans.Caption == "3") {
    // The slots change at once, while the display still shows the old picture.
    if (selected(s.lblCrea[8])) PaletteCasuale(s);
    DisegnoBreak(s);
    return;
  }
  const std::int64_t slot = CasualeMinuti(s, 7) - 1;
  s.lblColSCelto.Caption = text(slot);
  s.lblColSCelto.BackColor = s.lblSfondo[slot].BackColor;
}

void lockButtons(BreakControls& s) {
  for (int i = 1; i <= 14; ++i) s.lblBreakMode[i].Enabled = false;
  for (const int i : {kind, newDesign, order}) s.lblBreakMode[i].Enabled = false;
  s.Command7.Enabled = false;
}

void stopEngines(BreakControls& s) {
  for (Timer* timer : {&s.TmrGoA, &s.TmrGoB, &s.TmrGoC, &s.TmrGoD, &s.TmrSequencer})
    timer->setEnabled(false);
}

/// The n-th selected button, or 0 when a damaged memory counts more than there are.
std::int64_t nthSelected(const BreakControls& s, std::int64_t n) {
  std::int64_t found = 0;
  for (int i = 1; i <= 12; ++i)
    if (selected(s.lblBreakMode[i]) && ++found == n) return i;
  return 0;
}

/// The next selected button after the last one used; with none selected, where 20 steps lead.
std::int64_t nextSelected(BreakControls& s) {
  Label& last = s.lblBreakMode[25];
  Number at = 0;
  for (int step = 1; step <= 20; ++step) {
    at = last.Caption == "12" ? Number(1) : number16(s, last) + 1;
    last.Caption = text(at);
    if (selected(s.lblBreakMode[at])) break;
  }
  return at;
}

void setOut(BreakControls& s, bool out) {
  s.lblBreak.BackColor = out ? colours::selected : colours::unselected;
}

/// An unknown mode leaves the last direction.
void chooseDirection(BreakControls& s) {
  const std::string& mode = s.lblBreakMode[14].Caption;
  if (mode == "Out") {
    setOut(s, true);
  } else if (mode == "In") {
    setOut(s, false);
  } else if (mode == "O/I") {
    setOut(s, CasualeMinuti(s, 2) == 1);
  } else if (mode == "Alt") {
    Label& last = s.lblBreakMode[15];
    const bool out = last.Caption != "O";
    last.Caption = out ? "O" : "I";
    setOut(s, out);
  }
}

/// `drawn` is the pick among the selected buttons, made whatever the order.
void choosePattern(BreakControls& s, std::int64_t drawn) {
  const bool random = s.lblBreakMode[order].Caption == "Rnd";
  const std::int64_t chosen = random ? nthSelected(s, drawn) : nextSelected(s);
  if (chosen == 0) return;  // the last pattern's number, count and direction stay in force
  Label& button = s.lblBreakMode[chosen];
  button.BackColor = inSweep;
  button.ForeColor = colours::unselected;
  s.lblBreakMode[17].Caption = text(chosen);
  if (const BreakPattern* pattern = findBreakPattern(chosen))
    s.lblBreak.Caption = text(startValue(*pattern));
  chooseDirection(s);
}

void showRunningName(BreakControls& s) {
  const std::int64_t running = number16(s, s.lblBreakMode[17]);
  const BreakPattern* pattern = findBreakPattern(running);
  if (!pattern) return;
  std::string name(pattern->name);
  if (running != immediato) name += s.lblBreak.BackColor == colours::selected ? " (Out)" : " (In)";
  s.lblBreakMode[20].Caption = name;
}

void releaseButtons(BreakControls& s) {
  for (int i = 1; i <= 14; ++i) {
    Label& button = s.lblBreakMode[i];
    button.Enabled = true;
    if (button.BackColor != inSweep) continue;
    button.BackColor = colours::selected;
    button.ForeColor = colours::black;
  }
  // Repeat and Go were never locked; to enable them all the same does no harm.
  for (const int i : {kind, newDesign, repeat, order}) s.lblBreakMode[i].Enabled = true;
  s.Command7.Enabled = true;
  s.cmdGoTimer.Enabled = true;
}

/// The colours of the uncovered picture, set B, become the current ones. Digits stay.
void takeColoursOfDesign(BreakControls& s) {
  for (int i = 1; i <= 101; ++i) s.lblColore[i].BorderStyle = 0;
  for (int k = 0; k <= 6; ++k) {
    s.lblTav[k].Caption = s.lblTavB[k].Caption;
    s.lblColore[number16(s, s.lblTavB[k])].BorderStyle = 1;
    copyColours(s.lblValore[k], s.lblValoreB[k]);
    copyColours(s.lblSfondo[k], s.lblValoreB[k]);
  }
}

/// The engines go on by a whole Go, so that the switches decide anew what runs.
void resume(BreakControls& s) {
  if (s.cmdGoTimer.BackColor != colours::running) return;
  s.cmdGoTimer.BackColor = colours::idle;
  click(s.cmdGoTimer);
}

void handOver(BreakControls& s) {
  if (s.lblBreakMode[16].Caption != "0") {
    s.TmrAspetta.setInterval(number16(s, s.lblBreakMode[16]));
    s.TmrAspetta.setEnabled(true);
  } else if (selected(s.lblBreakMode[repeat])) {
    Command7_Click(s);
  } else {
    resume(s);
  }
}

/// A new design takes the place of the swept field, on the last colour of the sweep as ground.
void replaceField(BreakControls& s) {
  Label& option = s.lblCrea[8];
  const std::string caption = option.Caption;
  s.lblBreakMode[0].BackColor = option.BackColor;
  option.Caption = "M";
  if (selected(s.lblBreakMode[26])) PaletteCasuale(s);
  CreaDisegno(s);
  click(s.lblSfondo, static_cast<int>(number16(s, s.lblColSCelto)));
  option.Caption = caption;
  option.BackColor = s.lblBreakMode[0].BackColor;
}

void endBreak(BreakControls& s) {
  s.TmrBreak.setEnabled(false);
  releaseButtons(s);
  if (s.lblTrans.Caption == "3") {
    takeColoursOfDesign(s);
    SorteggiaIntervalloBreak(s);
  }
  handOver(s);
  // Asked only now: a Break that a repeat has just started decides for the one that ended, and can
  // paint over the picture that a kind 3 Break uncovered. It is meant to stay so.
  if (s.lblTrans.Caption == "3") return;
  if (selected(s.lblBreakMode[newDesign]))
    replaceField(s);
  else
    // In kind 2 a colour that no step of the sweep need have shown.
    fillWithSweptColour(s);
}

}  // namespace

void Command7_Click(BreakControls& s) {
  chooseKind(s);
  prepare(s);
  const std::int64_t drawn = CasualeMinuti(s, number16(s, s.lblBreakMode[0]));
  lockButtons(s);
  stopEngines(s);
  choosePattern(s, drawn);
  showRunningName(s);
  s.TmrBreak.setInterval(number16(s, s.lblTmrBreak[0]));
  s.TmrBreak.setEnabled(true);
}

void TmrBreak_Timer(BreakControls& s) {
  // The colour shown on lblColSCelto stays that of the start.
  if (s.lblTrans.Caption == "2") s.lblColSCelto.Caption = text(CasualeMinuti(s, 7) - 1);
  if (s.lblBreak.Caption != "1")
    SweepBreak(s);
  else
    endBreak(s);
}

void TmrBrk_Timer(BreakControls& s) {
  s.TmrBrk.setEnabled(false);
  Command7_Click(s);
}

void TmrAspetta_Timer(BreakControls& s) {
  s.TmrAspetta.setEnabled(false);
  if (selected(s.lblBreakMode[repeat]))
    Command7_Click(s);
  else
    resume(s);
}

void Command8_Click(BreakControls& s) {
  s.TmrBreak.setEnabled(false);
}

}  // namespace caleidoscopio
