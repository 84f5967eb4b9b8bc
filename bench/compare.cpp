#include "compare.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <map>

namespace caleidoscopio::bench {

namespace {

/// Keeps the processor time of every run, in nanoseconds, by the benchmark's name.
class Collector : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context&) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs)
      times_[run.run_name.function_name].push_back(run.GetAdjustedCPUTime());
  }
  bool has(const std::string& name) const { return times_.contains(name); }
  double median(const std::string& name) {
    std::vector<double>& times = times_[name];
    std::sort(times.begin(), times.end());
    const std::size_t half = times.size() / 2;
    return times.size() % 2 == 1 ? times[half] : (times[half - 1] + times[half]) / 2;
  }

 private:
  std::map<std::string, std::vector<double>> times_;
};

std::string oursOf(const Row& row) {
  return row.name + ", instrument";
}
std::string bareOf(const Row& row) {
  return row.name + ", bare";
}

void enter(const std::string& name, const std::function<void()>& work) {
  benchmark::RegisterBenchmark(name.c_str(), [&work](benchmark::State& state) {
    for ([[maybe_unused]] auto _ : state) {
      work();
      benchmark::ClobberMemory();
    }
  });
}

/// More steps than any mode needs to come round.
bool doTheSame(const Row& row) {
  for (int step = 0; step < 100; ++step) {
    row.ours();
    row.bare();
    if (row.sameState()) continue;
    std::printf("%s: after step %d the two sides differ\n", row.name.c_str(), step + 1);
    return false;
  }
  return true;
}

/// Prints a line of the table; true if the ratio is within its aim.
bool print(const Row& row, Collector& collected) {
  const double ours = collected.median(oursOf(row));
  const double bare = collected.median(bareOf(row));
  const bool within = ours <= row.aim * bare;
  std::printf("| %-42s | %10.0f | %10.0f | %5.2f | %3.1f |%s\n", row.name.c_str(), ours, bare,
              ours / bare, row.aim, within ? "" : " OVER");
  return within;
}

}  // namespace

bool compare(const Rows& rows, const Options& options) {
  bool well = true;
  for (const Row& row : rows) well = doTheSame(row) && well;
  for (const Row& row : rows) {
    enter(oursOf(row), row.ours);
    enter(bareOf(row), row.bare);
  }
  Collector collected;
  for (int turn = 1; turn <= options.turns; ++turn) benchmark::RunSpecifiedBenchmarks(&collected);

  std::printf("Processor time in ns, median of %d turns taken alternately\n\n", options.turns);
  std::printf("| %-42s | %10s | %10s | %5s | %3s |\n", "", "instrument", "bare", "ratio", "aim");
  std::printf("|%s|%s|%s|%s|%s|\n", "---", "--:", "--:", "--:", "--:");
  for (const Row& row : rows) {
    if (!collected.has(oursOf(row)) || !collected.has(bareOf(row))) continue;  // filtered out
    const bool within = print(row, collected);
    well = (within || options.ignoreAims) && well;
  }
  return well;
}

}  // namespace caleidoscopio::bench
