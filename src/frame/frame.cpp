#include "frame/frame.h"

#include "frame/frame_lines.h"
#include "mosaic/cells.h"
#include "mosaic/random_pick.h"
#include "panel/numbers.h"

namespace caleidoscopio {

namespace {

struct Write {
  Labels<0, 441>& display;
  bool captions;
  void operator()(const FramePlace& place, const Frame& from) const {
    for (const std::int16_t cell : place.all()) copyIf(captions, display[cell], from);
  }
};

/// Hold and entry are on the same side of the line, so that without a fresh colour its ten places
/// just rotate. Any direction but "Out" and "In" changes nothing and draws nothing.
void move(FrameControls& s, const FrameLine& line, const std::string& direction) {
  const Write write{s.lblMiro, showsDigits(s)};
  if (direction == "Out") {
    copyIf(write.captions, s.lblMemC, write.display[line.front().read()]);
    for (std::size_t k = 0; k < 9; ++k) write(line[k], write.display[line[k + 1].read()]);
    write(line.back(), ColoreEntrante(s));
  } else if (direction == "In") {
    copyIf(write.captions, s.lblMemC, write.display[line.back().read()]);
    for (std::size_t k = 9; k > 0; --k) write(line[k], write.display[line[k - 1].read()]);
    write(line.front(), ColoreEntrante(s));
  }
}

void stepRarity(FrameControls& s, bool up) {
  Label& rarity = s.lblRndC[0];
  if (rarity.Caption == (up ? "36" : "1"))
    rarity.Caption = up ? "1" : "36";
  else
    rarity.Caption = text(number(s, rarity) + (up ? 1 : -1));
}

}  // namespace

void TmrGoC_Timer(FrameControls& s) {
  if (s.lblCorniceOpzio[1].Caption != "Off") {
    if (s.lblSyn.BackColor == colours::selected)
      MuoviCroceSyn(s);
    else
      MuoviCroce(s);
  }
  // While tied the frame moves twice: once with the cross, once by itself. It is meant to.
  if (s.lblCorniceOpzio[2].Caption != "Off") MuoviCornice(s);
  SincronizzaPiano(s);
}

void MuoviCroce(FrameControls& s) {
  move(s, crossLine, s.lblCorniceOpzio[1].Caption);
}

void MuoviCornice(FrameControls& s) {
  move(s, borderLine, s.lblCorniceOpzio[2].Caption);
}

void MuoviCroceSyn(FrameControls& s) {
  move(s, tiedLine, s.lblCorniceOpzio[1].Caption);
}

const Frame& ColoreEntrante(FrameControls& s) {
  if (s.lblRandomC.BackColor != colours::selected) return s.lblMemC;
  s.lblNumCas.Caption = text(CasualeMinuti(s, number(s, s.lblRndC[0])));
  if (s.lblNumCas.Caption != "1") return s.lblMemC;
  PescaColoreCornice(s);
  return s.lblScegliColTmr;
}

void PescaColoreCornice(FrameControls& s) {
  // The holder takes the digit always; only cells ask whether digits are shown.
  copyCell(s.lblScegliColTmr, s.lblValore[CasualeMinuti(s, number(s, s.lblColCornice)) - 1]);
}

void lblCorniceOpzio_MouseDown(FrameControls& s, int n) {
  Label& option = s.lblCorniceOpzio[n];
  if (option.Caption == "Off" || option.Caption == "Out") {
    option.Caption = option.Caption == "Off" ? "Out" : "In";
    option.BackColor = colours::selected;
  } else if (option.Caption == "In") {
    option.Caption = "Off";
    option.BackColor = colours::unselected;
  }
  if (s.lblSyn.BackColor != colours::selected) return;
  Label& other = s.lblCorniceOpzio[3 - n];
  other.Caption = option.Caption;
  other.BackColor = option.BackColor;
}

void lblRandomC_Click(FrameControls& s) {
  const bool off = s.lblRandomC.BackColor == colours::unselected;
  s.lblRandomC.BackColor = off ? colours::selected : colours::unselected;
}

void lblRndC_MouseDown(FrameControls& s, int a) {
  s.lblIndFRnd.Caption = text(a);
  s.lblRndC[a].BackColor = colours::pressed;
  stepRarity(s, a == 2);
  s.TmrFrqRnd.setEnabled(true);
}

void lblRndC_MouseUp(FrameControls& s, int a) {
  s.TmrFrqRnd.setEnabled(false);
  s.lblRndC[a].BackColor = colours::idle;
}

void TmrFrqRnd_Timer(FrameControls& s) {
  stepRarity(s, s.lblIndFRnd.Caption == "2");
}

void lblColCornice_MouseDown(FrameControls& s) {
  s.lblColCornice.BackColor = colours::pressed;
}

void lblColCornice_MouseUp(FrameControls& s) {
  s.lblColCornice.BackColor = colours::unselected;
  std::string& slots = s.lblColCornice.Caption;
  if (slots == "7")
    slots = "2";
  else if (slots.size() == 1 && slots >= "2" && slots <= "6")
    ++slots[0];
}

}  // namespace caleidoscopio
