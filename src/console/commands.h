#pragma once

#include <span>
#include <string_view>

#include "console/session.h"
#include "console/words.h"

namespace caleidoscopio::console {

/// A command of the script. It is run with as many words as it takes, from `least` to `most`.
struct Command {
  std::string_view name;
  std::string_view usage;  ///< the words that it takes
  std::size_t least, most;
  void (*run)(Session&, const Line&);
};

/// All commands, in the order in which --help tells them.
std::span<const Command> commands();

/// Runs one line. A line that cannot be run throws a ScriptFault.
void runLine(Session& session, std::string_view line);

// The commands, each handed its line with the right number of words.

// event_commands.cpp: what happens to a control
void runClick(Session& session, const Line& line);
void runDown(Session& session, const Line& line);
void runUp(Session& session, const Line& line);
void runMove(Session& session, const Line& line);
void runKey(Session& session, const Line& line);
void runSurface(Session& session, const Line& line);
void runKeypress(Session& session, const Line& line);
void runFire(Session& session, const Line& line);

// time_commands.cpp: time, chance, the screen
void runStart(Session& session, const Line& line);
void runAdvance(Session& session, const Line& line);
void runFlashes(Session& session, const Line& line);
void runClock(Session& session, const Line& line);
void runDraws(Session& session, const Line& line);
void runSeed(Session& session, const Line& line);
void runPick(Session& session, const Line& line);
void runScreen(Session& session, const Line& line);

// value_commands.cpp: files and values
void runSave(Session& session, const Line& line);
void runLoad(Session& session, const Line& line);
void runGet(Session& session, const Line& line);
void runSet(Session& session, const Line& line);
void runDump(Session& session, const Line& line);
void runField(Session& session, const Line& line);
void runEcho(Session& session, const Line& line);

}  // namespace caleidoscopio::console
