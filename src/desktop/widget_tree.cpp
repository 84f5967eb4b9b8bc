#include "desktop/widget_tree.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "desktop/looks.h"
#include "desktop/tool_tips.h"
#include "mosaic/index_map.h"

namespace caleidoscopio {

namespace {

constexpr int enterKey = 13;

/// A title is one line of a file, and the clipboard holds more than one.
QString oneLine(QString typed) {
  for (QChar& letter : typed)
    if (letter == '\n' || letter == '\r' || letter == QChar::LineSeparator ||
        letter == QChar::ParagraphSeparator)
      letter = ' ';
  return typed;
}

bool same(const Label& a, const Label& b) {
  return a.BackColor == b.BackColor && a.ForeColor == b.ForeColor &&
         a.BorderStyle == b.BorderStyle && a.Enabled == b.Enabled && a.Visible == b.Visible &&
         a.Caption == b.Caption;
}

}  // namespace

NamingBox::NamingBox(const Spot& spot, Driver& driver, QWidget* parent)
    : QLineEdit(parent), spot_(spot), driver_(driver) {
  setObjectName(QString::fromUtf8(spot.element.control->name().data()));
  setAttribute(Qt::WA_NoMousePropagation);
  setToolTip(toolTipOf(driver.store(), spot.element));
  setAccessibleName(toolTip());
  connect(this, &QLineEdit::textEdited, this,
          [this](const QString& typed) { box().Text = oneLine(typed).toStdString(); });
  mirror();
}

TextBox& NamingBox::box() const {
  return *static_cast<TextBox*>(spot_.element.control->element(spot_.element.index));
}

void NamingBox::mirror() {
  const Geometry& now = spot_.element.control->geometry(spot_.element.index);
  const QRect place = toPixels(now);
  if (geometry() != place) setGeometry(place);
  if (letters_ != now.FontSize) setFont(lettersOf(letters_ = now.FontSize));
  const QString written = QString::fromStdString(box().Text);
  if (text() != written) setText(written);
}

void NamingBox::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter)
    driver_.raise(*spot_.element.control, Event::KeyPress, spot_.element.index, enterKey);
  else
    QLineEdit::keyPressEvent(event);
  // What the box has no use for is not the form's either: a key typed here stops no run.
  event->accept();
}

bool NamingBox::focusNextPrevChild(bool) {
  return false;  // a tab is a key like others: it must not carry what is typed after it to the form
}

void NamingBox::showEvent(QShowEvent* event) {
  QLineEdit::showEvent(event);
  setFocus();
  selectAll();
}

void NamingBox::hideEvent(QHideEvent* event) {
  // Back to the form, so that any key stops a run again.
  window()->setFocus();
  QLineEdit::hideEvent(event);
}

ImageWidget::ImageWidget(const Spot& spot, const Driver& driver, QWidget* parent)
    : QWidget(parent), spot_(spot), driver_(driver) {
  setObjectName(QString::fromUtf8(spot.element.control->name().data()));
  mirror();
}

void ImageWidget::mirror() {
  const Control& image = *spot_.element.control;
  const QRect place = toPixels(image.geometry());
  if (geometry() != place) setGeometry(place);
  setVisible(image.visible());
}

/// A square ring of 8k cells around the centre becomes a circle of 8k sectors: the corners go to
/// the diagonals, and the mirror symmetry stays.
void ImageWidget::paintEvent(QPaintEvent*) {
  const Store& s = driver_.store();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  const double step = std::min(width(), height()) / 21.0;
  const QPointF middle(width() / 2.0, height() / 2.0);
  // From the outside in, each whole sector drawn over by the ring within it: no seam shows.
  for (int ring = 10; ring >= 1; --ring) {
    const double radius = step * (ring + 0.5);
    const QRectF circle(middle.x() - radius, middle.y() - radius, 2 * radius, 2 * radius);
    for (int row = -ring; row <= ring; ++row)
      for (int column = -ring; column <= ring; ++column) {
        if (std::max(std::abs(row), std::abs(column)) != ring) continue;
        // Along the square's side the angle grows evenly, an eighth of a turn from axis to corner.
        const bool upright = std::abs(row) == ring;
        const double along = 45.0 * (upright ? column : row) / ring;
        double angle = 0;
        if (upright)
          angle = row < 0 ? 90 - along : 270 + along;
        else
          angle = column < 0 ? 180 + along : -along;
        const double half = 22.5 / ring;
        painter.setBrush(toScreen(s.lblMiro[indexAt({10 + row, 10 + column})].BackColor));
        painter.drawPie(circle, static_cast<int>(std::lround((angle - half) * 16)) - 1,
                        static_cast<int>(std::lround(2 * half * 16)) + 2);
      }
  }
  painter.setBrush(toScreen(s.lblMiro[centre].BackColor));
  painter.drawEllipse(middle, step / 2, step / 2);
}

void WidgetTree::build(QWidget& root, Element rootControl, std::span<const Spot> spots, Hand& hand,
                       Driver& driver) {
  parents_[{rootControl.control, rootControl.index}] = &root;
  for (const Spot& spot : spots) {
    const auto parent = parents_.find({spot.parent.control, spot.parent.index});
    // What stands in a frame that nobody sees has no widget; cells and outlines are the field's.
    if (parent == parents_.end() || spot.look == Look::Cell) continue;
    switch (spot.element.control->kind()) {
      case Kind::Frame:
        grounds_.push_back(new GroundWidget(spot, parent->second));
        parents_[{spot.element.control, spot.element.index}] = grounds_.back();
        break;
      case Kind::Label: {
        auto* control = new ControlWidget(spot, hand, driver, parent->second);
        const auto& [owner, index] = spot.element;
        const auto* label = static_cast<const Label*>(owner->element(index));
        controls_.push_back({control, label, *label});
        if (spot.element.control == &driver.store().lblSave) memories_.push_back(control);
        break;
      }
      case Kind::TextBox:
        boxes_.push_back(new NamingBox(spot, driver, parent->second));
        break;
      case Kind::Image:
        images_.push_back(new ImageWidget(spot, driver, parent->second));
        break;
      default:
        break;
    }
  }
}

void WidgetTree::mirror() {
  // What a frame holds is brought up to date before the frame shows it.
  for (NamingBox* box : boxes_) box->mirror();
  for (ImageWidget* image : images_) image->mirror();
  for (Watched& control : controls_)
    if (!same(control.shown, *control.now)) {
      control.shown = *control.now;
      control.widget->mirror();
    }
  for (ControlWidget* memory : memories_) memory->mirrorTitle();
  for (GroundWidget* ground : grounds_) ground->mirror();
}

}  // namespace caleidoscopio
