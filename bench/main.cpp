#include <benchmark/benchmark.h>

#include <cstdio>
#include <vector>

#include "platform/run_ended.h"
#include "rows.h"

using namespace caleidoscopio;

// --turns=N: the number of turns; --ignore-aims: a ratio over its aim is no fault. What else there
// is goes to the benchmark library.
int main(int count, char** arguments) {
  bench::Options options;
  char shortTurns[] = "--benchmark_min_time=0.01";
  std::vector<char*> others{arguments[0], shortTurns};
  for (int i = 1; i < count; ++i)
    if (!bench::takeOption(arguments[i], options)) others.push_back(arguments[i]);
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
    bench::addPlaneRows(rows);
    bench::addMemoryRows(rows);
    return bench::compare(rows, options) ? 0 : 1;
  } catch (const RunEnded& end) {
    std::fprintf(stderr, "run ended: %s\n", end.what());
    return 1;
  }
}
