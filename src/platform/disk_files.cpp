#include "platform/disk_files.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <memory>
#include <system_error>

#include "memories/memory_files.h"
#include "platform/posix_disk.h"

namespace caleidoscopio {

namespace fs = std::filesystem;

DiskFiles::DiskFiles() {
#ifdef SIGXFSZ
  // A save that meets the limit for the size of a file is an error to tell, no reason to die in
  // the middle of it.
  std::signal(SIGXFSZ, SIG_IGN);
#endif
}

DiskFiles DiskFiles::probing(std::vector<std::string> candidates) {
  DiskFiles files;
  files.candidates_ = std::move(candidates);
  return files;
}

DiskFiles DiskFiles::under(std::string base) {
  DiskFiles files;
  files.base_ = std::move(base);
  return files;
}

std::string DiskFiles::root() {
  std::string found;
  for (const std::string& candidate : candidates_)
    if (hasDefaultMemory(candidate)) found = candidate;
  return found;
}

std::optional<std::string> DiskFiles::read(const std::string& path, std::string& why) {
  const fs::path file = base_ / path;
  std::error_code none;
  const fs::file_type type = fs::status(file, none).type();
  // A pipe would be waited for, and the window with it. The others the system refuses in its words.
  if (type == fs::file_type::fifo || type == fs::file_type::character) {
    why = "Not a regular file";
    return std::nullopt;
  }
  return readFile(file, why);
}

bool DiskFiles::write(const std::string& path, const std::string& text, std::string& why) {
  // A file that is a link elsewhere stays one: what it leads to is replaced.
  std::error_code none;
  const fs::path file = base_ / path;
  const fs::path target = fs::canonical(file, none);
  PosixDisk disk;
  return replaceFile(disk, none ? file : target, text, why);
}

bool hasDefaultMemory(const std::string& root) {
  std::error_code none;
  return fs::is_regular_file(root + defaultMemoryPath(), none);
}

std::optional<std::string> readFile(const fs::path& path, std::string& why) {
  const auto fault = [&why] {
    why = std::generic_category().message(errno);
    return std::nullopt;
  };
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(
      std::fopen(path.string().c_str(), "rb"), std::fclose);
  if (!file) return fault();
  std::string text;
  std::array<char, 65536> block;
  while (const std::size_t got = std::fread(block.data(), 1, block.size(), file.get())) {
    text.append(block.data(), got);
    if (text.size() <= longestFile) continue;
    errno = EFBIG;
    return fault();
  }
  if (std::ferror(file.get())) return fault();
  return text;
}

}  // namespace caleidoscopio
