#pragma once

#include "panel/panel_controls.h"

namespace caleidoscopio {

/// The field, the colour slots with the palette, and the drawing tools.
struct MosaicControls : virtual PanelControls {
  static constexpr Colour firstGround{0xC0C000};
  static constexpr Colour systemFace = colours::idle;

  Group fieldGroup;
  /// The display plane, 1 to 441; element 0 is spare and never shown.
  Labels<0, 441> lblMiro{fieldGroup, "lblMiro", Back{firstGround}};
  /// The design plane, 1 to 441, and the picture as it stood at the last Go, 442 to 882.
  Labels<0, 882> lblMiro2{fieldGroup, "lblMiro2", Caption{"0"}};
  /// (2) "Y" when cells show their digits, else "N"; (3) never changes.
  Labels<2, 3> lblVoceOpzioni{fieldGroup, "lblVoceOpzioni", Captions{2, {"N", "S"}}};
  OneLabel lblIndex{fieldGroup, "lblIndex", Caption{"0"}};
  OneLabel lblMemC{fieldGroup, "lblMemC"};
  Labels<0, 9> lblMemory{fieldGroup, "lblMemory", Caption{"0"}};

  /// One of the seven colours that the slots come up with.
  struct SlotDefault {
    std::string_view digit;
    Colour back, fore;
    std::string_view swatch;
  };
  static constexpr SlotDefault slotDefaults[7] = {
      {"0", {0xC0C000}, {0x000000}, "55"}, {"1", {0x00FFFF}, {0x000000}, "22"},
      {"2", {0x0080FF}, {0x000000}, "14"}, {"3", {0x0000FF}, {0x000000}, "6"},
      {"4", {0xFF00FF}, {0x000000}, "86"}, {"5", {0xFF0080}, {0xFFFFFF}, "78"},
      {"6", {0xFF0000}, {0xFFFFFF}, "70"}};
  struct SlotColours {
    void apply(Frame& f, int i) const {
      if (i > 6) return;
      f.BackColor = slotDefaults[i].back;
      f.ForeColor = slotDefaults[i].fore;
    }
  };
  struct SlotDigits {
    void apply(Frame& f, int i) const {
      if (i <= 6) f.Caption = slotDefaults[i].digit;
    }
  };
  struct SlotSwatches {
    void apply(Frame& f, int i) const {
      if (i <= 6) f.Caption = slotDefaults[i].swatch;
    }
  };
  /// The palette: colour, ink, and the border of those that a slot uses.
  struct PaletteColours {
    void apply(Frame& f, int i) const;
  };

  Group slotGroup;
  // Element 7 is no slot: a search that finds nothing ends on it, and what is written to it then
  // does no harm.
  Labels<0, 7> lblValore{slotGroup, "lblValore", SlotDigits{}, SlotColours{}, BorderAt{{3}}};
  Labels<0, 7> lblSfondo{slotGroup, "lblSfondo", Caption{"*"}, SlotColours{}, BorderAt{{0}}};
  Labels<0, 7> lblTav{slotGroup, "lblTav", SlotSwatches{}};
  Labels<0, 6> lblPiù{slotGroup, "lblPiù", Caption{">"}};
  Labels<0, 6> lblValoreB{slotGroup, "lblValoreB", SlotDigits{}, SlotColours{}};
  Labels<0, 6> lblTavB{slotGroup, "lblTavB", SlotSwatches{}};
  Labels<0, 6> lblValoreC{slotGroup, "lblValoreC", SlotDigits{}, SlotColours{}};
  Labels<0, 6> lblTavC{slotGroup, "lblTavC", SlotSwatches{}};
  /// Swatches 1 to 104; element 0 is white and never used.
  Labels<0, 104> lblColore{slotGroup, "lblColore", PaletteColours{}};
  Labels<0, 24> lblTotali{slotGroup, "lblTotali", Back{firstGround}};
  Labels<0, 24> lblTot{slotGroup, "lblTot", Caption{"0"}};
  Labels<0, 24> lblTotaliC{slotGroup, "lblTotaliC", Back{firstGround}};
  OneLabel lblValAttivo{slotGroup, "lblValAttivo", Caption{"3"}, Back{{0x0000FF}}};
  OneLabel lblNumAttivo{slotGroup, "lblNumAttivo", Caption{"3"}};
  OneLabel lblSfondoAttivo{slotGroup, "lblSfondoAttivo", Caption{"0"}};
  OneLabel lblSfondoMem{slotGroup, "lblSfondoMem", Caption{"0"}};
  OneLabel lblMemoCol{slotGroup, "lblMemoCol"};
  OneLabel lblValClick{slotGroup, "lblValClick"};

  Group toolGroup;
  Labels<0, 3> lblSelSfondo{toolGroup, "lblSelSfondo",
                            Captions{0, {"Quadro", "Cornice", "Tutto", "1"}},
                            BackAt{{1}, colours::selected}};
  OneLabel lblClickSfondo{toolGroup, "lblClickSfondo", Caption{"0"}};
  Labels<0, 8> lblComCol{
      toolGroup, "lblComCol",
      Captions{0, {"L", "N", "2", "Disegno", "R", "1", "Crea", "Canc.", "Modif."}},
      BackAt{{7}, colours::selected}};
  Labels<1, 4> lblCopia{toolGroup, "lblCopia"};
  OneLabel lblBack{toolGroup, "lblBack", Caption{"Back"}};
  OneLabel lblProva{toolGroup, "lblProva"};
  OneLabel lblProva1{toolGroup, "lblProva1"};
  OneLabel lblProva2{toolGroup, "lblProva2"};
  OneLabel Label3{toolGroup, "Label3", Caption{"Mostra Miro2"}, Hidden{}};
  OneLabel Label7{toolGroup, "Label7", Hidden{}};
  OneLabel Command1{toolGroup, "Command1", Back{systemFace}, Hidden{}};
  OneLabel cmdDisegnaRettangoli2{toolGroup, "cmdDisegnaRettangoli2", Back{systemFace}, Hidden{}};
};

}  // namespace caleidoscopio
