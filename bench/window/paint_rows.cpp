#include <memory>
#include <string>

#include "scene.h"
#include "window_rows.h"

namespace caleidoscopio::bench {

namespace {

constexpr QSize screen(1920, 1080);

struct Sides {
  explicit Sides(const std::shared_ptr<Scene>& ours, int cells) : scene(ours), count(cells) {
    scene->change(cells);
    bare = std::make_unique<BareField>(*scene, screen);
  }
  std::shared_ptr<Scene> scene;
  std::unique_ptr<BareField> bare;
  int count;
};

}  // namespace

void addPaintRows(Rows& rows) {
  for (const int cells : {4, 36, 441}) {
    // A window of its own for each row, so that no row finds the colours of another.
    const auto sides = std::make_shared<Sides>(std::make_shared<Scene>(screen), cells);
    rows.push_back({"paint " + std::to_string(cells) + " cells", 1.5,
                    [sides] { sides->scene->tick(); }, [sides] { sides->bare->tick(); },
                    [sides] { return samePicture(*sides->scene, *sides->bare); }});
  }
}

}  // namespace caleidoscopio::bench
