#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "instrument.h"

namespace caleidoscopio::bench {

/// An instrument of its own, with a clock that stands still and draws and files set by `Rig`'s
/// user.
struct Rig : private WallClock, private Generator {
  explicit Rig(TextFiles& files) : platform{*this, *this, files, {}}, instrument(platform) {}
  Platform platform;
  Instrument instrument;
  Store& s = instrument.s;

 private:
  WallTime now() override { return {}; }
  void seed(const WallTime&) override {}
  float draw() override { return 0.5F; }
};

/// Files for an instrument that asks for none.
struct NoFiles : TextFiles {
  std::string root() override { return {}; }
  std::optional<std::string> read(const std::string&, std::string&) override { return {}; }
  bool write(const std::string&, const std::string&, std::string&) override { return false; }
};

/// Cells as plain arrays.
template <std::size_t Count>
struct Cells {
  std::array<std::string, Count> Caption;
  std::array<Colour, Count> BackColor;
  std::array<Colour, Count> ForeColor;
};

/// Cell `to` takes cell `from`, its caption only if captions travel.
template <std::size_t To, std::size_t From>
void take(Cells<To>& target, std::size_t to, const Cells<From>& source, std::size_t from,
          bool captions = true) {
  if (captions) target.Caption[to] = source.Caption[from];
  target.BackColor[to] = source.BackColor[from];
  target.ForeColor[to] = source.ForeColor[from];
}

/// What the engines read and write of the field, as plain arrays.
struct BareField {
  Cells<442> miro;
  Cells<883> miro2;
  Cells<8> valore;
  Cells<1> memC;
  Cells<10> memory;
};

/// A picture of quartets in all seven colours, without a pattern that a processor could learn,
/// the same in the instrument and in the bare field. `digits`: cells show their digits.
void paint(Store& s, BareField& bare, bool digits);

/// True if the planes are the same on both sides.
bool sameField(const Store& s, const BareField& bare);

/// The commit of the display plane to the design plane, on plain arrays.
void commit(BareField& field);

}  // namespace caleidoscopio::bench
