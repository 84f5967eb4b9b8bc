#include <gtest/gtest.h>

#include <QApplication>
#include <QFontDatabase>

#include "desktop/control_widget.h"

/// On the offscreen platform unless the caller has a real one in mind.
int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication app(argc, argv);
  caleidoscopio::installAccessibility();
  return RUN_ALL_TESTS();
}
