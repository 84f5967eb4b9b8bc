#include "desktop/main_window.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>

#include "desktop/looks.h"

namespace caleidoscopio {

namespace {
constexpr int pointerRestMs = 3000;
}

MainWindow::MainWindow(Driver& driver)
    : driver_(driver), hand_(driver), field_(new FieldWidget(driver, hand_, this)) {
  setWindowTitle(QString::fromStdString(driver.store().form.Caption));
  setAttribute(Qt::WA_OpaquePaintEvent);  // the field covers every pixel
  pointerRest_.setSingleShot(true);
  pointerRest_.setInterval(pointerRestMs);
  connect(&pointerRest_, &QTimer::timeout, this, [this] {
    if (panelsHidden()) setCursor(Qt::BlankCursor);
  });
  Store& s = driver.store();
  tree_.build(*this, {&s.form, 0}, s.spots, hand_, driver);
  setFocusPolicy(Qt::StrongFocus);
  connect(&driver_, &Driver::changed, this, &MainWindow::mirror);
  qApp->installEventFilter(this);
}

void MainWindow::mirror() {
  field_->mirror();
  tree_.mirror();
  hand_.check();
  restPointer();
}

bool MainWindow::panelsHidden() const {
  const Store& s = driver_.store();
  return !s.FraPannello[0].Visible && !s.FraPannello[1].Visible;
}

/// Starts the pointer's rest when the panels have gone, and brings it back with them.
void MainWindow::restPointer() {
  if (!panelsHidden()) {
    pointerRest_.stop();
    if (testAttribute(Qt::WA_SetCursor)) unsetCursor();
  } else if (!pointerRest_.isActive() && !testAttribute(Qt::WA_SetCursor)) {
    pointerRest_.start();
  }
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseMove || event->type() == QEvent::MouseButtonPress) {
    if (testAttribute(Qt::WA_SetCursor)) unsetCursor();
    pointerRest_.stop();
    restPointer();
  }
  return QWidget::eventFilter(watched, event);
}

bool MainWindow::event(QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress: {
      // Any key counts, a modifier and Tab too; before the toolkit makes something else of it.
      const int code = static_cast<QKeyEvent*>(event)->key();
      driver_.raise(driver_.store().form, Event::KeyDown, 0, code);
      event->accept();
      return true;
    }
    case QEvent::WindowDeactivate:
    case QEvent::UngrabMouse:
      hand_.drop();
      break;
    default:
      break;
  }
  return QWidget::event(event);
}

void MainWindow::resizeEvent(QResizeEvent*) {
  field_->setGeometry(rect());
}

void showFault(const QString& message, QWidget* parent) {
  QMessageBox box(QMessageBox::Critical, QStringLiteral("Caleidoscopio"), message, QMessageBox::Ok,
                  parent);
  // What was found in a file may look like markup.
  box.setTextFormat(Qt::PlainText);
  box.setObjectName(QStringLiteral("fault"));
  box.exec();
}

}  // namespace caleidoscopio
