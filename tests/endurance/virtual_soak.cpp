// Plays the instrument for a long virtual time and watches its memory.
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "endurance/memory_watch.h"
#include "endurance/set_ups.h"
#include "memories/memory_files.h"
#include "mosaic/index_map.h"
#include "platform/built_in_generator.h"

namespace caleidoscopio::endurance {
namespace {

constexpr double day = 86'400'000;
constexpr int samples = 10;

/// A wall clock that goes with virtual time, so that the salt of the random picks moves too.
struct VirtualClock : WallClock {
  const Time* time = nullptr;
  WallTime now() override {
    const std::uint64_t seconds = time ? time->now() / 1000 : 0;
    return {static_cast<int>(seconds / 3600 % 24), static_cast<int>(seconds / 60 % 60),
            static_cast<int>(seconds % 60), 2026};
  }
};

std::string field(Store& s) {
  std::string all;
  for (int i = 1; i <= cellCount; ++i) all += std::to_string(s.lblMiro[i].BackColor.value) + ' ';
  return all;
}

/// Plays on to `end`; the number of moments at which something fell due.
long long playUntil(Time& time, std::uint64_t end) {
  long long moments = 0;
  for (std::uint64_t due = time.nextDue(); due <= end; due = time.nextDue()) {
    time.advance(due - time.now());
    ++moments;
  }
  time.advance(end - time.now());
  return moments;
}

bool soak(bool shortest, std::uint64_t length, std::uint64_t seed) {
  VirtualClock clock;
  BuiltInGenerator generator;
  generator.fixSeed(seed);
  test::FilesInMemory files = shippedFiles();
  Platform platform{clock, generator, files, {}};
  Instrument instrument(platform);
  Store& s = instrument.s;
  clock.time = &s.time;
  instrument.start();
  click(s.cmdGoTimer);
  switchAllIn(s);
  if (shortest) {
    stepToShortest(s);
    writeProgramme(s);
    if (!atShortest(s)) {
      std::puts("the panel's buttons do not lead to the intervals that count as the shortest");
      return false;
    }
  }
  click(s.cmdGoTimer);

  using Watch = std::chrono::steady_clock;
  const auto began = Watch::now();
  const std::uint64_t start = s.time.now();
  long long moments = 0;
  bool moved = true;
  MemoryWatch memory;
  // The first tenth warms up.
  for (int n = 1; n <= samples; ++n) {
    const std::string before = field(s);
    moments += playUntil(s.time, start + length * static_cast<unsigned>(n) / samples);
    moved = moved && field(s) != before;
    char label[32];
    std::snprintf(label, sizeof label, "%.2f h of virtual time",
                  static_cast<double>(s.time.now() - start) / 3.6e6);
    memory.sample(label);
  }
  const double took = std::chrono::duration<double>(Watch::now() - began).count();
  std::printf("%.1f s; %.0f virtual seconds a second; %lld moments with ticks, %.0f a second\n",
              took, static_cast<double>(length) / 1000 / took, moments,
              static_cast<double>(moments) / took);
  if (!moved) std::puts("the field stood still for a tenth of the time");
  return memory.flat() && moved;
}

}  // namespace
}  // namespace caleidoscopio::endurance

// virtual_soak memory|shortest DAYS [SEED]
int main(int count, char** arguments) {
  using namespace caleidoscopio;
  const std::string_view form = count > 1 ? arguments[1] : "";
  const double days = count > 2 ? std::atof(arguments[2]) : 0;
  const unsigned long long seed = count > 3 ? std::strtoull(arguments[3], nullptr, 10) : 1;
  if ((form != "memory" && form != "shortest") || days <= 0) {
    std::fputs("usage: virtual_soak memory|shortest DAYS [SEED]\n", stderr);
    return 2;
  }
  std::printf("%s, %g days of virtual time, seed %llu\n", arguments[1], days, seed);
  try {
    const auto length = static_cast<std::uint64_t>(days * endurance::day);
    return endurance::soak(form == "shortest", length, seed) ? 0 : 1;
  } catch (const RunEnded& end) {
    std::printf("run ended: %s\n", end.what());
    return 1;
  }
}
