#include "panel/scaling.h"

#include "panel/geometry.h"

namespace caleidoscopio {

ScreenFit fitTo(ScreenSize screen) {
  ScreenFit fit;
  if (screen.width == 20490 && screen.height == 11520)
    fit.offset = (screen.width - designSize.width) / 2;
  else
    fit.width = screen.width / designSize.width;
  fit.height = screen.height / designSize.height;
  fit.font = screen.height == designSize.height ? 1 : screen.height / 16000;
  return fit;
}

void scaleToScreen(Frame& window, std::span<const Spot> spots, ScreenSize screen) {
  if (screen.width == designSize.width && screen.height == designSize.height) return;
  const ScreenFit fit = fitTo(screen);
  window.Width = {screen.width};
  window.Height = {screen.height};
  for (const Spot& spot : spots) {
    const Geometry g = geometryOf(spot.element);
    g.height = g.height * fit.height;
    g.top = g.top * fit.height;
    if (spot.withField) g.left = g.left + Twips{fit.offset};
    if (fit.width != 1) {
      g.left = g.left * fit.width;
      g.width = g.width * fit.width;
    }
    if (g.font) g.font->value *= fit.font;
  }
}

}  // namespace caleidoscopio
