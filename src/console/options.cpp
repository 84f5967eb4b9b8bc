#include "console/options.h"

#include "console/fault.h"

namespace caleidoscopio::console {

Options optionsFrom(std::span<char* const> arguments) {
  Options options;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string argument = arguments[i];
    if (argument == "--help") {
      options.help = true;
    } else if (argument == "--version") {
      options.version = true;
    } else if (argument == "--root") {
      if (++i == arguments.size()) throw ScriptFault("--root: expected a folder after it");
      if (options.root) throw ScriptFault("a second --root; expected one at most");
      options.root = arguments[i];
    } else if (argument.starts_with('-')) {
      throw ScriptFault("unknown option " + argument);
    } else {
      if (options.script)
        throw ScriptFault("a second script " + argument + "; expected one at most");
      options.script = argument;
    }
  }
  return options;
}

}  // namespace caleidoscopio::console
