#include <memory>
#include <string>

#include "break/patterns.h"
#include "draws.h"
#include "mosaic/index_map.h"
#include "rows.h"

namespace caleidoscopio::bench {

namespace {

/// What a sweep reads and writes beside the field; texts where the panel has texts.
struct BareBreak {
  std::string pattern, count, kind, slot;
  Colour direction;
};

struct Sides {
  NoFiles files;
  Rig rig{files};
  BareField field;
  BareBreak state;
};

void bareTick(BareField& field, BareBreak& state, bool digits) {
  if (state.kind == "2" || state.count == "1") return;
  const auto pattern = static_cast<int>(number(state.pattern));
  const auto count = static_cast<int>(number(state.count)) - 1;
  state.count = std::to_string(count);
  const int start = startValue(*findBreakPattern(pattern));
  const auto ring =
      breakRing(pattern, state.direction == colours::selected ? start - count : count);
  if (state.kind == "3") {
    for (const std::int16_t cell : ring) {
      const auto i = static_cast<std::size_t>(cell);
      take(field.miro, i, field.miro2, i, digits);
    }
    return;
  }
  const auto k = number(state.slot);
  for (const std::int16_t cell : ring)
    take(field.miro, static_cast<std::size_t>(cell), field.valore, k, digits);
  if (pattern != immediato) return commit(field);
  for (const std::int16_t cell : ring)
    take(field.miro2, static_cast<std::size_t>(cell), field.valore, k, true);
}

void addRow(Rows& rows, int index, const std::string& kind) {
  const BreakPattern& pattern = *findBreakPattern(index);
  const auto sides = std::make_shared<Sides>();
  Store& s = sides->rig.s;
  paint(s, sides->field, false);
  const std::string start = std::to_string(startValue(pattern));
  s.lblBreakMode[17].Caption = std::to_string(index);
  s.lblTrans.Caption = kind;
  s.lblBreak.Caption = start;
  sides->state = {std::to_string(index), start, kind, s.lblColSCelto.Caption, s.lblBreak.BackColor};
  // The tick that ends a Break is left out: after the last ring the sweep begins anew.
  rows.push_back({std::string(pattern.name) + (kind == "3" ? ", uncover" : ", paint"), 2.0,
                  [&s, start] {
                    s.TmrBreak.raise(Event::Tick);
                    if (s.lblBreak.Caption == "1") s.lblBreak.Caption = start;
                  },
                  [sides, start] {
                    bareTick(sides->field, sides->state, false);
                    if (sides->state.count == "1") sides->state.count = start;
                  },
                  [sides] {
                    return sameField(sides->rig.s, sides->field) &&
                           sides->rig.s.lblBreak.Caption == sides->state.count;
                  }});
}

}  // namespace

void addBreakRows(Rows& rows) {
  for (const char* kind : {"1", "3"})
    for (int number = 1; number <= 12; ++number) addRow(rows, number, kind);
}

}  // namespace caleidoscopio::bench
