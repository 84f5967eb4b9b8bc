#include "console/commands.h"
#include "console/fault.h"

namespace caleidoscopio::console {

namespace {

void raise(Session& session, const Line& line, Event event) {
  const Element element = elementFrom(session.s.controls, line.words);
  element.control->raise(event, element.index);
}

}  // namespace

void runClick(Session& session, const Line& line) {
  raise(session, line, Event::Click);
}
void runDown(Session& session, const Line& line) {
  raise(session, line, Event::MouseDown);
}
void runUp(Session& session, const Line& line) {
  raise(session, line, Event::MouseUp);
}
void runMove(Session& session, const Line& line) {
  raise(session, line, Event::MouseMove);
}

void runKey(Session& session, const Line& line) {
  session.s.form.raise(Event::KeyDown, 0, wholeNumberFrom(line.words[0]));
}

void runSurface(Session& session, const Line&) {
  session.s.form.raise(Event::Click);
}

void runKeypress(Session& session, const Line& line) {
  const Element element = elementFrom(session.s.controls, {line.words[0]});
  element.control->raise(Event::KeyPress, element.index, wholeNumberFrom(line.words[1]));
}

void runFire(Session& session, const Line& line) {
  const Element element = elementFrom(session.s.controls, line.words);
  if (element.control->kind() != Kind::Timer)
    throw ScriptFault(std::string(element.control->name()) + " is no timer");
  element.control->raise(Event::Tick);
}

}  // namespace caleidoscopio::console
