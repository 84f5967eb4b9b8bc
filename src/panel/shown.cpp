#include "panel/shown.h"

#include <algorithm>

namespace caleidoscopio {

namespace {

constexpr std::size_t longest = 80;

bool goesOnALetter(unsigned char byte) {
  return (byte & 0xC0) == 0x80;
}

/// How many bytes the letter has that the text begins with, in UTF-8; 0 if no letter does, or one
/// that a terminal would obey.
std::size_t letterAtBegin(std::string_view text) {
  const auto byte = [text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned char first = byte(0);
  if (first < 0x80) return first < 0x20 || first == 0x7F ? 0 : 1;
  if (first < 0xC2 || first > 0xF4) return 0;
  const std::size_t length = first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
  if (text.size() < length) return 0;
  for (std::size_t i = 1; i < length; ++i)
    if (!goesOnALetter(byte(i))) return 0;
  // Controls beyond ASCII, too long a form, half of a pair, beyond the last letter.
  const unsigned char second = byte(1);
  const bool none = (first == 0xC2 && second < 0xA0) || (first == 0xE0 && second < 0xA0) ||
                    (first == 0xED && second > 0x9F) || (first == 0xF0 && second < 0x90) ||
                    (first == 0xF4 && second > 0x8F);
  return none ? 0 : length;
}

}  // namespace

std::string shown(std::string_view value) {
  constexpr char digits[] = "0123456789ABCDEF";
  std::string text;
  for (std::size_t at = 0; at < value.size();) {
    const std::size_t letter = letterAtBegin(value.substr(at));
    if (at + std::max<std::size_t>(letter, 1) > longest) return text + "...";
    if (letter > 0) {
      text += value.substr(at, letter);
      at += letter;
      continue;
    }
    const auto byte = static_cast<unsigned char>(value[at++]);
    text += "\\x";
    text += digits[byte / 16];
    text += digits[byte % 16];
  }
  return text;
}

}  // namespace caleidoscopio
