#include <memory>
#include <string>

#include "draws.h"
#include "frame/frame_lines.h"
#include "rows.h"

namespace caleidoscopio::bench {

namespace {

struct BareFrame : BareDrawing {
  Cells<1> fresh;
  std::string random, rarity, slots;  ///< lblNumCas, lblRndC(0), lblColCornice
  std::string cross, border;          ///< directions
};

template <std::size_t From>
void takePlace(BareField& field, const FramePlace& place, const Cells<From>& source,
               std::size_t from, bool captions) {
  for (const std::int16_t cell : place.all())
    take(field.miro, static_cast<std::size_t>(cell), source, from, captions);
}

void enter(BareFrame& bare, const FramePlace& place) {
  bare.random = std::to_string(bare.pick(number(bare.rarity)));
  if (bare.random != "1") return takePlace(bare.field, place, bare.field.memC, 0, bare.shows());
  take(bare.fresh, 0, bare.field.valore, bare.pick(number(bare.slots)) - 1);
  takePlace(bare.field, place, bare.fresh, 0, bare.shows());
}

void move(BareFrame& bare, const FrameLine& line, const std::string& direction) {
  BareField& field = bare.field;
  const bool digits = bare.shows();
  const auto read = [&line](std::size_t k) { return static_cast<std::size_t>(line[k].read()); };
  if (direction == "Out") {
    take(field.memC, 0, field.miro, read(0), digits);
    for (std::size_t k = 0; k < 9; ++k) takePlace(field, line[k], field.miro, read(k + 1), digits);
    enter(bare, line[9]);
  } else {
    take(field.memC, 0, field.miro, read(9), digits);
    for (std::size_t k = 9; k > 0; --k) takePlace(field, line[k], field.miro, read(k - 1), digits);
    enter(bare, line[0]);
  }
}

void addRow(Rows& rows, const std::string& name, const std::string& direction,
            const std::string& rarity) {
  const auto sides = std::make_shared<DrawingSides<BareFrame>>();
  Store& s = sides->rig.s;
  for (const int n : {1, 2}) s.lblCorniceOpzio[n].Caption = direction;
  s.lblRndC[0].Caption = rarity;
  BareFrame& bare = sides->bare;
  bare.cross = bare.border = direction;
  bare.rarity = rarity;
  bare.slots = s.lblColCornice.Caption;
  rows.push_back({name, 2.0, [&s] { s.TmrGoC.raise(Event::Tick); },
                  [&bare] {
                    move(bare, crossLine, bare.cross);
                    move(bare, borderLine, bare.border);
                    commit(bare.field);
                  },
                  [sides] { return sides->same(); }});
}

}  // namespace

void addFrameRows(Rows& rows) {
  addRow(rows, "cross and frame Out", "Out", "2");
  addRow(rows, "cross and frame In", "In", "2");
  addRow(rows, "cross and frame Out, always fresh", "Out", "1");
}

}  // namespace caleidoscopio::bench
