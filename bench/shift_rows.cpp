#include <memory>
#include <string>

#include "field.h"
#include "rows.h"
#include "shift/shift_modes.h"

namespace caleidoscopio::bench {

namespace {

/// The quartet of `leader` takes a cell: the leader first, then its mirrors from the leader.
template <std::size_t From>
void takeQuartet(BareField& field, std::size_t leader, const Cells<From>& source, std::size_t from,
                 bool captions) {
  take(field.miro, leader, source, from, captions);
  for (std::size_t mirror = 1; mirror <= 3; ++mirror)
    take(field.miro, leader + mirror, field.miro, leader, captions);
}

template <std::size_t Held>
void rotate(BareField& field, std::span<const std::int16_t> line, Cells<Held>& held,
            std::size_t holder, bool captions) {
  const auto leader = [line](std::size_t k) { return static_cast<std::size_t>(line[k]); };
  const std::size_t last = line.size() - 1;
  take(held, holder, field.miro, leader(last), captions);
  for (std::size_t k = last; k > 0; --k)
    takeQuartet(field, leader(k), field.miro, leader(k - 1), captions);
  takeQuartet(field, leader(0), held, holder, captions);
}

void bareStep(BareField& field, const ShiftMode& mode, bool digits) {
  for (int n = 0; n < mode.lines.count(); ++n)
    if (mode.hold == Hold::Block)
      rotate(field, mode.lines.line(n), field.memory, static_cast<std::size_t>(n + 1), true);
    else
      rotate(field, mode.lines.line(n), field.memC, 0, digits);
  commit(field);
}

struct Sides {
  NoFiles files;
  Rig rig{files};
  BareField bare;
};

void addRow(Rows& rows, const ShiftMode& mode, bool digits) {
  const auto sides = std::make_shared<Sides>();
  Store& s = sides->rig.s;
  s.lblSomma.Caption = mode.code;
  paint(s, sides->bare, digits);
  rows.push_back(
      {std::string(mode.code) + " " + std::string(mode.caption) + (digits ? ", digits shown" : ""),
       2.0, [&s] { s.TmrGoA.raise(Event::Tick); },
       [sides, &mode, digits] { bareStep(sides->bare, mode, digits); },
       [sides] { return sameField(sides->rig.s, sides->bare); }});
}

}  // namespace

void addShiftRows(Rows& rows) {
  for (const ShiftMode& mode : shiftModes()) addRow(rows, mode, false);
  // The block modes move captions either way.
  for (const ShiftMode& mode : shiftModes())
    if (mode.hold == Hold::Cell) addRow(rows, mode, true);
}

}  // namespace caleidoscopio::bench
