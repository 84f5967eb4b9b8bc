#include "processor_time.h"

#include <ctime>

namespace caleidoscopio::bench {

double processorMs(long long process) {
  clockid_t clock{};
  timespec time{};
  if (clock_getcpuclockid(static_cast<pid_t>(process), &clock) != 0 ||
      clock_gettime(clock, &time) != 0)
    return 0;
  return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

}  // namespace caleidoscopio::bench
