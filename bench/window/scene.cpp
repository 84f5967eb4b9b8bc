#include "scene.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QPainter>
#include <algorithm>
#include <array>
#include <utility>

#include "mosaic/index_map.h"
#include "platform/folders.h"

namespace caleidoscopio::bench {

namespace {

constexpr std::array<Colour, 2> colours{{{0x0000FF}, {0x00FF00}}};

Colour colourOf(int step) {
  return colours[static_cast<std::size_t>(step % 2)];
}

}  // namespace

void paintNow() {
  QCoreApplication::sendPostedEvents();
  QCoreApplication::processEvents();
}

void showAt(QWidget& window, QPoint corner, QSize size) {
  window.setGeometry(QRect(corner, size));
  window.show();
  QElapsedTimer waited;
  waited.start();
  while (waited.elapsed() < 500) paintNow();
}

Scene::Scene(QSize size)
    : files_(DiskFiles::under(shippedFolder(programFolder()).value_or(""))),
      platform_{clock_, generator_, files_,
                ScreenSize{size.width() * twipsToPixel, size.height() * twipsToPixel}},
      driver_(platform_) {
  generator_.fixSeed(1);
  QObject::connect(&driver_, &Driver::faulted,
                   [](const QString& message) { qFatal("%s", qPrintable(message)); });
  driver_.start();
  Store& s = driver_.store();
  // A control that the instrument leaves alone.
  s.lblProva.tie(Event::Tick, 0, 0, [this, &s](int) {
    const Colour colour = colourOf(++step_);
    for (const int i : changing_) s.lblMiro[i].BackColor = colour;
  });
  window_ = std::make_unique<MainWindow>(driver_);
  driver_.raise(s.form, Event::KeyDown, 0);
  showAt(*window_, {0, 0}, size);
}

void Scene::change(int cells) {
  changing_.clear();
  const int quartets = cells / 4;
  for (int q = 0; q < quartets; ++q)
    for (int i = 1; i <= 4; ++i) changing_.push_back(q * (cellCount / 4) / quartets * 4 + i);
  if (cells == cellCount) changing_.push_back(centre);
}

void Scene::tick() {
  driver_.raise(driver_.store().lblProva, Event::Tick, 0);
  paintNow();
}

BareField::BareField(const Scene& scene, QSize size) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setCursor(Qt::ArrowCursor);
  for (const int i : scene.changing()) boxes_.push_back(scene.field().boxOf(i));
  // In the order in which they lie in memory: to go to and fro costs more.
  std::sort(boxes_.begin(), boxes_.end(), [](const QRect& a, const QRect& b) {
    return std::pair(a.top(), a.left()) < std::pair(b.top(), b.left());
  });
  for (const QRect& box : boxes_) region_ += box;
  showAt(*this, {0, 0}, size);
}

void BareField::tick() {
  ++step_;
  update(region_);
  paintNow();
}

void BareField::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QColor colour = toScreen(colourOf(step_));
  for (const QRect& box : boxes_) painter.fillRect(box, colour);
}

bool samePicture(Scene& scene, BareField& bare) {
  const QImage ours = scene.window().grab().toImage();
  const QImage theirs = bare.grab().toImage();
  for (const int i : scene.changing()) {
    const QRect box = scene.field().boxOf(i);
    if (ours.copy(box) != theirs.copy(box)) return false;
  }
  return true;
}

}  // namespace caleidoscopio::bench
