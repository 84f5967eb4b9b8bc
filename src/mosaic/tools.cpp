#include "mosaic/tools.h"

#include <array>
#include <string_view>

#include "mosaic/cells.h"
#include "panel/numbers.h"

namespace caleidoscopio {

namespace {

constexpr std::array<std::string_view, 4> paletteModes{"Disegno", "Sfondo", "Titoli", "Contorno"};

/// Toggles the element; true when it is selected now.
bool toggle(Label& label) {
  const bool on = label.BackColor != colours::selected;
  label.BackColor = on ? colours::selected : colours::unselected;
  return on;
}

void toggleLines(MosaicControls& s) {
  const int style = toggle(s.lblComCol[0]) ? 1 : 0;
  for (int i = 1; i <= cellCount; ++i) s.lblMiro[i].BorderStyle = style;
}

void toggleDigits(MosaicControls& s) {
  const bool on = toggle(s.lblComCol[1]);
  s.lblVoceOpzioni[2].Caption = on ? "Y" : "N";
  for (int i = 1; i <= cellCount; ++i)
    s.lblMiro[i].Caption = on ? s.lblMiro2[i].Caption : std::string();
}

void stepContour(MosaicControls& s) {
  Label& width = s.lblComCol[2];
  width.BackColor = colours::pressed;
  width.Caption = width.Caption == "7" ? "0" : text(number(s, width) + 1);
  showContour(s);
}

void stepPaletteMode(MosaicControls& s) {
  Label& mode = s.lblComCol[3];
  mode.BackColor = colours::pressed;
  for (std::size_t i = 0; i < paletteModes.size(); ++i)
    if (mode.Caption == paletteModes[i]) {
      mode.Caption = paletteModes[(i + 1) % paletteModes.size()];
      return;
    }
}

void toggleRectangles(MosaicControls& s) {
  const bool on = toggle(s.lblComCol[4]);
  s.lblComCol[4].Caption = on ? "1" : "R";
  s.ShpRettangolo.Visible = on;
}

}  // namespace

void showContour(MosaicControls& s) {
  s.ShpContour.Visible = s.lblComCol[2].Caption != "0";
  if (s.ShpContour.Visible)
    s.ShpContour.BorderWidth = static_cast<std::int32_t>(number(s, s.lblComCol[2]));
}

void lblComCol_MouseDown(MosaicControls& s, int k) {
  switch (k) {
    case 0:
      return toggleLines(s);
    case 1:
      return toggleDigits(s);
    case 2:
      return stepContour(s);
    case 3:
      return stepPaletteMode(s);
    case 4:
      return toggleRectangles(s);
    case 6:
      s.lblComCol[6].BackColor = colours::pressed;
      return;
    case 7:
    case 8:
      toggle(s.lblComCol[k]);
      return;
    default:
      return;
  }
}

void lblComCol_MouseUp(MosaicControls& s, int k) {
  if (k == 2 || k == 3 || k == 6) s.lblComCol[k].BackColor = colours::unselected;
}

void FotografaStato(MosaicControls& s) {
  // Stays lit until Back is next released: a sign that there is a point to return to.
  s.lblBack.BackColor = colours::pressed;
  for (int k = 0; k <= 6; ++k) {
    copyCell(s.lblValoreC[k], s.lblValore[k]);
    s.lblTavC[k].Caption = s.lblTav[k].Caption;
  }
  copyCell(s.lblCopia[1], s.lblValAttivo);
  s.lblCopia[2].Caption = s.lblNumAttivo.Caption;
  s.lblCopia[3].Caption = s.lblSfondoMem.Caption;
  s.lblCopia[4].Caption = s.lblSfondoAttivo.Caption;
  for (int i = 1; i <= cellCount; ++i) copyCell(s.lblMiro2[cellCount + i], s.lblMiro2[i]);
  for (int i = 0; i <= 24; ++i) copyColours(s.lblTotaliC[i], s.lblTotali[i]);
}

void lblBack_MouseDown(MosaicControls& s) {
  s.lblBack.BackColor = colours::pressed;
  for (int k = 0; k <= 6; ++k) {
    copyCell(s.lblValore[k], s.lblValoreC[k]);
    s.lblTav[k].Caption = s.lblTavC[k].Caption;
    copyColours(s.lblSfondo[k], s.lblValoreC[k]);
  }
  // Swatch 101, black, keeps its mark: the count ends at 100, and stays so.
  for (int i = 1; i <= 100; ++i) s.lblColore[i].BorderStyle = 0;
  for (int k = 0; k <= 6; ++k) {
    s.lblColore[number(s, s.lblTav[k])].BorderStyle = 1;
    s.lblValore[k].BorderStyle = 0;
    s.lblSfondo[k].BorderStyle = 0;
  }
  copyCell(s.lblValAttivo, s.lblCopia[1]);
  s.lblNumAttivo.Caption = s.lblCopia[2].Caption;
  s.lblSfondoMem.Caption = s.lblCopia[3].Caption;
  s.lblSfondoAttivo.Caption = s.lblCopia[4].Caption;
  s.lblValore[number(s, s.lblValAttivo)].BorderStyle = 1;
  s.lblSfondo[number(s, s.lblSfondoAttivo)].BorderStyle = 1;
  for (int i = 1; i <= cellCount; ++i) {
    copyCell(s.lblMiro2[i], s.lblMiro2[cellCount + i]);
    RipristinaCella(s, i);
  }
  for (int i = 0; i <= 24; ++i) copyColours(s.lblTotali[i], s.lblTotaliC[i]);
}

void lblBack_MouseUp(MosaicControls& s) {
  s.lblBack.BackColor = colours::unselected;
}

}  // namespace caleidoscopio
