#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <string_view>

#include "field.h"
#include "memories/memory_files.h"
#include "rows.h"

namespace caleidoscopio::bench {

namespace {

std::string readFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary | std::ios::ate);
  std::string text(static_cast<std::size_t>(in.tellg()), '\0');
  in.seekg(0);
  in.read(text.data(), static_cast<std::streamsize>(text.size()));
  return text;
}

/// A folder that goes when the program ends.
struct Folder : TextFiles {
  Folder() { std::filesystem::create_directories(path + "/Miro-Vel-Ta/Save"); }
  ~Folder() override { std::filesystem::remove_all(path); }
  std::string root() override { return path + "/"; }
  std::optional<std::string> read(const std::string& file, std::string&) override {
    return readFile(file);
  }
  bool write(const std::string& file, const std::string& text, std::string&) override {
    std::ofstream(file, std::ios::binary) << text;
    return true;
  }
  std::string path = (std::filesystem::temp_directory_path() / "caleidoscopio-bench").string();
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
  Folder files;
  Rig rig{files};
  BareField bare;
  std::string memory = files.root() + "Miro-Vel-Ta/Save/0.txt";
  std::size_t lines = 0;
};

}  // namespace

void addMemoryRows(Rows& rows) {
  const auto sides = std::make_shared<Sides>();
  Store& s = sides->rig.s;
  paint(s, sides->bare, false);
  s.lblDir.Caption = sides->files.root();
  s.lblSelez.Caption = "0";
  SalvaMemoria(s);
  const std::string written = readFile(sides->memory);
  rows.push_back({"load a memory", 4.0, [&s] { CaricaMemoria(s); },
                  [sides] {
                    const std::string text = readFile(sides->memory);
                    const auto lines = split(text);
                    benchmark::DoNotOptimize(lines.data());
                    sides->lines = lines.size();
                  },
                  [sides, &s, written] {
                    // What was read is what stands in the file, line for line.
                    SalvaMemoria(s);
                    return sides->lines == 1869 && readFile(sides->memory) == written;
                  }});
}

}  // namespace caleidoscopio::bench
