#pragma once

namespace caleidoscopio::bench {

/// Processor time of a process so far, all its threads, in ms; 0 for one that is not there.
double processorMs(long long process);

}  // namespace caleidoscopio::bench
