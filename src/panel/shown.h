#pragma once

#include <string>
#include <string_view>

namespace caleidoscopio {

/// A value as a message shows it. What came from a file can hold anything: bytes that a terminal
/// would obey are written as \x1B, and of a long value only the beginning is shown, with `...`.
std::string shown(std::string_view value);

}  // namespace caleidoscopio
