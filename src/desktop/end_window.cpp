#include <QPainter>

#include "desktop/looks.h"
#include "desktop/main_window.h"

namespace caleidoscopio {

EndWindow::EndWindow(Driver& driver) : driver_(driver), hand_(driver) {
  Store& s = driver.store();
  setObjectName(QStringLiteral("frmMiroVelTaZQ"));
  setWindowTitle(QString::fromStdString(s.form.Caption));
  tree_.build(*this, {&s.frmMiroVelTaZQ, 0}, s.endSpots, hand_, driver);
  connect(&driver_, &Driver::changed, this, &EndWindow::mirror);
}

void EndWindow::mirror() {
  tree_.mirror();
  hand_.check();
}

void EndWindow::paintEvent(QPaintEvent*) {
  QPainter(this).fillRect(rect(), toScreen(driver_.store().frmMiroVelTaZQ.BackColor));
}

}  // namespace caleidoscopio
