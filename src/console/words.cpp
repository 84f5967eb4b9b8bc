#include "console/words.h"

#include <charconv>
#include <cstdlib>
#include <optional>
#include <string>

#include "console/fault.h"
#include "panel/properties.h"

namespace caleidoscopio::console {

namespace {

constexpr std::string_view blanks = " \t";

[[noreturn]] void malformed(std::string_view found, const std::string& expected) {
  throw ScriptFault("found '" + std::string(found) + "'; expected " + expected);
}

template <class T>
std::optional<T> parsed(std::string_view word) {
  T number{};
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
  if (error != std::errc() || end != word.data() + word.size()) return std::nullopt;
  return number;
}

template <class T>
T orFault(const std::variant<T, std::string>& found) {
  if (const auto* why = std::get_if<std::string>(&found)) throw ScriptFault(*why);
  return std::get<T>(found);
}

}  // namespace

Line::Line(std::string_view line) {
  std::size_t at = line.find_first_not_of(blanks);
  if (at == std::string_view::npos) return;
  std::size_t end = std::min(line.find_first_of(blanks, at), line.size());
  command = line.substr(at, end - at);
  if (end < line.size()) rest = line.substr(end + 1);
  while ((at = line.find_first_not_of(blanks, end)) != std::string_view::npos) {
    end = std::min(line.find_first_of(blanks, at), line.size());
    words.push_back(line.substr(at, end - at));
  }
}

std::int32_t wholeNumberFrom(std::string_view word) {
  const auto number = wholeNumber(word);
  if (!number) malformed(word, "a whole number of 32 bits");
  return *number;
}

std::int32_t wholeNumberFrom(std::string_view word, std::int32_t least, std::int32_t most) {
  const auto number = wholeNumber(word);
  if (!number || *number < least || *number > most)
    malformed(word, "a whole number from " + std::to_string(least) + " to " + std::to_string(most));
  return *number;
}

std::uint64_t millisecondsFrom(std::string_view word) {
  const auto ms = parsed<std::uint64_t>(word);
  if (!ms) malformed(word, "a number of milliseconds, 0 and up, of 64 bits");
  return *ms;
}

std::uint64_t seedFrom(std::string_view word) {
  if (const auto plain = parsed<std::uint64_t>(word)) return *plain;
  const auto negative = parsed<std::int64_t>(word);
  if (!negative) malformed(word, "a whole number of 64 bits");
  return static_cast<std::uint64_t>(*negative);
}

float drawFrom(std::string_view word) {
  const std::string text(word);
  const bool decimal = text.find_first_not_of("0123456789.eE+-") == std::string::npos &&
                       !text.empty() && text[0] != '-';
  // One rounding, straight to single precision; a number too small for it is 0.
  char* end = nullptr;
  const float r = decimal ? std::strtof(text.c_str(), &end) : -1;
  if (!decimal || *end != '\0' || end == text.c_str() || !(r >= 0 && r <= 1))
    malformed(word, "a draw from 0 to below 1");
  if (r == 1) malformed(word, "a draw that is below 1 in single precision");
  return r;
}

double lengthFrom(std::string_view word) {
  Twips length;
  if (assign(&length, word) || length.value <= 0) malformed(word, "a length in twips above 0");
  return length.value;
}

WallTime wallTimeFrom(std::string_view time, std::string_view year) {
  const auto part = [&](std::size_t at, int most) {
    const auto number = parsed<unsigned>(time.substr(at, 2));
    if (!number || static_cast<int>(*number) > most) malformed(time, "a time as HH:MM:SS");
    return static_cast<int>(*number);
  };
  if (time.size() != 8 || time[2] != ':' || time[5] != ':') malformed(time, "a time as HH:MM:SS");
  return {part(0, 23), part(3, 59), part(6, 59), wholeNumberFrom(year, 0, 9999)};
}

Element elementFrom(const ControlList& controls, const std::vector<std::string_view>& words) {
  // The bracket is the list's own way to write an index; here it is a word by itself.
  if (!controls.find(words[0])) throw ScriptFault("unknown control " + std::string(words[0]));
  std::string name(words[0]);
  if (words.size() > 1) name += "(" + std::string(words[1]) + ")";
  return orFault(controls.element(name));
}

Value propertyFrom(const ControlList& controls, std::string_view word) {
  return orFault(controls.property(word));
}

std::string_view quotedText(std::string_view written) {
  const std::size_t first = written.find_first_not_of(blanks);
  const std::size_t last = written.find_last_not_of(blanks);
  if (first == std::string_view::npos || first == last || written[first] != '"' ||
      written[last] != '"')
    malformed(written, "text between double quotes");
  return written.substr(first + 1, last - first - 1);
}

}  // namespace caleidoscopio::console
