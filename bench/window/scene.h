#pragma once

#include <QImage>
#include <QWidget>
#include <memory>
#include <vector>

#include "desktop/looks.h"
#include "desktop/main_window.h"
#include "platform/built_in_generator.h"
#include "platform/disk_files.h"
#include "platform/machine_clock.h"

namespace caleidoscopio::bench {

/// The instrument in its real window of some size, started from the shipped default memory and
/// stopped, its panels shown. A tick of ours changes as many cells as it is told.
class Scene {
 public:
  explicit Scene(QSize size);

  /// Something has happened that gives some cells their next colour, in the way in which a timer's
  /// event does; returns when that has been painted and sent to the display.
  void tick();
  /// So many cells change from now on: quartets spread over the field.
  void change(int cells);

  const std::vector<int>& changing() const { return changing_; }
  FieldWidget& field() const { return *window_->findChild<FieldWidget*>(); }
  Driver& driver() { return driver_; }
  MainWindow& window() { return *window_; }

 private:
  MachineClock clock_;
  BuiltInGenerator generator_;
  DiskFiles files_;
  Platform platform_;
  Driver driver_;
  std::unique_ptr<MainWindow> window_;
  std::vector<int> changing_;
  int step_ = 0;
};

/// A window of the same size that fills the same rectangles and knows nothing else.
class BareField : public QWidget {
 public:
  /// The rectangles of the cells that change in `scene`.
  BareField(const Scene& scene, QSize size);
  void tick();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::vector<QRect> boxes_;
  QRegion region_;
  int step_ = 0;
};

/// Shows a window and waits until it has been painted.
void showAt(QWidget& window, QPoint corner, QSize size);
/// Works off what waits to be painted.
void paintNow();
/// True if the two windows show the same in the rectangles of the cells that change.
bool samePicture(Scene& scene, BareField& bare);

}  // namespace caleidoscopio::bench
