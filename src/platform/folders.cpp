#include "platform/folders.h"

#include <cstdlib>

#include "platform/disk_files.h"

#ifndef _WIN32
#include <pwd.h>
#include <unistd.h>
#endif

namespace caleidoscopio {

namespace {

namespace fs = std::filesystem;

#ifdef _WIN32
const std::vector<std::string> systemRoots{"C:\\Programmi(x86)\\",     "C:\\Program Files\\",
                                           "C:\\ProgramFiles\\",       "C:\\Program Files (x86)\\",
                                           "C:\\ProgramFiles (x86)\\", "C:\\ProgramFiles(x86)\\",
                                           "C:\\Programmi\\"};
#else
const std::vector<std::string> systemRoots{
    "/usr/share/caleidoscopio/", "/usr/local/share/caleidoscopio/", "/opt/caleidoscopio/"};
#endif

std::optional<std::string> variable(const char* name) {
  const char* value = std::getenv(name);
  if (!value || !*value) return std::nullopt;
  return value;
}

std::string withSeparator(const fs::path& folder) {
  return (folder / "").string();
}

}  // namespace

UserSettings userSettings() {
  UserSettings user{variable("XDG_DATA_HOME"), variable("HOME")};
#ifndef _WIN32
  if (!user.home)
    if (const passwd* entry = getpwuid(getuid())) user.home = entry->pw_dir;
#endif
  return user;
}

std::optional<std::string> userDataFolder(const UserSettings& user) {
#ifdef _WIN32
  static_cast<void>(user);
  return std::nullopt;
#else
  if (user.dataHome && fs::path(*user.dataHome).is_absolute())
    return withSeparator(fs::path(*user.dataHome) / "caleidoscopio");
  if (!user.home) return std::nullopt;
  return withSeparator(fs::path(*user.home) / ".local" / "share" / "caleidoscopio");
#endif
}

std::vector<std::string> candidateRoots(const UserSettings& user) {
  std::vector<std::string> roots = systemRoots;
  if (auto own = userDataFolder(user)) roots.push_back(std::move(*own));
  return roots;
}

fs::path programFolder() {
  std::error_code none;
  return fs::read_symlink("/proc/self/exe", none).parent_path();
}

std::optional<std::string> shippedFolder(const fs::path& program) {
  std::vector<std::string> places = systemRoots;
  if (!program.empty())
    places.push_back(withSeparator(program.parent_path() / "share" / "caleidoscopio"));
  for (auto place = places.rbegin(); place != places.rend(); ++place)
    if (hasDefaultMemory(*place)) return *place;
  return std::nullopt;
}

}  // namespace caleidoscopio
