#include <cstdio>
#include <iostream>
#include <span>
#include <sstream>

#include "console/commands.h"
#include "console/fault.h"
#include "console/options.h"
#include "console/script.h"
#include "platform/folders.h"

namespace caleidoscopio::console {

namespace {

void printHelp() {
  std::cout
      << "caleidoscopio-console [--root FOLDER] [SCRIPT]\n"
         "Drives the instrument by the commands of SCRIPT, or of standard input, one a line.\n"
         "With --root, memory files lie under FOLDER.\n\n";
  for (const Command& command : commands())
    std::cout << "    " << command.name << (command.usage.empty() ? "" : " ") << command.usage
              << '\n';
}

/// Faults before the first line count as line 0.
Status faultBeforeLines(const std::string& what) {
  std::cout.flush();
  std::cerr << "line 0: " << what << '\n';
  return scriptFault;
}

Status run(std::span<char* const> arguments) {
  const Options options = optionsFrom(arguments);
  if (options.help) {
    printHelp();
    return done;
  }
  if (options.version) {
    std::cout << "caleidoscopio-console " CALEIDOSCOPIO_VERSION "\n";
    return done;
  }
  Session session(options.root ? DiskFiles::under(*options.root)
                               : DiskFiles::probing(candidateRoots(userSettings())),
                  std::cout);
  if (!options.script) {
    const Status status = runScript(session, std::cin, std::cerr);
    if (status == done && std::ferror(stdin))
      return faultBeforeLines("standard input cannot be read");
    return status;
  }
  std::string why;
  const auto text = readFile(*options.script, why);
  if (!text) return faultBeforeLines(*options.script + ": cannot be read: " + why);
  std::istringstream script(*text);
  return runScript(session, script, std::cerr);
}

}  // namespace

}  // namespace caleidoscopio::console

int main(int count, char** arguments) {
  using namespace caleidoscopio::console;
  try {
    return run(std::span(arguments, static_cast<std::size_t>(count)).subspan(count > 0 ? 1 : 0));
  } catch (const ScriptFault& fault) {
    return faultBeforeLines(fault.what());
  }
}
