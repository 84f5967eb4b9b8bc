// The second program of the benchmarks: what needs a window.
//
//   caleidoscopio-window-bench [OPTIONS OF THE FIRST] [--no-processes]
//   caleidoscopio-window-bench --growth=PICTURE --server=PROCESS [--seconds=N]

#include <benchmark/benchmark.h>

#include <QApplication>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "window_rows.h"

using namespace caleidoscopio;

namespace {

/// The words after `--name=`, or null.
const char* valueOf(std::string_view argument, std::string_view name) {
  return argument.starts_with(name) ? argument.data() + name.size() : nullptr;
}

struct GrowthOptions {
  std::string picture;
  int server = 0;
  int seconds = 10;
  bool take(std::string_view argument) {
    if (const char* file = valueOf(argument, "--growth="))
      picture = file;
    else if (const char* process = valueOf(argument, "--server="))
      server = std::atoi(process);
    else if (const char* length = valueOf(argument, "--seconds="))
      seconds = std::atoi(length);
    else
      return false;
    return true;
  }
};

int compareAll(int count, char** arguments, const bench::Options& options, bool processes) {
  benchmark::Initialize(&count, arguments);
  if (benchmark::ReportUnrecognizedArguments(count, arguments)) return 2;
  bench::Rows rows;
  bench::addPaintRows(rows);
  bool well = bench::compare(rows, options);
  rows.clear();
  if (processes) well = bench::compareProcesses(PROGRAM, EMPTY_WINDOW, options) && well;
  return well ? 0 : 1;
}

}  // namespace

int main(int count, char** arguments) {
  QApplication app(count, arguments);
  bench::Options options;
  GrowthOptions growth;
  bool processes = true;
  char shortTurns[] = "--benchmark_min_time=0.01";
  std::vector<char*> others{arguments[0], shortTurns};
  for (int i = 1; i < count; ++i)
    if (std::string_view(arguments[i]) == "--no-processes")
      processes = false;
    else if (!bench::takeOption(arguments[i], options) && !growth.take(arguments[i]))
      others.push_back(arguments[i]);
  if (!growth.picture.empty())
    return bench::growth(growth.picture, growth.server, growth.seconds) ? 0 : 1;
  return compareAll(static_cast<int>(others.size()), others.data(), options, processes);
}
