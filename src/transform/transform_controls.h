#pragma once

#include "colours/colour_controls.h"

namespace caleidoscopio {

/// Timer B: the choice of a drawing mode, and what each of the six modes holds.
struct TransformControls : virtual ColourControls {
  static constexpr Colour freePlace{0xE3FEFF};  ///< marks a free place in the census of Aggrega

  Group transformGroup;
  Labels<0, 12> lblTransf{
      transformGroup, "lblTransf",
      Captions{0, {"1", "1", "2", "3", "4", "5", "6", "6", "6", "3", "5", "11", "12"}},
      BackAt{{1}, colours::selected}, HiddenAt{{0, 7}}};
  Labels<1, 12> lblInterv{
      transformGroup, "lblInterv",
      Captions{1,
               {"1000", "200", "50", "100", "80", "200", "70", "100", "80", "80", "1000", "1000"}}};
  Labels<0, 11> lblCrea{
      transformGroup, "lblCrea",
      Captions{0, {"0", "10", "10", "0", "0", "0", "0", "R", "M", "10", "X", "5"}},
      BackAt{{0}, colours::pressed}, BackAt{{8, 10}, colours::selected}};
  OneLabel lblAngoli{transformGroup, "lblAngoli", Caption{"Rnd"}};
  Labels<0, 21> lblAngolo{transformGroup, "lblAngolo", Caption{"0"}, Captions{19, {"3", "4", "4"}},
                          BackAt{{18}, colours::selected}};
  OneLabel lblColSCelto{transformGroup, "lblColSCelto", Caption{"4"},
                        Back{MosaicControls::slotDefaults[4].back}};
  Labels<1, 8> lblLung{transformGroup, "lblLung", Numbered{1, 8},
                       BackAt{{1, 4, 7}, colours::selected}};
  Labels<0, 8> lblLunghez{transformGroup, "lblLunghez",
                          Captions{0, {"3", "1", "4", "7", "0", "0", "0", "0", "0"}}};
  OneLabel lblColNumber{transformGroup, "lblColNumber", Caption{"4"}};
  OneLabel lblCasel{transformGroup, "lblCasel", Caption{"1"}};
  OneLabel lblCarat{transformGroup, "lblCarat"};
  OneLabel lblCarat2{transformGroup, "lblCarat2"};
  OneLabel lblProvaCambioCol{transformGroup, "lblProvaCambioCol"};
  OneLabel lblDirezione{transformGroup, "lblDirezione"};
  OneLabel lblLungh{transformGroup, "lblLungh", Caption{"0"}};
  Labels<1, 5> lblDirez{transformGroup, "lblDirez", Captions{1, {"-36", "4", "36", "-4"}}};
  // The list of neighbours is that of another place than the tracer's; the first tick works from
  // it all the same.
  Labels<0, 5> lblSuccessive{transformGroup, "lblSuccessive",
                             Captions{0, {"4", "29", "69", "101", "61"}}};
  Labels<1, 4> lblDirezB{transformGroup, "lblDirezB"};
  Labels<1, 4> lblSuccessiveB{transformGroup, "lblSuccessiveB"};
  OneLabel lblCasScelta{transformGroup, "lblCasScelta", Caption{"161"}};
  OneLabel lblColTraccia{transformGroup, "lblColTraccia"};
  OneLabel lblRndColor{transformGroup, "lblRndColor"};
  OneLabel lblRndPoss{transformGroup, "lblRndPoss"};
  OneLabel lblRisistema{transformGroup, "lblRisistema", Caption{"0"}};
  Labels<0, 5> lblMinMax{transformGroup, "lblMinMax", Captions{0, {"3"}}, Numbered{1, 5},
                         BackAt{{3}, colours::selected}};
  Labels<0, 6> lblAggrega{transformGroup, "lblAggrega", Caption{"0"}, Back{freePlace}};
  Labels<0, 6> lblCap{transformGroup, "lblCap", Caption{"0"}};
  OneLabel lblAgg2{transformGroup, "lblAgg2", Caption{"1"}};
  OneLabel lblContaAg{transformGroup, "lblContaAg", Caption{"0"}};
  OneLabel lblNRandom{transformGroup, "lblNRandom"};
  Labels<0, 1> lblOpzAggrega{transformGroup, "lblOpzAggrega", Captions{0, {"Random", "Casuale"}}};
  OneLabel lblNScambi{transformGroup, "lblNScambi", Caption{"12"}};
  Labels<1, 82> lblSceltaN{transformGroup, "lblSceltaN", Numbered{1, 81, 4, -3}};
  OneLabel lblRimaste{transformGroup, "lblRimaste", Caption{"81"}};
  OneLabel lblCountScelte{transformGroup, "lblCountScelte", Caption{"0"}};
  OneLabel lblRndCasella{transformGroup, "lblRndCasella"};
  Labels<1, 24> lblScelta{transformGroup, "lblScelta"};
  // Three holders without an engine, kept because a memory holds them.
  OneLabel lblFase{transformGroup, "lblFase", Caption{"1"}};
  OneLabel lblSquareOpz{transformGroup, "lblSquareOpz"};
  OneLabel lblColSq{transformGroup, "lblColSq", Caption{"7"}};
};

}  // namespace caleidoscopio
