#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "panel/control_list.h"

namespace caleidoscopio {

/// A run of lines in a file of values: for i from first to last, each of the fields in turn. A
/// field names a property, its index written as a number or as `i`.
struct RecordRun {
  int first, last;
  std::vector<std::string_view> fields;
};

/// The list of properties that a file holds, one a line. Reader and writer both walk it.
class Record {
 public:
  struct Line {
    std::string name;  ///< `lblVelo(1).Caption`
    Value value;
  };

  /// Every field must name a property of the list.
  Record(const ControlList& controls, std::span<const RecordRun> runs);

  const std::vector<Line>& lines() const { return lines_; }

  /// The file's text: one value a line, ended by carriage return and line feed.
  std::string write() const;
  /// Writes each line of `text` into its property, in order. The first line that is missing or of
  /// the wrong kind ends the run with `file`, the line, the property, what was found and what was
  /// expected. What stands after the last line is not read.
  void read(std::string_view text, const std::string& file) const;

 private:
  std::vector<Line> lines_;
};

/// The 1,869 lines of a memory.
std::span<const RecordRun> memoryRuns();
/// The 231 lines of the list of names.
std::span<const RecordRun> nameRuns();

}  // namespace caleidoscopio
