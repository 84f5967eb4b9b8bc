#pragma once

#include <gtest/gtest.h>

#include <QTest>
#include <QWidget>

#include "desktop/main_window.h"
#include "memories/record.h"
#include "support/rig.h"

namespace caleidoscopio::test {

/// The screens on which the whole panel must be right, in pixels; desktop.at_scale_factor_2 takes
/// them all once more.
inline const auto screens =
    testing::Values(std::pair{1024, 768}, std::pair{1366, 768}, std::pair{1920, 1080},
                    std::pair{2560, 1440}, std::pair{3840, 2160});

/// The instrument in a real window of `width` by `height` pixels, started from a default memory
/// that the test can prepare, with its panels staying where they are.
class WindowRig {
 public:
  /// Prepares what the default memory will hold.
  using Prepare = std::function<void(Store&)>;

  explicit WindowRig(int width = 1024, int height = 768, const Prepare& prepare = {}) {
    platform.screen = {width * 15.0, height * 15.0};
    generator.otherwise = 0.5F;
    Instrument model(platform);
    if (prepare) prepare(model.s);
    files.files["Miro-Vel-Ta/Dati/Default.txt"] = Record(model.s.controls, memoryRuns()).write();
    files.files["Miro-Vel-Ta/Dati/Memorie.txt"] = Record(model.s.controls, nameRuns()).write();
    driver.emplace(platform);
    QObject::connect(&*driver, &Driver::faulted,
                     [this](const QString& message) { faults << message; });
    s().lblHide.BackColor = colours::unselected;
    driver->start();
    window.emplace(*driver);
    window->resize(width, height);
    window->show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&*window));
    window->mirror();
  }

  Store& s() { return driver->store(); }
  const Driver& runs() const { return *driver; }

  /// The widget of a control, by the control's name: "lblSposta(9)", "cmdGoTimer".
  QWidget& widget(const char* name) {
    auto* found = window->findChild<QWidget*>(QString::fromUtf8(name));
    if (!found) throw std::runtime_error(std::string("no widget named ") + name);
    return *found;
  }
  FieldWidget& field() { return *window->findChild<FieldWidget*>(); }

  void click(const char* name) { QTest::mouseClick(&widget(name), Qt::LeftButton); }
  void press(const char* name) { QTest::mousePress(&widget(name), Qt::LeftButton); }
  void release(const char* name) { QTest::mouseRelease(&widget(name), Qt::LeftButton); }
  void clickCell(int cell) {
    QTest::mouseClick(&field(), Qt::LeftButton, {}, field().boxOf(cell).center());
  }

  StandingClock clock;
  SetDraws generator;
  FilesInMemory files;
  Platform platform{clock, generator, files, {}};
  std::optional<Driver> driver;
  std::optional<MainWindow> window;
  QStringList faults;
};

}  // namespace caleidoscopio::test
