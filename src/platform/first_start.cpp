#include "platform/first_start.h"

#include <algorithm>
#include <filesystem>
#include <vector>

#include "memories/memory_files.h"
#include "platform/disk_files.h"
#include "platform/posix_disk.h"

namespace caleidoscopio {

namespace {

namespace fs = std::filesystem;

bool told(const std::error_code& error, const fs::path& path, std::string& why) {
  if (error) why = path.string() + ": " + error.message();
  return static_cast<bool>(error);
}

/// The files below `folder`, by their paths under it. The default memory comes last: as long as
/// it is missing, a copy that broke off is taken up again.
std::error_code filesBelow(const fs::path& folder, std::vector<fs::path>& files) {
  std::error_code error;
  fs::recursive_directory_iterator at(folder / "Miro-Vel-Ta", error);
  for (; !error && at != fs::recursive_directory_iterator(); at.increment(error)) {
    std::error_code none;
    if (at->is_regular_file(none)) files.push_back(at->path().lexically_relative(folder));
  }
  std::sort(files.begin(), files.end());
  std::stable_partition(files.begin(), files.end(),
                        [](const fs::path& file) { return file != defaultMemoryPath(); });
  return error;
}

bool copyMissing(const fs::path& from, const fs::path& to, std::string& why) {
  std::error_code error;
  // A link that leads nowhere is there, too.
  if (fs::exists(fs::symlink_status(to, error))) return true;
  fs::create_directories(to.parent_path(), error);
  if (told(error, to.parent_path(), why)) return false;
  std::string reason;
  const auto text = readFile(from, reason);
  PosixDisk disk;
  if (text && replaceFile(disk, to, *text, reason)) return true;
  why = (text ? to : from).string() + ": " + reason;
  return false;
}

}  // namespace

bool fillUserFolder(const std::string& shipped, const std::string& user, std::string& why) {
  if (hasDefaultMemory(user)) return true;
  const fs::path save = fs::path(user) / "Miro-Vel-Ta" / "Save";
  std::error_code error;
  fs::create_directories(save, error);
  if (told(error, save, why)) return false;
  std::vector<fs::path> files;
  if (told(filesBelow(shipped, files), shipped, why)) return false;
  return std::all_of(files.begin(), files.end(), [&](const fs::path& file) {
    return copyMissing(fs::path(shipped) / file, fs::path(user) / file, why);
  });
}

}  // namespace caleidoscopio
