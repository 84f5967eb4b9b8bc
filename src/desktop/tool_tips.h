#pragma once

#include <QString>

#include "instrument.h"

namespace caleidoscopio {

/// What a click on the element does, or what it shows, in Italian; the title of a memory on its
/// button; empty where nothing is to say.
QString toolTipOf(const Store& s, Element element);

/// The title of the memory that a button or a line of the list stands for, or null for anything
/// else: what of a tip depends on the store's state.
const std::string* titleUnder(const Store& s, Element element);

}  // namespace caleidoscopio
