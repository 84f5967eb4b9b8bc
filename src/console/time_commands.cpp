#include "console/commands.h"
#include "console/fault.h"
#include "console/flashes.h"
#include "mosaic/random_pick.h"

namespace caleidoscopio::console {

namespace {

Picture pictureOf(const Store& s) {
  Picture picture;
  for (int row = 0; row < side; ++row)
    for (int column = 0; column < side; ++column)
      picture[static_cast<std::size_t>(row * side + column)] =
          s.lblMiro[indexAt({row, column})].BackColor;
  return picture;
}

}  // namespace

void runStart(Session& session, const Line&) {
  if (session.started) throw ScriptFault("a second start; expected one at most");
  session.started = true;
  session.instrument.start();
}

void runAdvance(Session& session, const Line& line) {
  session.s.time.advance(millisecondsFrom(line.words[0]));
}

void runFlashes(Session& session, const Line& line) {
  Time& time = session.s.time;
  const std::uint64_t ms = millisecondsFrom(line.words[0]);
  const std::uint64_t end = ms > Time::never - time.now() ? Time::never : time.now() + ms;
  FlashWatch watch(time.now(), pictureOf(session.s));
  // All that is due at one moment fires before the picture is looked at: no eye sees what lies
  // between.
  for (std::uint64_t due = time.nextDue(); due != Time::never && due <= end; due = time.nextDue()) {
    time.advance(due > time.now() ? due - time.now() : 0);
    watch.see(time.now(), pictureOf(session.s));
  }
  time.advance(end - time.now());
  const WorstSecond& worst = watch.worst();
  session.out << "second " << worst.start << " flashes " << worst.flashes << " cells "
              << worst.cells << (worst.breaksTheRule() ? " broken" : " kept") << '\n';
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
