#include <memory>

#include "field.h"
#include "mosaic/cells.h"
#include "rows.h"

namespace caleidoscopio::bench {

namespace {

struct Sides {
  Sides() { paint(rig.s, bare, true); }
  NoFiles files;
  Rig rig{files};
  BareField bare;
};

}  // namespace

void addPlaneRows(Rows& rows) {
  const auto sides = std::make_shared<Sides>();
  Store& s = sides->rig.s;
  const auto same = [sides] { return sameField(sides->rig.s, sides->bare); };
  // One cell takes the next colour each time, so that there is something to commit.
  const auto step = std::make_shared<std::size_t>(0);
  const auto bareStep = std::make_shared<std::size_t>(0);
  rows.push_back({"commit a plane", 2.0,
                  [&s, step] {
                    const auto k = static_cast<std::int64_t>((*step)++ % 7);
                    copyColours(s.lblMiro[1], s.lblValore[k]);
                    ConsolidaPiano(s);
                  },
                  [sides, bareStep] {
                    BareField& bare = sides->bare;
                    const std::size_t k = (*bareStep)++ % 7;
                    take(bare.miro, 1, bare.valore, k, false);
                    commit(bare);
                  },
                  same});
  rows.push_back({"copy a plane", 2.0,
                  [&s] {
                    const bool captions = showsDigits(s);
                    for (int i = 1; i <= cellCount; ++i)
                      copyIf(captions, s.lblMiro[i], s.lblMiro2[i]);
                  },
                  [sides] {
                    BareField& bare = sides->bare;
                    for (std::size_t i = 1; i <= cellCount; ++i) take(bare.miro, i, bare.miro2, i);
                  },
                  same});
}

}  // namespace caleidoscopio::bench
