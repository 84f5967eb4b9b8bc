#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace caleidoscopio {

// Where the instrument's files may lie. Every folder is told with its closing separator.

/// What the process was told about its user. Nothing stands for what is unset.
struct UserSettings {
  std::optional<std::string> dataHome;  ///< XDG_DATA_HOME
  std::optional<std::string> home;      ///< HOME, or what the machine's list of users says
};
UserSettings userSettings();

/// The user's own data folder for the instrument. Nothing where the user has none.
std::optional<std::string> userDataFolder(const UserSettings& user);

/// The folders that may hold Miro-Vel-Ta/, in the order in which they are probed: the system's,
/// then the user's own.
std::vector<std::string> candidateRoots(const UserSettings& user);

/// The folder that the running program lies in.
std::filesystem::path programFolder();

/// The folder with the memories that came with the program: share/caleidoscopio beside the
/// program's folder, where an installation and a build both have it, else the last of the
/// system's candidates that has a default memory. Nothing when there is none.
std::optional<std::string> shippedFolder(const std::filesystem::path& program);

}  // namespace caleidoscopio
