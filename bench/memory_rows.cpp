#include <benchmark/benchmark.h>

#include <filesystem>
#include <memory>
#include <random>
#include <string_view>

#include "field.h"
#include "memories/memory_files.h"
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

struct Sides {
  Folder folder;
  DiskFiles files = DiskFiles::under(folder.path);
  Rig rig{files};
  BareField bare;
  std::string memory = folder.path + "/Miro-Vel-Ta/Save/0.txt";
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
  rows.push_back({"load a memory", 4.0, [&s] { CaricaMemoria(s); },
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
}

}  // namespace caleidoscopio::bench
