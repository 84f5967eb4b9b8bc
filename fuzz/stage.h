#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "memories/record.h"
#include "support/seeded.h"

namespace caleidoscopio::fuzz {

using test::FilesInMemory;
using test::SeededRig;

inline const std::string defaultFile = "Miro-Vel-Ta/Dati/Default.txt";
inline const std::string namesFile = "Miro-Vel-Ta/Dati/Memorie.txt";

/// All files that ship, by their paths below the root.
inline const std::map<std::string, std::string>& shippedFiles() {
  static const auto files = [] {
    std::map<std::string, std::string> found;
    for (const char* folder : {"Miro-Vel-Ta/Dati", "Miro-Vel-Ta/Save"})
      for (const auto& entry : std::filesystem::directory_iterator(SHARE + std::string(folder))) {
        std::ifstream in(entry.path(), std::ios::binary);
        found[std::string(folder) + '/' + entry.path().filename().string()] =
            std::string(std::istreambuf_iterator<char>(in), {});
      }
    return found;
  }();
  return files;
}

/// Ends the process as a finding.
[[noreturn]] inline void finding(const std::string& what) {
  std::fprintf(stderr, "FINDING: %s\n", what.c_str());
  std::abort();
}

/// Runs `act`, which may end the run; the message must then be one line of plain text, and one
/// with one of the `ends` in it where there are any.
template <class Act>
bool lawful(Act act, std::span<const std::string_view> ends = {}) {
  try {
    act();
  } catch (const RunEnded& end) {
    const std::string_view message = end.what();
    if (message.empty()) finding("the run ended without a word");
    for (const char c : message)
      if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F)
        finding("a byte that a terminal obeys");
    if (!ends.empty() && std::none_of(ends.begin(), ends.end(), [&](std::string_view end) {
          return message.find(end) != std::string_view::npos;
        }))
      finding("an end that no rule knows: " + std::string(message));
    return false;
  }
  return true;
}

/// A file made of the input: after `=` the file itself; else each line of the input is a number, a
/// blank and what stands in the place of that line of `shipped`.
inline std::string fileFrom(std::string_view input, const std::string& shipped) {
  if (input.starts_with('=')) return std::string(input.substr(1));
  std::vector<std::string> lines;
  for (std::size_t at = 0; at < shipped.size();) {
    const std::size_t end = shipped.find("\r\n", at);
    lines.push_back(shipped.substr(at, end - at));
    at = end + 2;
  }
  while (!input.empty()) {
    const std::string_view line = input.substr(0, input.find('\n'));
    input.remove_prefix(std::min(line.size() + 1, input.size()));
    std::size_t number = 0, at = 0;
    for (; at < line.size() && at < 4 && line[at] >= '0' && line[at] <= '9'; ++at)
      number = number * 10 + static_cast<std::size_t>(line[at] - '0');
    if (number >= 1 && number <= lines.size())
      lines[number - 1] = line.substr(std::min(at + 1, line.size()));
  }
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return text;
}

/// Reads `text` as a file of values. What was read can be written, and comes back the same. False
/// where the reader refused it.
inline bool readsAndComesBack(std::span<const RecordRun> runs, const std::string& text) {
  static SeededRig rig(1);
  const Record record(rig.s.controls, runs);
  if (!lawful([&] { record.read(text, "file"); })) return false;
  const std::string once = record.write();
  if (!lawful([&] { record.read(once, "file"); })) finding("what was written is refused");
  if (record.write() != once) finding("what was written comes back otherwise");
  return true;
}

}  // namespace caleidoscopio::fuzz
