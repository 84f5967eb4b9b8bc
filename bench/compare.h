#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace caleidoscopio::bench {

/// A line of the table: work of the instrument beside its bare work, that is the same reads,
/// writes and draws on plain arrays of the same types, with no names, bounds or events.
struct Row {
  std::string name;
  double aim;                       ///< the instrument may take so many times the bare time
  std::function<void()> ours;       ///< one tick, one load
  std::function<void()> bare;       ///< the same on plain arrays
  std::function<bool()> sameState;  ///< true if both sides hold the same values
};
using Rows = std::vector<Row>;

struct Options {
  int turns = 15;
  bool ignoreAims = false;
  bool heading = true;  ///< false where the table goes on from another program
};

/// Takes an option of the two programs; false if it is none of theirs.
bool takeOption(std::string_view argument, Options& options);

/// Prints what stands above the lines.
void printHeading(const Options& options);
/// Prints a line of the table; true if the ratio is within its aim.
bool printLine(const std::string& name, double ours, double bare, double aim);
double median(std::vector<double> values);

/// Runs both sides of each row side by side for a while and asks whether they hold the same; then
/// times them in alternate turns, and prints the medians with their ratio. Returns true if all
/// sides agree and no ratio is over its aim.
bool compare(const Rows& rows, const Options& options);

}  // namespace caleidoscopio::bench
