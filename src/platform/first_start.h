#pragma once

#include <string>

namespace caleidoscopio {

/// Fills the user's data folder where it has no default memory yet: copies every file of
/// Miro-Vel-Ta/ that lies under `shipped` and is missing under `user`, and makes
/// Miro-Vel-Ta/Save/, so that what is saved has a place to go. No file is overwritten. Both folders
/// have their closing separators. False, with the reason in `why`, when something could not be
/// made; the next start then tries again.
bool fillUserFolder(const std::string& shipped, const std::string& user, std::string& why);

}  // namespace caleidoscopio
