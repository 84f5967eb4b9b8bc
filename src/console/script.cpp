#include "console/script.h"

#include <string>

#include "console/commands.h"
#include "console/fault.h"
#include "panel/end_run.h"
#include "platform/run_ended.h"

namespace caleidoscopio::console {

Status runScript(Session& session, std::istream& script, std::ostream& errors) {
  std::string line;
  std::uint64_t number = 1;
  try {
    for (; std::getline(script, line); ++number) {
      runLine(session, line);
      session.out.flush();
      if (!session.out) endRun("standard output cannot be written");
      if (session.s.ended) return done;
    }
  } catch (const ScriptFault& fault) {
    session.out.flush();
    errors << "line " << number << ": " << fault.what() << '\n';
    return scriptFault;
  } catch (const RunEnded& end) {
    session.out.flush();
    errors << "run ended: " << end.what() << '\n';
    return runEnded;
  }
  return done;
}

}  // namespace caleidoscopio::console
