#include "panel/scaling.h"

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

void scaleToScreen(const Control& window, std::span<const Spot> spots, ScreenSize screen) {
  if (screen.width == designSize.width && screen.height == designSize.height) return;
  const ScreenFit fit = fitTo(screen);
  window.geometry().Width = {screen.width};
  window.geometry().Height = {screen.height};
  for (const Spot& spot : spots) {
    Geometry& g = spot.element.control->geometry(spot.element.index);
    g.Height = g.Height * fit.height;
    g.Top = g.Top * fit.height;
    if (spot.withField) g.Left = g.Left + Twips{fit.offset};
    if (fit.width != 1) {
      g.Left = g.Left * fit.width;
      g.Width = g.Width * fit.width;
    }
    g.FontSize.value *= fit.font;
  }
}

}  // namespace caleidoscopio
