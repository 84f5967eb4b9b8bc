#pragma once

#include <optional>

#include "memories/record.h"
#include "mosaic/mosaic_controls.h"

namespace caleidoscopio {

/// The bank of memories with its names.
struct MemoryControls : virtual MosaicControls {
  // The two lists of properties, found by name when first needed.
  std::optional<Record> memoryRecord;
  std::optional<Record> nameRecord;

  Group memoryGroup;
  /// 0 to 9 the bank shown, (10) the one last clicked, 11 to 15 the presets.
  Labels<0, 15> lblSave{memoryGroup, "lblSave", Numbered{0, 9},
                        Captions{11, {"A", "B", "C", "D", "E"}}};
  Labels<0, 2> lblMemo{memoryGroup, "lblMemo", Captions{0, {"0", "-", "+"}},
                       BackAt{{1, 2}, colours::idle}};
  OneLabel lblSelez{memoryGroup, "lblSelez", Caption{"A"}};
  OneLabel lblNomefile{memoryGroup, "lblNomefile", Caption{"Default"}};
  /// The titles: 0 to 99, 100 the default, 101 to 105 the presets; 106 is spare.
  Labels<0, 106> lblComb{
      memoryGroup, "lblComb", Captions{0, {"Ciccio"}}, Captions{5, {"Pippo"}},
      Captions{100, {"Default", "Preset A", "Preset B", "Preset C", "Preset D", "Preset E"}}};
  OneLabel lblCanc{memoryGroup, "lblCanc", Caption{"Canc"}};
  Labels<0, 2> lblComandiVari{memoryGroup, "lblComandiVari", Captions{0, {"Load", "Save", "Esc"}}};
  Labels<0, 1> lblSalvaComb{memoryGroup, "lblSalvaComb", Captions{0, {"Ok", "Annulla"}}};
  OneLabel lblAvvertimento{memoryGroup, "lblAvvertimento", Caption{"...alla prossima!"}, Hidden{}};
};

}  // namespace caleidoscopio
