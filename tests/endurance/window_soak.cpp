// Plays in a real window for some minutes and watches its memory and its picture.
#include <QApplication>
#include <QElapsedTimer>
#include <algorithm>
#include <cstdio>

#include "endurance/memory_watch.h"
#include "endurance/real_window.h"

namespace caleidoscopio::endurance {
namespace {

constexpr int samples = 10;

bool soak(double minutes, unsigned seed) {
  RealWindow real(seed, [](Store& s) {
    s.lblHide.BackColor = colours::unselected;
    switchAllIn(s);
  });
  QElapsedTimer time;
  time.start();
  MemoryWatch memory;
  bool good = true;
  // The first tenth warms up.
  for (int n = 1; n <= samples; ++n) {
    const long long end = static_cast<long long>(minutes * 60'000 * n / samples);
    while (time.elapsed() < end && real.faults.isEmpty())
      RealWindow::letRun(static_cast<int>(std::max(1LL, end - time.elapsed())));
    if (!real.faults.isEmpty()) {
      std::printf("run ended: %s\n", qPrintable(real.faults.join('\n')));
      return false;
    }
    const bool rested = real.rest();
    int wrong = rested ? real.wrongPixels() : 0;
    // The first looks leave the heap as large as every later one will find it.
    for (int more = 0; n == 1 && rested && more < 2; ++more) wrong += real.wrongPixels();
    char label[64];
    std::snprintf(label, sizeof label, "%.2f min, %lld handlers",
                  static_cast<double>(time.elapsed()) / 60e3, real.changes);
    memory.sample(label);
    if (!rested) std::puts("no moment of rest to look at the picture");
    if (wrong) std::printf("%d pixels are not as painted anew from the store\n", wrong);
    good = good && rested && wrong == 0;
  }
  std::printf("%lld cells painted\n", real.field().paintedCells());
  return memory.flat() && good;
}

}  // namespace
}  // namespace caleidoscopio::endurance

// window_soak MINUTES [SEED]
int main(int argc, char** argv) {
  using namespace caleidoscopio;
  endurance::MemoryWatch::useOneHeap();
  QApplication app(argc, argv);
  installAccessibility();
  const double minutes = argc > 1 ? QByteArray(argv[1]).toDouble() : 0;
  if (minutes <= 0) {
    std::fputs("usage: window_soak MINUTES [SEED]\n", stderr);
    return 2;
  }
  const unsigned seed = argc > 2 ? QByteArray(argv[2]).toUInt() : 1;
  std::printf("all timers in for %g min in a window on %s, seed %u\n", minutes,
              qPrintable(QGuiApplication::platformName()), seed);
  return endurance::soak(minutes, seed) ? 0 : 1;
}
