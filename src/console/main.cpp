#include <cstdio>
#include <iostream>
#include <span>
#include <sstream>

#include "console/commands.h"
#include "console/fault.h"
#include "console/options.h"
#include "console/script.h"
#include "platform/disk_files.h"
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
  std::cout
      << "\n'flashes' goes on for MS milliseconds as 'advance' does, looks at the field at each\n"
         "moment at which a timer fired, and prints one line:\n\n"
         "    second START flashes F cells N kept\n\n"
         "F is the highest number of flashes that 22 or more cells of one block of 11 columns by\n"
         "8 rows did within one second; N of that block's cells did F or more, and START is the\n"
         "moment of the first change in that second, in milliseconds of virtual time. All three\n"
         "tell of the worst such second, the earliest of those alike. Where no 22 cells flashed, "
         "F\n"
         "and N are 0 and START is the beginning. The last word is 'broken' where F is above 3:\n"
         "such pictures can bring on seizures in people with photosensitive epilepsy. A flash is "
         "a\n"
         "pair of opposite changes of relative luminance by 0.1 or more with the darker state "
         "below\n"
         "0.8, or a pair of changes to or from saturated red. Small steps one way add up to one\n"
         "change.\n";
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
  DiskFiles files = options.root ? DiskFiles::under(*options.root)
                                 : DiskFiles::probing(candidateRoots(userSettings()));
  Session session(files, std::cout);
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
