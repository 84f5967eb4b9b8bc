#pragma once

#include <cstdint>

#include "panel/panel_controls.h"

namespace caleidoscopio {

/// The one random pick, a whole number from 1 to n, each as likely as any other: one draw of the
/// generator, salted with minute and second of the wall clock. Ends the run, after its draw, when
/// n is below 1.
std::int64_t CasualeMinuti(PanelControls& s, std::int64_t n);

}  // namespace caleidoscopio
