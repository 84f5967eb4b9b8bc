#pragma once

#include <deque>
#include <map>
#include <optional>
#include <string>

#include "instrument.h"
#include "panel/end_run.h"
#include "platform/run_ended.h"

namespace caleidoscopio::test {

/// A wall clock that stands. At its first reading the salt of the random pick is 0.
struct StandingClock : WallClock {
  WallTime time{12, 0, 0, 2026};
  WallTime now() override { return time; }
};

/// Draws that the test has set. A draw from an empty queue ends the run, unless `otherwise` says
/// what comes then.
struct SetDraws : Generator {
  std::deque<float> queue;
  std::optional<float> otherwise;
  int seeds = 0;
  int draws = 0;
  void seed(const WallTime&) override { ++seeds; }
  float draw() override {
    ++draws;
    if (queue.empty()) {
      if (otherwise) return *otherwise;
      endRun("no draw left");
    }
    const float r = queue.front();
    queue.pop_front();
    return r;
  }
};

/// Text files that live in memory.
struct FilesInMemory : TextFiles {
  std::map<std::string, std::string> files;
  std::string rootFolder;
  bool writable = true;
  std::string root() override { return rootFolder; }
  std::optional<std::string> read(const std::string& path, std::string& why) override {
    const auto at = files.find(path);
    if (at != files.end()) return at->second;
    why = "no such file";
    return std::nullopt;
  }
  bool write(const std::string& path, const std::string& text, std::string& why) override {
    if (writable) files[path] = text;
    if (!writable) why = "not writable";
    return writable;
  }
};

/// An instrument with everything around it set by the test.
struct Rig {
  StandingClock clock;
  SetDraws generator;
  FilesInMemory files;
  Platform platform{clock, generator, files, {}};
  Instrument instrument{platform};
  Store& s = instrument.s;

  /// Sets the next draw so that a pick among n gives k (with the salt at 0).
  void pick(int k, int n) {
    generator.queue.push_back((static_cast<float>(k) - 0.5F) / static_cast<float>(n));
  }
};

}  // namespace caleidoscopio::test
