// Draws the pictures of the guide: guide_pictures SHARE FOLDER. Each section of the panels is cut
// out of the real window, stopped, with the memory that the instrument starts from.

#include <QApplication>
#include <QDir>
#include <cstdio>

#include "desktop/looks.h"
#include "desktop/main_window.h"
#include "platform/built_in_generator.h"
#include "platform/disk_files.h"

namespace caleidoscopio {

namespace {

/// A strip of a panel, in twips from the panel's top at the design size.
struct Section {
  const char* name;
  const char* panel;
  double top, bottom;
};

constexpr Section sections[] = {
    {"a-shift", "FraPannello(0)", 60, 1900},        {"b-transform", "FraPannello(0)", 1980, 4680},
    {"c-frame", "FraPannello(0)", 4660, 5900},      {"d-break", "FraPannello(0)", 6240, 9080},
    {"e-sequencer", "FraPannello(0)", 9200, 10420}, {"go", "FraPannello(0)", 10600, 11055},
    {"gamma", "FraPannello(1)", 60, 3640},          {"tools", "FraPannello(1)", 3660, 4840},
    {"palette", "FraPannello(1)", 4840, 6360},      {"random", "FraPannello(1)", 6420, 7360},
    {"f-colours", "FraPannello(1)", 7620, 8300},    {"memories", "FraPannello(1)", 8540, 10660},
};

struct NoonClock : WallClock {
  WallTime now() override { return {12, 0, 0, 2026}; }
};

bool save(const QPixmap& picture, const QDir& folder, const QString& name) {
  return picture.save(folder.filePath(name + ".png"));
}

int draw(const char* share, const QDir& folder) {
  NoonClock clock;
  BuiltInGenerator generator;
  generator.fixSeed(1);
  DiskFiles files = DiskFiles::under(share);
  constexpr int width = 1366, height = 768;
  Platform platform{clock, generator, files, {width * twipsToPixel, height * twipsToPixel}};
  Driver driver(platform);
  QObject::connect(&driver, &Driver::faulted,
                   [](const QString& message) { std::fputs(qPrintable(message), stderr); });
  driver.start();
  if (driver.runEnded()) return 1;
  MainWindow window(driver);
  window.resize(width, height);
  window.show();
  bool good = save(window.grab(), folder, "running");
  driver.raise(driver.store().form, Event::KeyDown, 0);
  good &= save(window.grab(), folder, "panels");
  for (const Section& section : sections) {
    auto* panel = window.findChild<QWidget*>(section.panel);
    if (!panel) return 1;
    const auto pixel = [](double twips) { return qRound(twips / twipsToPixel); };
    const QRect strip(0, pixel(section.top), panel->width(),
                      pixel(section.bottom) - pixel(section.top));
    good &= save(panel->grab(strip), folder, section.name);
  }
  driver.raise(driver.store().lblSeq, Event::MouseDown, 11);
  good &= save(window.findChild<QWidget*>("FraPannello(2)")->grab(), folder, "table");
  return good ? 0 : 1;
}

}  // namespace

}  // namespace caleidoscopio

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QT_SCALE_FACTOR", "2");
  QApplication app(argc, argv);
  if (argc != 3) {
    std::fputs("usage: guide_pictures SHARE FOLDER\n", stderr);
    return 2;
  }
  return caleidoscopio::draw(argv[1], QDir(argv[2]));
}
