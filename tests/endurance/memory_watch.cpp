#include "endurance/memory_watch.h"

#include <malloc.h>

#include <cstdio>
#include <fstream>
#include <stdexcept>

// Asked by the address sanitizer before anything runs: it holds back what is freed, up to 256 MB
// if it may, which would look like a leak.
extern "C" const char* __asan_default_options();
extern "C" const char* __asan_default_options() {
  return "quarantine_size_mb=1:thread_local_quarantine_size_kb=64";
}

namespace caleidoscopio::endurance {

namespace {

long residentKilobytes() {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);)
    if (line.starts_with("VmRSS:")) return std::stol(line.substr(6));
  throw std::runtime_error("/proc/self/status has no VmRSS");
}

}  // namespace

void MemoryWatch::useOneHeap() {
  mallopt(M_ARENA_MAX, 1);
}

void MemoryWatch::sample(const std::string& label) {
  // What the heap keeps for later is no leak.
  malloc_trim(0);
  kilobytes_.push_back(residentKilobytes());
  std::printf("%-24s %8ld kB resident\n", label.c_str(), kilobytes_.back());
  std::fflush(stdout);
}

bool MemoryWatch::flat() const {
  const long grown = kilobytes_.back() - kilobytes_.front();
  std::printf("grown since the warm-up by %ld kB; allowed are %ld kB\n", grown, marginKilobytes);
  return grown <= marginKilobytes;
}

}  // namespace caleidoscopio::endurance
