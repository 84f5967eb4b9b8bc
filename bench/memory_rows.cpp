#include <benchmark/benchmark.h>

#include <filesystem>
#include <memory>
#include <random>
#include <string_view>
#include <variant>

#include "field.h"
#include "memories/memory_files.h"
#include "panel/properties.h"
#include "platform/disk_files.h"
#include "rows.h"

namespace caleidoscopio::bench {

namespace {

std::string fileText(const std::string& path) {
  std::string why;
  return readFile(path, why).value_or("");
}

/// A folder that goes when the program ends.
struct Folder {
  Folder() { std::filesystem::create_directories(path + "/Miro-Vel-Ta/Save"); }
  ~Folder() { std::filesystem::remove_all(path); }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  std::string path = (std::filesystem::temp_directory_path() /
                      ("caleidoscopio-bench-" + std::to_string(std::random_device()())))
                         .string();
};

std::vector<std::string_view> split(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    std::string_view line = text.substr(0, end);
    if (line.ends_with('\r')) line.remove_suffix(1);
    lines.push_back(line);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  }
  return lines;
}

/// A line of a memory as a plain value.
using Plain = std::variant<std::string, std::int32_t, bool>;

std::vector<Plain> plainValues(std::string_view text) {
  std::vector<Plain> values;
  for (const std::string_view line : split(text))
    if (line.starts_with('"'))
      values.emplace_back(std::string(line.substr(1, line.size() - 2)));
    else if (line.starts_with('#'))
      values.emplace_back(line == "#TRUE#");
    else
      values.emplace_back(wholeNumber(line).value());
  return values;
}

std::string formatted(const std::vector<Plain>& values) {
  std::string text;
  for (const Plain& value : values) {
    if (const auto* words = std::get_if<std::string>(&value))
      text += '"' + *words + '"';
    else if (const auto* number = std::get_if<std::int32_t>(&value))
      text += std::to_string(*number);
    else
      text += std::get<bool>(value) ? "#TRUE#" : "#FALSE#";
    text += "\r\n";
  }
  return text;
}

struct Sides {
  Folder folder;
  DiskFiles files = DiskFiles::under(folder.path);
  Rig rig{files};
  BareField bare;
  std::string memory = folder.path + "/Miro-Vel-Ta/Save/0.txt";
  std::string bareMemory = "Miro-Vel-Ta/Save/1.txt";
  std::size_t lines = 0;
};

}  // namespace

void addMemoryRows(Rows& rows) {
  const auto sides = std::make_shared<Sides>();
  Store& s = sides->rig.s;
  paint(s, sides->bare, false);
  s.lblSelez.Caption = "0";
  SalvaMemoria(s);
  const std::string written = fileText(sides->memory);
  rows.push_back({"load a memory", 3.0, [&s] { CaricaMemoria(s); },
                  [sides] {
                    const std::string text = fileText(sides->memory);
                    const auto lines = split(text);
                    benchmark::DoNotOptimize(lines.data());
                    sides->lines = lines.size();
                  },
                  [sides, &s, written] {
                    // What was read is what stands in the file, line for line.
                    SalvaMemoria(s);
                    return sides->lines == 1869 && fileText(sides->memory) == written;
                  }});
  rows.push_back({"save a memory", 2.0, [&s] { SalvaMemoria(s); },
                  [sides, values = plainValues(written)] {
                    std::string why;
                    sides->files.write(sides->bareMemory, formatted(values), why);
                  },
                  [sides] {
                    const std::string saved = fileText(sides->memory);
                    return !saved.empty() &&
                           fileText(sides->folder.path + "/" + sides->bareMemory) == saved;
                  }});
}

}  // namespace caleidoscopio::bench
