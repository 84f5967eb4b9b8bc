#include "endurance/real_window.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QScreen>
#include <QTest>
#include <algorithm>
#include <cstdio>
#include <stdexcept>

#include "memories/record.h"

namespace caleidoscopio::endurance {

namespace {

constexpr int width = 1024, height = 768;
// Longer than the toolkit waits before it paints what was asked for.
constexpr int restMs = 60;
constexpr int patienceMs = 30'000;

}  // namespace

RealWindow::RealWindow(unsigned seed, const std::function<void(Store&)>& prepare) : draws(seed) {
  Instrument model(platform);
  model.start();
  click(model.s.cmdGoTimer);
  prepare(model.s);
  files.files["Miro-Vel-Ta/Dati/Default.txt"] = Record(model.s.controls, memoryRuns()).write();

  driver.emplace(platform);
  QObject::connect(&*driver, &Driver::faulted,
                   [this](const QString& message) { faults << message; });
  QObject::connect(&*driver, &Driver::changed, [this] { ++changes; });
  driver->start();
  if (driver->runEnded()) throw std::runtime_error(faults.join('\n').toStdString());
  window.emplace(*driver);
  window->setGeometry(0, 0, width, height);
  window->mirror();
  window->show();
  if (!QTest::qWaitForWindowExposed(&*window)) throw std::runtime_error("no window is shown");
}

void RealWindow::letRun(int ms) {
  QTest::qWait(ms);
}

bool RealWindow::rest() {
  QElapsedTimer patience, quiet;
  patience.start();
  quiet.start();
  for (long long seen = changes; quiet.elapsed() < restMs;) {
    if (patience.elapsed() > patienceMs) return false;
    letRun(5);
    if (changes == seen) continue;
    seen = changes;
    quiet.restart();
  }
  return true;
}

int RealWindow::wrongPixels() {
  const QImage shown = window->screen()->grabWindow(window->winId()).toImage();
  MainWindow anew(*driver);
  anew.resize(window->size());
  anew.mirror();
  const QImage expected = anew.grab().toImage();
  if (shown.size() != expected.size()) return std::max(1, shown.width() * shown.height());
  int wrong = 0;
  for (int y = 0; y < shown.height(); ++y)
    for (int x = 0; x < shown.width(); ++x)
      wrong += (shown.pixel(x, y) | 0xFF000000) != (expected.pixel(x, y) | 0xFF000000) ? 1 : 0;
  if (wrong > 0) {
    const QString left = QCoreApplication::applicationDirPath() + QStringLiteral("/%1.png");
    shown.save(left.arg(QStringLiteral("shown")));
    expected.save(left.arg(QStringLiteral("expected")));
    std::printf("left: %s\n", qPrintable(left.arg(QStringLiteral("{shown,expected}"))));
  }
  return wrong;
}

}  // namespace caleidoscopio::endurance
