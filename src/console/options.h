#pragma once

#include <optional>
#include <span>
#include <string>

namespace caleidoscopio::console {

/// What the command line asks for.
struct Options {
  bool help = false;
  bool version = false;
  std::optional<std::string> root;    ///< the folder of --root
  std::optional<std::string> script;  ///< the script's path; standard input when there is none
};

/// Throws a ScriptFault on what is no command line of the console.
Options optionsFrom(std::span<char* const> arguments);

}  // namespace caleidoscopio::console
