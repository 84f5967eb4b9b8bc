#pragma once

#include <QImage>
#include <QStringList>
#include <functional>
#include <optional>

#include "desktop/main_window.h"
#include "endurance/set_ups.h"
#include "platform/machine_clock.h"
#include "support/seeded.h"

namespace caleidoscopio::endurance {

/// The instrument in its own window on whatever screen there is, with the shipped memories.
class RealWindow {
 public:
  /// `prepare` sets up the default memory; the run starts from it.
  RealWindow(unsigned seed, const std::function<void(Store&)>& prepare);

  Store& s() { return driver->store(); }
  FieldWidget& field() { return *window->findChild<FieldWidget*>(); }

  /// Lets events come for `ms`.
  static void letRun(int ms);
  /// Lets events come until nothing has changed for a while, so that all is painted; false when
  /// the instrument does not rest.
  bool rest();
  /// How many pixels of the screen differ from the same picture painted anew, by a second window,
  /// from the store. To be called at rest.
  int wrongPixels();

  MachineClock clock;
  test::SeededDraws draws;
  test::FilesInMemory files = shippedFiles();
  Platform platform{clock, draws, files, {}};
  std::optional<Driver> driver;
  std::optional<MainWindow> window;
  QStringList faults;
  long long changes = 0;  ///< handlers that have run to their end
};

}  // namespace caleidoscopio::endurance
