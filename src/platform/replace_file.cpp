#include "platform/disk.h"

namespace caleidoscopio {

namespace {

namespace fs = std::filesystem;

constexpr int namesTried = 100;

/// A file beside `file` that was not there before: another program may be saving at the same time.
std::error_code createBeside(Disk& disk, const fs::path& file, fs::path& beside) {
  std::error_code error;
  for (int i = 1; i <= namesTried; ++i) {
    beside = file;
    beside += ".new" + std::to_string(i);
    error = disk.create(beside, file);
    if (error != std::errc::file_exists) break;
  }
  return error;
}

std::error_code writeAll(Disk& disk, std::string_view text) {
  while (!text.empty()) {
    std::error_code error;
    const std::size_t written = disk.write(text, error);
    if (error) return error;
    if (written == 0) return std::make_error_code(std::errc::io_error);
    text.remove_prefix(written);
  }
  return {};
}

std::error_code fill(Disk& disk, std::string_view text) {
  std::error_code error = writeAll(disk, text);
  if (!error) error = disk.flush();
  const std::error_code closing = disk.close();
  return error ? error : closing;
}

std::error_code replace(Disk& disk, const fs::path& file, std::string_view text) {
  fs::path beside;
  if (const auto error = createBeside(disk, file, beside)) return error;
  std::error_code error = fill(disk, text);
  if (!error) error = disk.move(beside, file);
  if (error) {
    // The first fault is the one to tell.
    static_cast<void>(disk.remove(beside));
    return error;
  }
  return disk.flushFolder(file.parent_path());
}

}  // namespace

bool replaceFile(Disk& disk, const fs::path& file, std::string_view text, std::string& why) {
  const std::error_code error = replace(disk, file, text);
  if (error) why = error.message();
  return !error;
}

}  // namespace caleidoscopio
