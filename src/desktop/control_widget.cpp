#include "desktop/control_widget.h"

#include <QMouseEvent>
#include <QPainter>

#include "desktop/looks.h"
#include "desktop/tool_tips.h"

namespace caleidoscopio {

namespace {

constexpr QRgb edgeOfPaper = 0xFFB9AE8C;  // the thin line around what stands on a panel

bool bare(Look look) { return look == Look::Heading || look == Look::Title; }

void prepare(QWidget& widget, const Spot& spot) {
  widget.setObjectName(QString::fromStdString(spot.element.control->nameOf(spot.element.index)));
  widget.setAttribute(Qt::WA_NoMousePropagation);  // a disabled control's press is nobody's
  widget.setAttribute(Qt::WA_OpaquePaintEvent, !bare(spot.look));
}

void place(QWidget& widget, Element element) {
  const Geometry g = geometryOf(element);
  const QRect box = toPixels(g);
  if (widget.geometry() != box) widget.setGeometry(box);
  if (widget.isVisibleTo(widget.parentWidget()) != g.visible) widget.setVisible(g.visible);
}

}  // namespace

ControlWidget::ControlWidget(const Spot& spot, Hand& hand, Driver& driver, QWidget* parent)
    : QWidget(parent),
      spot_(spot),
      hand_(hand),
      driver_(driver),
      takesPress_(Hand::takesPress(spot.element)) {
  prepare(*this, spot);
  setMouseTracking(spot.element.control->handles(Event::MouseMove, spot.element.index));
  if (takesPress_) setCursor(Qt::PointingHandCursor);
  // The headings around the field are part of the bare form.
  if (spot.look == Look::Heading && spot.withField) setAttribute(Qt::WA_TransparentForMouseEvents);
  mirror();
}

const Label& ControlWidget::label() const {
  return *static_cast<const Label*>(spot_.element.control->element(spot_.element.index));
}

void ControlWidget::mirror() {
  const Label& now = label();
  place(*this, spot_.element);
  if (isEnabled() != now.Enabled) setEnabled(now.Enabled);
  if (const QString tip = toolTipOf(driver_.store(), spot_.element); tip != toolTip()) {
    setToolTip(tip);
    setAccessibleName(tip);
  }
  if (caption_ == now.Caption && back_ == now.BackColor && fore_ == now.ForeColor &&
      border_ == now.BorderStyle && points_ == now.FontSize.value)
    return;
  caption_ = now.Caption;
  back_ = now.BackColor;
  fore_ = now.ForeColor;
  border_ = now.BorderStyle;
  points_ = now.FontSize.value;
  update();
}

QRect ControlWidget::textBox() const {
  return bare(spot_.look) ? rect() : rect().adjusted(1, 1, -1, -1);
}

int ControlWidget::textFlags() const {
  const bool leading = spot_.look == Look::Heading;
  return Qt::TextWordWrap | Qt::AlignVCenter | (leading ? Qt::AlignLeft : Qt::AlignHCenter);
}

QFont ControlWidget::letters() const {
  return lettersOf({points_}, bare(spot_.look));
}

bool ControlWidget::showsWholeCaption() const {
  if (caption_.empty()) return true;
  const QRect needed = QFontMetrics(letters()).boundingRect(textBox(), textFlags(),
                                                            QString::fromStdString(caption_));
  return textBox().contains(needed);
}

void ControlWidget::paintBody(QPainter& painter, const QColor& ground) const {
  const QRect edge = rect().adjusted(0, 0, -1, -1);
  painter.fillRect(rect(), ground);
  switch (spot_.look) {
    case Look::Stepper:
    case Look::Button: {
      const bool down = back_ == colours::pressed;
      painter.setPen(ground.lighter(down ? 100 : 115));
      painter.drawLine(edge.topLeft() + QPoint(1, 1), edge.topRight() + QPoint(-1, 1));
      painter.setPen(ground.darker(down ? 100 : 125));
      painter.drawLine(edge.bottomLeft() + QPoint(1, -1), edge.bottomRight() + QPoint(-1, -1));
      painter.setPen(ground.darker(160));
      painter.drawRect(edge);
      break;
    }
    case Look::Swatch:
      painter.setPen(border_ ? QColor(Qt::black) : ground.darker(130));
      painter.drawRect(edge);
      // In use, or active: a white line inside the black one shows on every colour.
      if (border_) {
        painter.setPen(Qt::white);
        painter.drawRect(edge.adjusted(1, 1, -1, -1));
      }
      break;
    default:
      painter.setPen(spot_.look == Look::Choice ? ground.darker(145)
                                                : QColor::fromRgb(edgeOfPaper));
      painter.drawRect(edge);
      break;
  }
}

void ControlWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  if (!bare(spot_.look)) paintBody(painter, toScreen(back_));
  if (caption_.empty()) return;
  painter.setFont(letters());
  QColor ink = toScreen(fore_);
  if (!isEnabled()) ink.setAlphaF(0.45F);
  painter.setPen(ink);
  const QString caption = QString::fromStdString(caption_);
  if (showsWholeCaption())
    painter.drawText(textBox(), textFlags(), caption);
  else  // only a title can be longer than its place
    painter.drawText(textBox(), Qt::AlignVCenter | Qt::AlignLeft,
                     painter.fontMetrics().elidedText(caption, Qt::ElideRight, textBox().width()));
}

void ControlWidget::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && takesPress_) hand_.press(spot_.element, *this);
}

void ControlWidget::mouseDoubleClickEvent(QMouseEvent* event) {
  mousePressEvent(event);
}

void ControlWidget::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && hand_.holds(spot_.element))
    hand_.release(rect().contains(event->pos()));
}

void ControlWidget::mouseMoveEvent(QMouseEvent*) {
  const Element e = spot_.element;
  if (e.control->handles(Event::MouseMove, e.index))
    driver_.raise(*e.control, Event::MouseMove, e.index);
}

void ControlWidget::pressAndRelease() {
  if (!takesPress_ || !isEnabled() || !isVisible()) return;
  hand_.press(spot_.element, *this);
  hand_.release(true);
}

GroundWidget::GroundWidget(const Spot& spot, QWidget* parent) : QWidget(parent), spot_(spot) {
  prepare(*this, spot);
  mirror();
}

void GroundWidget::mirror() {
  place(*this, spot_.element);
  const auto& frame =
      *static_cast<const Frame*>(spot_.element.control->element(spot_.element.index));
  if (back_ == frame.BackColor) return;
  back_ = frame.BackColor;
  update();
}

void GroundWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), toScreen(back_));
  painter.setPen(QColor::fromRgb(edgeOfPaper));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace caleidoscopio
