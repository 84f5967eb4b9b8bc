#include "memories/record.h"

#include <cassert>
#include <cstddef>

#include "panel/end_run.h"
#include "panel/shown.h"

namespace caleidoscopio {

namespace {

std::string withIndex(std::string_view field, int index) {
  std::string name(field);
  if (const auto at = name.find("(i)"); at != std::string::npos)
    name.replace(at + 1, 1, std::to_string(index));
  return name;
}

/// Takes the next line off `rest`; a carriage return before the line feed belongs to the end.
std::string_view takeLine(std::string_view& rest) {
  const std::size_t end = rest.find('\n');
  std::string_view line = rest.substr(0, end);
  rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

std::string_view withoutQuotes(std::string_view line) {
  if (line.size() < 2 || !line.starts_with('"') || !line.ends_with('"')) return line;
  return line.substr(1, line.size() - 2);
}

bool isFlag(const Value& value) {
  return std::holds_alternative<bool*>(value) || std::holds_alternative<EnabledOf>(value);
}

}  // namespace

Record::Record(const ControlList& controls, std::span<const RecordRun> runs) {
  for (const RecordRun& run : runs)
    for (int i = run.first; i <= run.last; ++i)
      for (const std::string_view field : run.fields) {
        std::string name = withIndex(field, i);
        const auto found = controls.property(name);
        assert(std::holds_alternative<Value>(found) && "every field names a property");
        lines_.push_back({std::move(name), std::get<Value>(found)});
      }
}

std::string Record::write() const {
  std::string text;
  for (const Line& line : lines_) text += toText(line.value) + "\r\n";
  return text;
}

void Record::read(std::string_view text, const std::string& file) const {
  std::size_t number = 0;
  for (const Line& line : lines_) {
    ++number;
    const auto fault = [&](const std::string& what) {
      endRun(file + ", line " + std::to_string(number) + ", " + line.name + ": " + what);
    };
    if (text.empty())
      fault("the file ends here; expected " + std::to_string(lines_.size()) + " lines");
    const std::string_view written = takeLine(text);
    // A number may stand in quotes; a flag may not.
    const std::string_view value = isFlag(line.value) ? written : withoutQuotes(written);
    if (const auto expected = assign(line.value, value))
      fault("found '" + shown(written) + "'; expected " + std::string(*expected));
  }
}

}  // namespace caleidoscopio
