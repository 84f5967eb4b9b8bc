#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>
#include <cmath>
#include <cstdio>
#include <functional>

#include "plot.h"
#include "processor_time.h"
#include "scene.h"
#include "window_rows.h"

namespace caleidoscopio::bench {

namespace {

constexpr QSize sizes[] = {{1024, 768},  {1366, 768},  {1920, 1080}, {2560, 1440},
                           {3840, 2160}, {5120, 2880}, {7680, 4320}};
constexpr int rates[] = {1, 2, 5, 10, 20, 50, 100};

/// Processor time of one of many in ms: the median of some blocks.
double costOf(const std::function<void()>& work) {
  constexpr int blocks = 9, warmUp = 20;
  constexpr double blockMs = 40;
  const qint64 self = QCoreApplication::applicationPid();
  for (int i = 0; i < warmUp; ++i) work();
  std::vector<double> costs;
  for (int block = 0; block < blocks; ++block) {
    const double began = processorMs(self);
    double now = began;
    int done = 0;
    for (; now < began + blockMs; now = processorMs(self), ++done) work();
    costs.push_back((now - began) / done);
  }
  return median(costs);
}

/// The pixels of the cells that change.
double megapixels(const Scene& scene) {
  double sum = 0;
  for (const int i : scene.changing()) {
    const QRect box = scene.field().boxOf(i);
    sum += static_cast<double>(box.width()) * box.height() / 1e6;
  }
  return sum;
}

std::vector<Plot> sizePlots() {
  std::printf("Processor time of a tick's painting, in ms\n\n");
  std::printf("| screen | cells | changed area, Mpx | instrument | bare | ms/Mpx |\n");
  std::printf("|---|--:|--:|--:|--:|--:|\n");
  std::vector<Plot> plots;
  for (const int cells : {36, 441}) {
    Series ours{"instrument", "#b00020", {}}, bare{"bare", "#1060c0", {}};
    for (const QSize size : sizes) {
      Scene scene(size);
      scene.change(cells);
      BareField window(scene, size);
      const double area = megapixels(scene);
      ours.points.push_back({area, costOf([&] { scene.tick(); })});
      bare.points.push_back({area, costOf([&] { window.tick(); })});
      std::printf("| %dx%d | %d | %.3f | %.3f | %.3f | %.2f |\n", size.width(), size.height(),
                  cells, area, ours.points.back().y, bare.points.back().y,
                  ours.points.back().y / area);
      std::fflush(stdout);
    }
    plots.push_back({"Painting " + std::to_string(cells) + " cells",
                     "changed area, megapixels",
                     "ms",
                     {ours, bare}});
  }
  return plots;
}

Plot ratePlot(int server, int seconds) {
  std::printf("\nProcessor time of a second of Timer A at 1920x1080, in ms\n\n");
  std::printf("| ticks/s | cells painted/s | program | server | program, a tick |\n");
  std::printf("|--:|--:|--:|--:|--:|\n");
  Scene scene(QSize(1920, 1080));
  Driver& driver = scene.driver();
  Store& s = driver.store();
  Series program{"program", "#b00020", {}}, display{"display server", "#1060c0", {}};
  for (const int rate : rates) {
    s.TmrGoA.setInterval(1000 / rate);
    s.TmrGoA.setEnabled(true);
    driver.raise(s.lblProva, Event::Tick, 0);  // so that the driver sees that a timer is on
    const qint64 self = QCoreApplication::applicationPid();
    const long long cells = scene.field().paintedCells();
    const double ours = processorMs(self), theirs = processorMs(server);
    QEventLoop loop;
    QTimer::singleShot(seconds * 1000, &loop, &QEventLoop::quit);
    loop.exec();
    program.points.push_back({static_cast<double>(rate), (processorMs(self) - ours) / seconds});
    display.points.push_back({static_cast<double>(rate), (processorMs(server) - theirs) / seconds});
    std::printf("| %d | %.0f | %.2f | %.2f | %.3f |\n", rate,
                static_cast<double>(scene.field().paintedCells() - cells) / seconds,
                program.points.back().y, display.points.back().y, program.points.back().y / rate);
    std::fflush(stdout);
  }
  return {"A second of Timer A, 1920x1080", "ticks a second", "ms", {program, display}};
}

}  // namespace

bool growth(const std::string& picture, int server, int seconds) {
  std::vector<Plot> plots = sizePlots();
  plots.push_back(ratePlot(server, seconds));
  return draw(plots, picture);
}

}  // namespace caleidoscopio::bench
