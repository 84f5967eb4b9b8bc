#pragma once

#include <span>

#include "panel/panel_controls.h"

namespace caleidoscopio {

/// The size for which the panels are drawn, in twips.
inline constexpr ScreenSize designSize{15360, 11520};

/// How the drawing is fitted to a screen.
struct ScreenFit {
  double offset = 0;  ///< added to what stands on the form, twips
  double width = 1;   ///< ratio of Left and Width
  double height = 1;  ///< ratio of Top and Height
  double font = 1;    ///< ratio of FontSize
};

/// The wide screen of 20490 by 11520 keeps the drawing's size and centres it; any other stretches
/// it both ways. Letters shrink more than controls on every screen but one as high as the
/// drawing: meant so.
ScreenFit fitTo(ScreenSize screen);

/// Where the sequencer's table stands while stopped: over the left side of the field.
inline constexpr double sequencerTableLeft = 2730;

/// Where a control that stands `designLeft` from the form's left edge comes to stand.
inline Twips placedLeft(const ScreenFit& fit, double designLeft) {
  return {fit.width != 1 ? designLeft * fit.width : fit.offset + designLeft};
}

/// Fits a window and every control placed on it to the screen; to be done once. On a screen of
/// the design's size nothing moves.
void scaleToScreen(const Control& window, std::span<const Spot> spots, ScreenSize screen);

}  // namespace caleidoscopio
