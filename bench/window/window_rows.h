#pragma once

#include <string>

#include "compare.h"

namespace caleidoscopio::bench {

/// Painting what a tick has changed, beside the same rectangles filled by hand in a window of the
/// same size.
void addPaintRows(Rows& rows);

/// The program as a process beside an empty window of the same toolkit that fills the same screen:
/// start-up to the first frame on the screen, and memory after it. Both are paths. Prints its
/// lines; true if no ratio is over its aim.
bool compareProcesses(const std::string& program, const std::string& empty, const Options& options);

/// How the cost of painting grows with the screen, and of a run with the rate of its ticks. Prints
/// both as tables and draws them into `picture`. `server` is the display server's process. False
/// if the picture could not be written.
bool growth(const std::string& picture, int server, int seconds);

}  // namespace caleidoscopio::bench
