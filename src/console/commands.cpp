#include "console/commands.h"

#include <algorithm>
#include <limits>
#include <string>

#include "console/fault.h"

namespace caleidoscopio::console {

namespace {

constexpr std::size_t any = std::numeric_limits<std::size_t>::max();

constexpr Command table[] = {
    {"start", "", 0, 0, runStart},
    {"click", "NAME [I]", 1, 2, runClick},
    {"down", "NAME [I]", 1, 2, runDown},
    {"up", "NAME [I]", 1, 2, runUp},
    {"move", "NAME [I]", 1, 2, runMove},
    {"key", "CODE", 1, 1, runKey},
    {"surface", "", 0, 0, runSurface},
    {"keypress", "NAME CODE", 2, 2, runKeypress},
    {"fire", "TIMER", 1, 1, runFire},
    {"advance", "MS", 1, 1, runAdvance},
    {"flashes", "MS", 1, 1, runFlashes},
    {"clock", "HH:MM:SS YEAR", 2, 2, runClock},
    {"draws", "R R R ...", 1, any, runDraws},
    {"seed", "N", 1, 1, runSeed},
    {"pick", "N", 1, 1, runPick},
    {"screen", "W H", 2, 2, runScreen},
    {"save", "NAME", 1, 1, runSave},
    {"load", "NAME", 1, 1, runLoad},
    {"get", "REF", 1, 1, runGet},
    {"set", "REF VALUE", 2, any, runSet},
    {"dump", "", 0, 0, runDump},
    {"field", "", 0, 0, runField},
    {"echo", "WORDS", 0, any, runEcho},
};

}  // namespace

std::span<const Command> commands() {
  return table;
}

void runLine(Session& session, std::string_view line) {
  if (line.ends_with('\r')) line.remove_suffix(1);
  if (line.starts_with('#')) return;
  const Line split(line);
  if (split.command.empty()) return;
  const auto* command = std::find_if(std::begin(table), std::end(table),
                                     [&](const Command& c) { return c.name == split.command; });
  if (command == std::end(table))
    throw ScriptFault("unknown command " + std::string(split.command));
  const std::size_t count = split.words.size();
  if (count < command->least || count > command->most)
    throw ScriptFault(std::string(command->name) + ": " +
                      (count < command->least ? "a word is missing" : "a word too many") +
                      "; expected " + std::string(command->name) +
                      (command->usage.empty() ? "" : " ") + std::string(command->usage));
  command->run(session, split);
}

}  // namespace caleidoscopio::console
