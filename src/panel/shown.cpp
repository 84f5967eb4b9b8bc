#include "panel/shown.h"

namespace caleidoscopio {

namespace {

constexpr std::size_t longest = 80;

bool isControl(unsigned char byte) {
  return byte < 0x20 || byte == 0x7F;
}
bool goesOnALetter(unsigned char byte) {
  return (byte & 0xC0) == 0x80;
}

}  // namespace

std::string shown(std::string_view value) {
  std::size_t length = value.size();
  if (length > longest) {
    length = longest;
    // Back to where a letter of several bytes began.
    for (int i = 0; i < 3 && goesOnALetter(static_cast<unsigned char>(value[length])); ++i)
      --length;
  }
  constexpr char digits[] = "0123456789ABCDEF";
  std::string text;
  for (const char c : value.substr(0, length)) {
    const auto byte = static_cast<unsigned char>(c);
    if (isControl(byte)) {
      text += "\\x";
      text += digits[byte / 16];
      text += digits[byte % 16];
    } else {
      text += c;
    }
  }
  if (length < value.size()) text += "...";
  return text;
}

}  // namespace caleidoscopio
