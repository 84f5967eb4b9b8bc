#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

#include "panel/platform.h"

namespace caleidoscopio {

/// Text files on the machine's disk.
class DiskFiles : public TextFiles {
 public:
  /// The root is probed among `candidates`, each with its closing separator; relative paths are
  /// the working folder's.
  static DiskFiles probing(std::vector<std::string> candidates);
  /// Nothing is probed, root() is empty, and relative paths lie under `base`.
  static DiskFiles under(std::string base);

  /// There is no early exit: the last candidate with a default memory wins.
  std::string root() override;
  std::optional<std::string> read(const std::string& path, std::string& why) override;
  bool write(const std::string& path, const std::string& text, std::string& why) override;

 private:
  DiskFiles();
  std::vector<std::string> candidates_;
  std::filesystem::path base_;
};

/// True if the default memory lies below `root`, which has its closing separator.
bool hasDefaultMemory(const std::string& root);

/// What is longer is no memory, no list of names and no script, and may have no end. In bytes.
constexpr std::size_t longestFile = std::size_t{64} << 20;

/// A whole file's bytes, or nothing with the reason in `why`.
std::optional<std::string> readFile(const std::filesystem::path& path, std::string& why);

}  // namespace caleidoscopio
