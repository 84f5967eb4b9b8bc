#include <benchmark/benchmark.h>

#include <charconv>
#include <cstdio>
#include <string_view>
#include <vector>

#include "platform/run_ended.h"
#include "rows.h"

using namespace caleidoscopio;

namespace {

bool takeOption(std::string_view argument, bench::Options& options) {
  constexpr std::string_view turns = "--turns=";
  if (argument == "--ignore-aims") {
    options.ignoreAims = true;
    return true;
  }
  if (!argument.starts_with(turns)) return false;
  argument.remove_prefix(turns.size());
  std::from_chars(argument.data(), argument.data() + argument.size(), options.turns);
  return options.turns > 0;
}

}  // namespace

// --turns=N: the number of turns; --ignore-aims: a ratio over its aim is no fault. What else there
// is goes to the benchmark library.
int main(int count, char** arguments) {
  bench::Options options;
  char shortTurns[] = "--benchmark_min_time=0.01";
  std::vector<char*> others{arguments[0], shortTurns};
  for (int i = 1; i < count; ++i)
    if (!takeOption(arguments[i], options)) others.push_back(arguments[i]);
  int otherCount = static_cast<int>(others.size());
  benchmark::Initialize(&otherCount, others.data());
  if (benchmark::ReportUnrecognizedArguments(otherCount, others.data())) return 2;
  try {
    bench::Rows rows;
    bench::addShiftRows(rows);
    bench::addTransformRows(rows);
    bench::addColourRows(rows);
    bench::addFrameRows(rows);
    bench::addBreakRows(rows);
    bench::addMemoryRows(rows);
    return bench::compare(rows, options) ? 0 : 1;
  } catch (const RunEnded& end) {
    std::fprintf(stderr, "run ended: %s\n", end.what());
    return 1;
  }
}
