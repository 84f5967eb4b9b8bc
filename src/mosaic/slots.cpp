#include "mosaic/slots.h"

#include <array>
#include <cstddef>

#include "mosaic/cells.h"
#include "mosaic/random_pick.h"
#include "panel/numbers.h"

namespace caleidoscopio {

namespace {

/// After "6" comes "0".
void stepDigit(const MosaicControls& s, Label& slot) {
  slot.Caption = slot.Caption == "6" ? "0" : text(number(s, slot) + 1);
}

void takeColours(MosaicControls& s, std::int64_t slot, const Frame& from) {
  copyColours(s.lblValore[slot], from);
  copyColours(s.lblSfondo[slot], from);
}

void recolourCell(MosaicControls& s, int j, const Frame& from) {
  copyColours(s.lblMiro[j], from);
  copyColours(s.lblMiro2[j], from);
}

/// The active slot takes a colour that no slot uses.
void takeFreeSwatch(MosaicControls& s, int i) {
  const Number active = number(s, s.lblValAttivo);
  copyColours(s.lblMemoCol, s.lblValAttivo);
  s.lblColore[number(s, s.lblTav[active])].BorderStyle = 0;
  s.lblColore[i].BorderStyle = 1;
  copyColours(s.lblValAttivo, s.lblColore[i]);
  takeColours(s, active, s.lblValAttivo);
  s.lblTav[active].Caption = text(i);

  const Colour old = s.lblMemoCol.BackColor;
  const Label& fresh = s.lblValore[active];
  for (int j = 0; j <= 24; ++j)
    if (s.lblTotali[j].BackColor == old) copyColours(s.lblTotali[j], fresh);
  for (int j = 1; j <= cellCount; ++j)
    if (s.lblMiro[j].BackColor == old) recolourCell(s, j, fresh);
}

void swapInMatrix(MosaicControls& s, const Label& swatch) {
  const Colour old = s.lblMemoCol.BackColor;
  for (int j = 0; j <= 24; ++j) {
    if (s.lblTotali[j].BackColor == old) copyColours(s.lblTot[j], swatch);
    if (s.lblTotali[j].BackColor == swatch.BackColor) copyColours(s.lblTotali[j], s.lblMemoCol);
  }
  // Colours are compared, not marks: with a white swatch every resting mark is taken for one, and
  // the whole matrix turns white. It is meant to stay so.
  for (int j = 0; j <= 24; ++j)
    if (s.lblTot[j].BackColor == swatch.BackColor) copyColours(s.lblTotali[j], s.lblTot[j]);
  for (int j = 0; j <= 24; ++j) {
    s.lblTot[j].BackColor = colours::unselected;
    s.lblTot[j].ForeColor = colours::black;
  }
}

/// The active slot takes a colour that another slot uses, and that slot the active one's.
void tradeSwatch(MosaicControls& s, int i) {
  const Number active = number(s, s.lblValAttivo);
  const Label& swatch = s.lblColore[i];
  copyColours(s.lblMemoCol, s.lblValAttivo);
  int other = 0;
  while (other <= 6 && s.lblSfondo[other].BackColor != swatch.BackColor) ++other;

  takeColours(s, other, s.lblMemoCol);
  s.lblTav[other].Caption = s.lblTav[active].Caption;
  s.lblTav[active].Caption = text(i);
  takeColours(s, active, swatch);
  copyColours(s.lblValAttivo, swatch);

  swapInMatrix(s, swatch);
  // Captions stay: a cell keeps its digit and changes colour until the next commit of the planes.
  for (int j = 1; j <= cellCount; ++j) {
    if (s.lblMiro[j].BackColor == s.lblValAttivo.BackColor)
      recolourCell(s, j, s.lblMemoCol);
    else if (s.lblMiro[j].BackColor == s.lblMemoCol.BackColor)
      recolourCell(s, j, s.lblValAttivo);
  }
}

}  // namespace

void lblValore_Click(MosaicControls& s, int k) {
  s.lblValAttivo.Caption = text(k);
  s.lblNumAttivo.Caption = s.lblValore[k].Caption;
  copyColours(s.lblValAttivo, s.lblValore[k]);
  for (int j = 0; j <= 6; ++j) s.lblValore[j].BorderStyle = 0;
  s.lblValore[k].BorderStyle = 1;
}

void lblColore_Click(MosaicControls& s, int i) {
  const std::string& mode = s.lblComCol[3].Caption;
  if (mode == "Disegno") {
    if (s.lblColore[i].BorderStyle == 0)
      takeFreeSwatch(s, i);
    else
      tradeSwatch(s, i);
  } else if (mode == "Sfondo") {
    s.form.BackColor = s.lblColore[i].BackColor;
  } else if (mode == "Titoli") {
    for (int heading : {7, 8, 9}) s.lblScritteVarie[heading].ForeColor = s.lblColore[i].BackColor;
  } else if (mode == "Contorno") {
    s.ShpContour.BorderColor = s.lblColore[i].BackColor;
  }
}

void lblPiù_MouseDown(MosaicControls& s, int k) {
  s.lblValClick.Caption = text(k);
  s.lblPiù[k].BackColor = colours::selected;
  s.TmrColori.setEnabled(true);
}

void TmrColori_Timer(MosaicControls& s) {
  stepDigit(s, s.lblValore[number(s, s.lblValClick)]);
  s.lblNumAttivo.Caption = s.lblValore[number(s, s.lblValAttivo)].Caption;
}

void lblPiù_MouseUp(MosaicControls& s, int k) {
  s.lblPiù[k].BackColor = colours::unselected;
  s.TmrColori.setEnabled(false);
}

void lblPiù_Click(MosaicControls& s, int k) {
  stepDigit(s, s.lblValore[k]);
  lblValore_Click(s, k);
  const Colour active = s.lblValAttivo.BackColor;
  const std::string& digit = s.lblValore[k].Caption;
  for (int j = 0; j <= 24; ++j)
    if (s.lblTotali[j].BackColor == active) s.lblTot[j].Caption = digit;
  for (int j = 1; j <= cellCount; ++j) {
    if (s.lblMiro[j].BackColor != active) continue;
    s.lblMiro2[j].Caption = digit;
    if (showsDigits(s)) s.lblMiro[j].Caption = digit;
  }
}

void lblTotali_Click(MosaicControls& s, int i) {
  copyColours(s.lblTotali[i], s.lblValAttivo);
  s.lblTot[i].Caption = s.lblNumAttivo.Caption;
}

void PaletteCasuale(MosaicControls& s) {
  for (int i = 1; i <= 101; ++i) s.lblColore[i].BorderStyle = 0;
  std::array<std::int64_t, 7> drawn{};
  std::size_t found = 0;
  for (int round = 0; round < 1000 && found < drawn.size(); ++round) {
    const std::int64_t p = CasualeMinuti(s, 101);
    if (s.lblColore[p].BorderStyle != 0) continue;
    s.lblColore[p].BorderStyle = 1;
    drawn[found++] = p;
  }
  for (int k = 0; k <= 6; ++k) {
    const std::int64_t p = drawn[static_cast<std::size_t>(k)];
    const Label& swatch = s.lblColore[p];
    s.lblTavB[k].Caption = s.lblTavC[k].Caption = text(p);
    s.lblValoreB[k].Caption = s.lblValoreC[k].Caption = s.lblValore[k].Caption;
    copyColours(s.lblValoreB[k], swatch);
    copyColours(s.lblValoreC[k], swatch);
    s.lblTav[k].Caption = text(p);
    takeColours(s, k, swatch);
  }
}

}  // namespace caleidoscopio
