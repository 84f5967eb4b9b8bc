#pragma once

#include <string>
#include <string_view>

namespace caleidoscopio {

/// A value as a message shows it. What came from a file can hold anything: a byte that a terminal
/// would obey, or that is no part of a letter in UTF-8, is written as \x1B, and of a long value
/// only the beginning is shown, with `...`.
std::string shown(std::string_view value);

}  // namespace caleidoscopio
