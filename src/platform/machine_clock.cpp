#include "platform/machine_clock.h"

#include <algorithm>
#include <ctime>

namespace caleidoscopio {

WallTime MachineClock::now() {
  const std::time_t seconds = std::time(nullptr);
  std::tm local{};
#ifdef _WIN32
  localtime_s(&local, &seconds);
#else
  localtime_r(&seconds, &local);
#endif
  // A leap second counts as the one before it: the instrument knows seconds 0 to 59.
  return {local.tm_hour, local.tm_min, std::min(local.tm_sec, 59), local.tm_year + 1900};
}

}  // namespace caleidoscopio
