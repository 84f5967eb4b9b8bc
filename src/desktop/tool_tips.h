#pragma once

#include <QString>

#include "panel/control_list.h"

namespace caleidoscopio {

/// What a click on the element does, or what it shows, in Italian; empty where nothing is to say.
QString toolTipOf(Element element);

}  // namespace caleidoscopio
