#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QScreen>
#include <QThread>
#include <QWidget>
#include <array>
#include <cstdio>

#include "processor_time.h"
#include "scene.h"
#include "window_rows.h"

namespace caleidoscopio::bench {

namespace {

/// What lies on the screen before a program starts, in a colour that no program shows.
class Curtain : public QWidget {
 public:
  Curtain() {
    setPalette(QColor(0xFF, 0x00, 0xFE));
    showAt(*this, {0, 0}, QGuiApplication::primaryScreen()->size());
  }
  /// True once a window has covered the middle of the screen with something of its own.
  bool covered() const {
    QScreen& screen = *QGuiApplication::primaryScreen();
    const QPoint middle = screen.geometry().center();
    const QImage found = screen.grabWindow(0, middle.x(), middle.y(), 1, 1).toImage();
    return !found.isNull() && found.pixelColor(0, 0) != QColor(0xFF, 0x00, 0xFE);
  }
};

constexpr int patienceMs = 20000;

bool waitUntil(const Curtain& curtain, bool covered) {
  QElapsedTimer waited;
  waited.start();
  while (curtain.covered() != covered) {
    if (waited.elapsed() > patienceMs) return false;
    paintNow();
    QThread::usleep(500);
  }
  return true;
}

/// A line of /proc/PROCESS/smaps_rollup in kB.
double memoryKb(qint64 process, const QByteArray& name) {
  QFile file(QStringLiteral("/proc/%1/smaps_rollup").arg(process));
  if (!file.open(QIODevice::ReadOnly)) return 0;
  for (const QByteArray& line : file.readAll().split('\n'))
    if (line.startsWith(name + ':'))
      return line.mid(name.size() + 1).simplified().split(' ')[0].toDouble();
  return 0;
}

enum Measure { Elapsed, Processor, Resident, Proportional, measures };
using Figures = std::array<double, measures>;

struct Line {
  const char* name;
  Measure measure;
};
constexpr Line lines[] = {
    {"start-up to the first frame, ms", Elapsed},
    {"start-up, processor time, ms", Processor},
    {"resident memory, kB", Resident},
    {"its share of it, kB", Proportional},
};

/// Starts a program, waits for its first frame, and ends it. False if there was none.
bool run(const QString& program, const Curtain& curtain, Figures& figures) {
  QProcess process;
  process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  QElapsedTimer clock;
  clock.start();
  process.start(program, QStringList());
  const bool shown = process.waitForStarted() && waitUntil(curtain, true);
  figures[Elapsed] = static_cast<double>(clock.nsecsElapsed()) / 1e6;
  figures[Processor] = processorMs(process.processId());
  // What start-up puts off until the window stands belongs to its memory too.
  QThread::sleep(1);
  figures[Resident] = memoryKb(process.processId(), "Rss");
  figures[Proportional] = memoryKb(process.processId(), "Pss");
  process.kill();
  process.waitForFinished();
  return waitUntil(curtain, false) && shown;
}

}  // namespace

bool compareProcesses(const std::string& program, const std::string& empty,
                      const Options& options) {
  const Curtain curtain;
  if (!waitUntil(curtain, false)) {
    std::fputs("the screen shows nothing of ours\n", stderr);
    return false;
  }
  const std::array programs{QString::fromStdString(program), QString::fromStdString(empty)};
  std::array<std::array<std::vector<double>, measures>, 2> all;
  // Turn 0 brings both programs into the machine's memory and does not count.
  for (int turn = 0; turn <= options.turns; ++turn)
    for (std::size_t side = 0; side < programs.size(); ++side) {
      Figures figures{};
      if (!run(programs[side], curtain, figures)) {
        std::fprintf(stderr, "%s showed no frame\n", qPrintable(programs[side]));
        return false;
      }
      for (std::size_t m = 0; turn > 0 && m < measures; ++m) all[side][m].push_back(figures[m]);
    }
  bool well = true;
  for (const Line& line : lines)
    well = (printLine(line.name, median(all[0][line.measure]), median(all[1][line.measure]), 2.0) ||
            options.ignoreAims) &&
           well;
  return well;
}

}  // namespace caleidoscopio::bench
