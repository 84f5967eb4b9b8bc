#pragma once

#include "mosaic/index_map.h"
#include "mosaic/mosaic_controls.h"

namespace caleidoscopio {

/// True while the display plane carries digits.
inline bool showsDigits(const MosaicControls& s) {
  return s.lblVoceOpzioni[2].Caption == "Y";
}

/// BackColor and ForeColor. The two always travel as a pair, so that a digit stays legible, and
/// being read before either is written they travel in one move of the machine.
inline void copyColours(Frame& to, const Frame& from) {
  const Colour back = from.BackColor;
  const Colour fore = from.ForeColor;
  to.BackColor = back;
  to.ForeColor = fore;
}

/// The whole triple: Caption, BackColor, ForeColor.
inline void copyCell(Frame& to, const Frame& from) {
  to.Caption = from.Caption;
  copyColours(to, from);
}

/// The triple, its Caption only if `captions` says so: for engines that ask showsDigits() once and
/// not at each of many cells.
inline void copyIf(bool captions, Frame& to, const Frame& from) {
  if (captions) to.Caption = from.Caption;
  copyColours(to, from);
}

/// The triple, its Caption only while digits are shown.
inline void copyShown(const MosaicControls& s, Frame& to, const Frame& from) {
  copyIf(showsDigits(s), to, from);
}

/// Display cell i takes design cell i.
inline void RipristinaCella(MosaicControls& s, std::int64_t i) {
  copyShown(s, s.lblMiro[i], s.lblMiro2[i]);
}

/// Display cell i takes colour slot k.
inline void ScriviCella(MosaicControls& s, std::int64_t i, std::int64_t k) {
  copyShown(s, s.lblMiro[i], s.lblValore[k]);
}

/// Display cell b takes display cell a.
inline void CopiaCella(MosaicControls& s, std::int64_t a, std::int64_t b) {
  copyShown(s, s.lblMiro[b], s.lblMiro[a]);
}

/// Commits the display plane: the design plane takes its colours, and each design digit is derived
/// anew from the first slot that has the cell's colour. A colour in no slot leaves the digit. The
/// display's own captions are never read, so that the design is right whether they show or not.
void ConsolidaPiano(MosaicControls& s);

/// The same commit under the name by which the steps of shift and frame close with it.
inline void SincronizzaPiano(MosaicControls& s) {
  ConsolidaPiano(s);
}

/// Cell i of both planes takes the colours of `colours` and the digit `digit`; the display plane
/// its digit only while digits are shown. What every painting tool does with a cell.
void paintBothPlanes(MosaicControls& s, std::int64_t i, const Frame& colours,
                     const std::string& digit);

/// cmdDisegnaRettangoli2: looks for the first cell in which the planes differ and leaves its index
/// in lblProva1 and "C", "B" or "F" (caption, back, fore) in lblProva2; both empty when none does.
void cmdDisegnaRettangoli2_Click(MosaicControls& s);

/// Label3: shows or hides the frame of the design plane.
void Label3_Click(MosaicControls& s);

}  // namespace caleidoscopio
