#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "instrument.h"
#include "memories/record.h"
#include "panel/shown.h"
#include "support/seeded.h"

namespace caleidoscopio::test {

/// The two files that every start reads.
inline const std::string defaultFile = "Miro-Vel-Ta/Dati/Default.txt";
inline const std::string namesFile = "Miro-Vel-Ta/Dati/Memorie.txt";

inline std::string shippedText(const std::string& file) {
  std::ifstream in(SHARE + file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

/// What stands at the place of a line, for each type of value.
enum class Holds { Text, Number, Flag };

struct ShippedLine {
  std::string name;  ///< `lblVelo(1).Caption`
  Holds holds;
  std::size_t at, end;  ///< in the file, without the line's end
};

/// A file that came with the instrument, and what each of its lines is.
struct ShippedFile {
  ShippedFile(const std::string& file, std::span<const RecordRun> runs)
      : path(file), text(shippedText(file)) {
    SeededRig rig(1);
    std::size_t at = 0;
    const Record record(rig.s.controls, runs);
    for (const Record::Line& line : record.lines()) {
      const std::size_t end = text.find("\r\n", at);
      const bool flag = std::holds_alternative<bool*>(line.value);
      lines.push_back({line.name,
                       isText(line.value) ? Holds::Text
                       : flag             ? Holds::Flag
                                          : Holds::Number,
                       at, end});
      at = end + 2;
    }
    if (at != text.size()) throw std::runtime_error(file + " has other lines than its record");
  }

  std::string path;
  std::string text;
  std::vector<ShippedLine> lines;
};

inline const ShippedFile& defaultMemory() {
  static const ShippedFile file(defaultFile, memoryRuns());
  return file;
}
inline const ShippedFile& namesList() {
  static const ShippedFile file(namesFile, nameRuns());
  return file;
}

/// Every line where the build is fast, every fifth where it looks closely.
#ifdef NDEBUG
inline constexpr std::size_t stride = 1;
#else
inline constexpr std::size_t stride = 5;
#endif

/// How a run with a damaged file went.
struct Run {
  bool started = false;
  std::string end;  ///< why it ended; empty when it went on
};

/// Starts with `text` in the place of a shipped file and, where that goes well, lets the picture
/// move, first as the memory has it and then with every timer in.
inline Run runWith(const ShippedFile& damaged, const std::string& text) {
  SeededRig rig(1);
  rig.files.files = {{defaultFile, defaultMemory().text}, {namesFile, namesList().text}};
  rig.files.files[damaged.path] = text;
  const auto before = rig.files.files;
  Run run;
  try {
    rig.instrument.start();
    run.started = true;
    rig.s.time.advance(1500);
    for (int t = 0; t <= 5; ++t)
      if (rig.s.cmdOnOff[t].BackColor != colours::running) click(rig.s.cmdOnOff, t);
    rig.s.time.advance(1500);
  } catch (const RunEnded& end) {
    run.end = end.what();
  }
  EXPECT_TRUE(rig.files.files == before) << "a file was written";
  return run;
}

}  // namespace caleidoscopio::test
