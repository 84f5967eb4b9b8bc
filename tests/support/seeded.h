#pragma once

#include <functional>
#include <ostream>
#include <random>
#include <string>

#include "mosaic/index_map.h"
#include "support/rig.h"

namespace caleidoscopio::test {

/// Draws from a seed: the same for the same seed, everywhere.
struct SeededDraws : Generator {
  std::mt19937 engine;
  explicit SeededDraws(unsigned seed) : engine(seed) {}
  void seed(const WallTime&) override {}
  float draw() override { return static_cast<float>(engine() >> 8) * 0x1p-24F; }
  /// A whole number from 1 to n for the test itself.
  int among(int n) { return static_cast<int>(engine() % static_cast<unsigned>(n)) + 1; }
};

/// An instrument whose draws come from a seed.
struct SeededRig {
  explicit SeededRig(unsigned seed) : generator(seed) {}
  StandingClock clock;
  SeededDraws generator;
  FilesInMemory files;
  Platform platform{clock, generator, files, {}};
  Instrument instrument{platform};
  Store& s = instrument.s;
};

/// How many ticks a long run takes: all where the build is fast, a tenth where it looks closely.
#ifdef NDEBUG
inline constexpr int longRun = 100'000;
#else
inline constexpr int longRun = 10'000;
#endif

inline bool sameCell(const Frame& a, const Frame& b) {
  return a.Caption == b.Caption && a.BackColor == b.BackColor && a.ForeColor == b.ForeColor;
}

/// The leader of a field quartet whose four members are not the same on a plane, or 0.
inline int unequalQuartet(Store& s) {
  for (int i = 1; i <= fieldEnd; i += 4)
    for (int m = 1; m <= 3; ++m)
      if (!sameCell(s.lblMiro[i], s.lblMiro[i + m]) || !sameCell(s.lblMiro2[i], s.lblMiro2[i + m]))
        return i;
  return 0;
}

/// A slot whose lblTav does not name its colour, whose two labels differ, or whose swatch is not
/// marked as in use; or -1.
inline int unnamedSlot(Store& s) {
  for (int k = 0; k <= 6; ++k) {
    const Label& swatch = s.lblColore[std::stoi(s.lblTav[k].Caption)];
    if (s.lblValore[k].BackColor != swatch.BackColor ||
        s.lblValore[k].ForeColor != swatch.ForeColor ||
        s.lblSfondo[k].BackColor != swatch.BackColor ||
        s.lblSfondo[k].ForeColor != swatch.ForeColor || swatch.BorderStyle != 1)
      return k;
  }
  return -1;
}

/// Paints each field quartet, and each cell beyond the field, with a slot drawn at random.
inline void scatter(Store& s, SeededDraws& draws) {
  for (int i = 1; i <= cellCount; ++i) {
    const int from = i <= fieldEnd && i % 4 != 1 ? baseOf(i) : 0;
    const Label& slot = s.lblValore[draws.among(7) - 1];
    s.lblMiro2[i].Caption = from ? s.lblMiro2[from].Caption : slot.Caption;
    s.lblMiro[i].BackColor = s.lblMiro2[i].BackColor =
        from ? s.lblMiro2[from].BackColor : slot.BackColor;
    s.lblMiro[i].ForeColor = s.lblMiro2[i].ForeColor =
        from ? s.lblMiro2[from].ForeColor : slot.ForeColor;
  }
}

/// Cells of both planes in all attributes, to be compared.
struct Picture {
  std::string cells;
  bool operator==(const Picture&) const = default;
};
inline void PrintTo(const Picture& picture, std::ostream* out) {
  *out << "a picture that hashes to " << std::hash<std::string>()(picture.cells);
}
inline Picture picture(Store& s, int first = 1) {
  Picture all;
  const auto add = [&all](const Frame& f) {
    all.cells += f.Caption + '/' + std::to_string(f.BackColor.value) + '/' +
                 std::to_string(f.ForeColor.value) + ' ';
  };
  for (int i = first; i <= cellCount; ++i) {
    add(s.lblMiro[i]);
    add(s.lblMiro2[i]);
  }
  return all;
}

/// Puts both planes' quartet of `leader` in the colour of slot k.
inline void paintQuartet(Store& s, int leader, int k) {
  for (int m = 0; m <= 3; ++m) {
    for (Label* cell : {&s.lblMiro[leader + m], &s.lblMiro2[leader + m]}) {
      cell->BackColor = s.lblValore[k].BackColor;
      cell->ForeColor = s.lblValore[k].ForeColor;
    }
    s.lblMiro2[leader + m].Caption = s.lblValore[k].Caption;
  }
}

/// The same for the whole field.
inline void paintField(Store& s, int k) {
  for (int i = 1; i <= fieldEnd; i += 4) paintQuartet(s, i, k);
}

}  // namespace caleidoscopio::test
