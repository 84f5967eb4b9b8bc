#include "console/commands.h"
#include "console/fault.h"
#include "mosaic/random_pick.h"

namespace caleidoscopio::console {

void runStart(Session& session, const Line&) {
  if (session.started) throw ScriptFault("a second start; expected one at most");
  session.started = true;
  session.instrument.start();
}

void runAdvance(Session& session, const Line& line) {
  session.s.time.advance(millisecondsFrom(line.words[0]));
}

void runClock(Session& session, const Line& line) {
  session.clock.standing = wallTimeFrom(line.words[0], line.words[1]);
}

void runDraws(Session& session, const Line& line) {
  for (const std::string_view word : line.words) session.generator.queue(drawFrom(word));
}

void runSeed(Session& session, const Line& line) {
  session.generator.builtIn.fixSeed(seedFrom(line.words[0]));
}

void runPick(Session& session, const Line& line) {
  session.out << CasualeMinuti(session.s, wholeNumberFrom(line.words[0])) << '\n';
}

void runScreen(Session& session, const Line& line) {
  const ScreenSize screen{lengthFrom(line.words[0]), lengthFrom(line.words[1])};
  // The controls have their places by then.
  if (session.started) throw ScriptFault("screen after start; expected it before");
  session.platform.screen = screen;
}

}  // namespace caleidoscopio::console
