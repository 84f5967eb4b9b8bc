#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "panel/control_list.h"
#include "panel/platform.h"

namespace caleidoscopio::console {

/// A line of the script in words, parted by blanks. They live as long as the line.
struct Line {
  explicit Line(std::string_view line);
  std::string_view command;             ///< empty on a line without words
  std::vector<std::string_view> words;  ///< what follows the command
  std::string_view rest;                ///< the same as it stands, without the one blank before it
};

// Each reads one word and throws a ScriptFault that says what was found and what was expected.

std::int32_t wholeNumberFrom(std::string_view word);
std::int32_t wholeNumberFrom(std::string_view word, std::int32_t least, std::int32_t most);
/// 0 and up, of 64 bits.
std::uint64_t millisecondsFrom(std::string_view word);
/// Any whole number of 64 bits; a negative one stands for the same bits without a sign.
std::uint64_t seedFrom(std::string_view word);
/// 0 <= r < 1 in single precision.
float drawFrom(std::string_view word);
/// A length above 0.
double lengthFrom(std::string_view word);
/// `HH:MM:SS` and a year.
WallTime wallTimeFrom(std::string_view time, std::string_view year);

/// The element that words name: the control, then its index where it is an array. Two words at
/// most.
Element elementFrom(const ControlList& controls, const std::vector<std::string_view>& words);
/// The property that a word names.
Value propertyFrom(const ControlList& controls, std::string_view word);
/// All between the first and the last double quote of `written`; nothing but blanks may stand
/// outside them.
std::string_view quotedText(std::string_view written);

}  // namespace caleidoscopio::console
