#pragma once

#include <string>
#include <vector>

namespace caleidoscopio::endurance {

/// Samples of this process's resident memory, the first taken when the run has warmed up.
class MemoryWatch {
 public:
  /// Memory that does not leak still wanders by some pages: a heap that is cut up otherwise, a
  /// font or a glyph seen for the first time.
  static constexpr long marginKilobytes = 512;

  /// Keeps to one heap, all of whose free memory a sample can give back. Call it before anything
  /// starts a thread: a thread's own heap would keep the largest picture that passed through it.
  static void useOneHeap();
  /// Takes a sample and prints it with `label`.
  void sample(const std::string& label);
  /// Prints by how much the last sample is above the first; false beyond the margin.
  bool flat() const;

 private:
  std::vector<long> kilobytes_;
};

}  // namespace caleidoscopio::endurance
