#include "compare.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <charconv>
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
  /// False for what the library's filter left out.
  bool has(const std::string& name) const { return times_.contains(name); }
  double medianOf(const std::string& name) { return median(times_[name]); }

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

}  // namespace

bool takeOption(std::string_view argument, Options& options) {
  constexpr std::string_view turns = "--turns=";
  if (argument == "--ignore-aims") {
    options.ignoreAims = true;
    return true;
  }
  if (argument == "--no-heading") {
    options.heading = false;
    return true;
  }
  if (!argument.starts_with(turns)) return false;
  argument.remove_prefix(turns.size());
  std::from_chars(argument.data(), argument.data() + argument.size(), options.turns);
  return options.turns > 0;
}

void printHeading(const Options& options) {
  if (!options.heading) return;
  std::printf("Processor time in ns where a line says nothing else, ");
  std::printf("median of %d turns taken alternately\n\n", options.turns);
  std::printf("| %-42s | %10s | %10s | %5s | %3s |\n", "", "instrument", "bare", "ratio", "aim");
  std::printf("|%s|%s|%s|%s|%s|\n", "---", "--:", "--:", "--:", "--:");
}

bool printLine(const std::string& name, double ours, double bare, double aim) {
  const bool within = ours <= aim * bare;
  std::printf("| %-42s | %10.0f | %10.0f | %5.2f | %3.1f |%s\n", name.c_str(), ours, bare,
              ours / bare, aim, within ? "" : " OVER");
  std::fflush(stdout);
  return within;
}

double median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  const std::size_t half = values.size() / 2;
  return values.size() % 2 == 1 ? values[half] : (values[half - 1] + values[half]) / 2;
}

bool compare(const Rows& rows, const Options& options) {
  bool well = true;
  for (const Row& row : rows) well = doTheSame(row) && well;
  for (const Row& row : rows) {
    enter(oursOf(row), row.ours);
    enter(bareOf(row), row.bare);
  }
  Collector collected;
  for (int turn = 1; turn <= options.turns; ++turn) benchmark::RunSpecifiedBenchmarks(&collected);

  printHeading(options);
  for (const Row& row : rows) {
    if (!collected.has(oursOf(row)) || !collected.has(bareOf(row))) continue;
    const bool within = printLine(row.name, collected.medianOf(oursOf(row)),
                                  collected.medianOf(bareOf(row)), row.aim);
    well = (within || options.ignoreAims) && well;
  }
  return well;
}

}  // namespace caleidoscopio::bench
