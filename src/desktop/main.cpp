#include <unistd.h>

#include <QApplication>
#include <QScreen>
#include <cstdio>
#include <string_view>

#include "desktop/looks.h"
#include "desktop/main_window.h"
#include "platform/built_in_generator.h"
#include "platform/disk_files.h"
#include "platform/first_start.h"
#include "platform/folders.h"
#include "platform/machine_clock.h"

namespace caleidoscopio {

namespace {

constexpr const char* help =
    "Usage: caleidoscopio\n"
    "A programmable electronic kaleidoscope that fills the screen.\n"
    "Any key, or a click outside the field, brings the panels.\n\n"
    "  --help     says this\n"
    "  --version  says the version\n";

constexpr int fault = 1;
constexpr int wrongUse = 2;

/// Answers the command line before any display is opened; nothing where the instrument is wanted.
std::optional<int> answered(int argc, char** argv) {
  if (argc < 2) return std::nullopt;
  const std::string_view word = argv[1];
  if (argc == 2 && word == "--help") {
    std::fputs(help, stdout);
    return 0;
  }
  if (argc == 2 && word == "--version") {
    std::puts("caleidoscopio " CALEIDOSCOPIO_VERSION);
    return 0;
  }
  std::fprintf(stderr, "caleidoscopio: unknown argument %s\n%s", argv[argc - 1], help);
  return wrongUse;
}

/// The toolkit's own way to say that there is no display ends in a core file.
void sayWithoutCore(QtMsgType type, const QMessageLogContext&, const QString& message) {
  if (type == QtDebugMsg || type == QtInfoMsg) return;
  std::fprintf(stderr, "%s\n", qPrintable(message));
  if (type != QtFatalMsg) return;
  std::fputs("caleidoscopio: cannot open a display; expected one in DISPLAY or WAYLAND_DISPLAY\n",
             stderr);
  std::fflush(stderr);
  _exit(fault);
}

ScreenSize sizeInTwips(const QScreen& screen) {
  return {screen.size().width() * twipsToPixel, screen.size().height() * twipsToPixel};
}

QScreen& startScreen() {
  QScreen* under = QGuiApplication::screenAt(QCursor::pos());
  return under ? *under : *QGuiApplication::primaryScreen();
}

/// Gives what the user saves a place to go, and the instrument something to start from.
void fillOnFirstStart(const UserSettings& user) {
  const auto own = userDataFolder(user);
  const auto shipped = shippedFolder(programFolder());
  std::string why;
  // Without a folder of the user's own the system's memories still play.
  if (own && shipped && !fillUserFolder(*shipped, *own, why))
    std::fprintf(stderr, "caleidoscopio: %s\n", why.c_str());
}

int run(QApplication& app) {
  const UserSettings user = userSettings();
  fillOnFirstStart(user);

  MachineClock clock;
  BuiltInGenerator generator;
  DiskFiles files = DiskFiles::probing(candidateRoots(user));
  QScreen& screen = startScreen();
  Platform platform{clock, generator, files, sizeInTwips(screen)};
  Driver driver(platform);
  std::optional<MainWindow> window;
  std::optional<EndWindow> endPicture;

  QObject::connect(&driver, &Driver::faulted, [&](const QString& message) {
    std::fprintf(stderr, "caleidoscopio: %s\n", qPrintable(message));
    std::fflush(stderr);
    showFault(message, window ? &*window : nullptr);
    QCoreApplication::exit(fault);
  });
  driver.start();
  if (driver.runEnded()) return fault;

  window.emplace(driver);
  window->setGeometry(screen.geometry());
  window->mirror();
  window->showFullScreen();

  QObject::connect(&driver, &Driver::changed, [&] {
    const Store& s = driver.store();
    if (s.ended) QCoreApplication::quit();
    if (!s.frmMiroVelTaZQ.Visible || endPicture) return;
    endPicture.emplace(driver);
    endPicture->setGeometry(screen.geometry());
    endPicture->showFullScreen();
    window->hide();
  });
  const int status = app.exec();
  return driver.runEnded() ? fault : status;
}

}  // namespace

}  // namespace caleidoscopio

int main(int argc, char** argv) {
  using namespace caleidoscopio;
  if (const auto status = answered(argc, argv)) return *status;
  qInstallMessageHandler(sayWithoutCore);
  QApplication app(argc, argv);
  app.setApplicationName(QStringLiteral("caleidoscopio"));
  app.setDesktopFileName(QStringLiteral("caleidoscopio"));
  installAccessibility();
  return run(app);
}
