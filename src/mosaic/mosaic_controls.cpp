#include "mosaic/mosaic_controls.h"

#include "mosaic/palette.h"

namespace caleidoscopio {

void MosaicControls::PaletteColours::apply(Frame& f, int i) const {
  f.BackColor = palette[static_cast<std::size_t>(i)].colour;
  f.ForeColor = palette[static_cast<std::size_t>(i)].ink;
  for (const SlotDefault& slot : slotDefaults)
    if (slot.swatch == std::to_string(i)) f.BorderStyle = 1;
}

}  // namespace caleidoscopio
