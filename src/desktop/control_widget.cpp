#include "desktop/control_widget.h"

#include <QMouseEvent>
#include <QPainter>
#include <QTextDocument>
#include <algorithm>

#include "desktop/looks.h"
#include "desktop/tool_tips.h"

namespace caleidoscopio {

namespace {

constexpr QRgb edgeOfPaper = 0xFFB9AE8C;  // the thin line around what stands on a panel

bool bare(Look look) {
  return look == Look::Heading || look == Look::Title;
}

void prepare(QWidget& widget, const Spot& spot) {
  widget.setObjectName(QString::fromStdString(spot.element.control->nameOf(spot.element.index)));
  widget.setAttribute(Qt::WA_NoMousePropagation);  // a disabled control's press is nobody's
  widget.setAttribute(Qt::WA_OpaquePaintEvent, !bare(spot.look));
}

/// The element of a spot, as the kind of thing that it is.
template <class T>
const T& shownAt(const Spot& spot) {
  return *static_cast<const T*>(spot.element.control->element(spot.element.index));
}

const Geometry& placeOf(const Spot& spot) {
  return spot.element.control->geometry(spot.element.index);
}

void place(QWidget& widget, const Frame& frame, const Geometry& geometry) {
  const QRect box = toPixels(geometry);
  if (widget.geometry() != box) widget.setGeometry(box);
  if (widget.isVisibleTo(widget.parentWidget()) != frame.Visible) widget.setVisible(frame.Visible);
}

void drawFrame(QPainter& painter, const QRect& box, int line, const QColor& colour) {
  painter.fillRect(box.x(), box.y(), box.width(), line, colour);
  painter.fillRect(box.x(), box.bottom() + 1 - line, box.width(), line, colour);
  painter.fillRect(box.x(), box.y(), line, box.height(), colour);
  painter.fillRect(box.right() + 1 - line, box.y(), line, box.height(), colour);
}

}  // namespace

ControlWidget::ControlWidget(const Spot& spot, Hand& hand, Driver& driver, QWidget* parent)
    : QWidget(parent),
      spot_(spot),
      hand_(hand),
      driver_(driver),
      label_(shownAt<Label>(spot)),
      geometry_(placeOf(spot)),
      takesPress_(Hand::takesPress(spot.element)) {
  prepare(*this, spot);
  setMouseTracking(spot.element.control->handles(Event::MouseMove, spot.element.index));
  if (takesPress_) setCursor(Qt::PointingHandCursor);
  // The headings around the field are part of the bare form.
  if (spot.look == Look::Title && spot.withField) setAttribute(Qt::WA_TransparentForMouseEvents);
  showTip();
  mirror();
}

void ControlWidget::showTip() {
  const QString tip = toolTipOf(driver_.store(), spot_.element);
  // A title can look like markup; it is shown as it was typed.
  setToolTip(Qt::mightBeRichText(tip) ? tip.toHtmlEscaped() : tip);
  setAccessibleName(tip);
}

void ControlWidget::mirrorTitle() {
  const std::string* title = titleUnder(driver_.store(), spot_.element);
  if (title ? *title == title_ : title_.empty()) return;
  title_ = title ? *title : std::string();
  showTip();
}

void ControlWidget::mirror() {
  const Label& now = label_;
  const double points = geometry_.FontSize.value;
  place(*this, now, geometry_);
  mirrorTitle();
  if (isEnabled() != now.Enabled) setEnabled(now.Enabled);
  // Where no letter stands, its colour is not seen.
  if (caption_ == now.Caption && back_ == now.BackColor && border_ == now.BorderStyle &&
      points_ == points && (fore_ == now.ForeColor || now.Caption.empty()))
    return;
  caption_ = now.Caption;
  back_ = now.BackColor;
  fore_ = now.ForeColor;
  border_ = now.BorderStyle;
  points_ = points;
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
  painter.fillRect(rect(), ground);
  // Lines grow with the panel, so that what is marked is seen on a large screen too.
  const int line = std::max(1, qRound(std::min(width(), height()) / 15.0));
  switch (spot_.look) {
    case Look::Stepper:
    case Look::Button:
      drawFrame(painter, rect(), line, ground.darker(160));
      if (back_ != colours::pressed) {
        const QRect inner = rect().adjusted(line, line, -line, -line);
        painter.fillRect(inner.x(), inner.y(), inner.width(), line, ground.lighter(115));
        painter.fillRect(inner.x(), inner.bottom() + 1 - line, inner.width(), line,
                         ground.darker(125));
      }
      break;
    case Look::Swatch:
      drawFrame(painter, rect(), line, border_ ? QColor(Qt::black) : ground.darker(130));
      // In use, or active: a white line inside the black one shows on every colour.
      if (border_) drawFrame(painter, rect().adjusted(line, line, -line, -line), line, Qt::white);
      break;
    case Look::Choice:
      drawFrame(painter, rect(), line, ground.darker(145));
      break;
    default:
      drawFrame(painter, rect(), line, QColor::fromRgb(edgeOfPaper));
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

GroundWidget::GroundWidget(const Spot& spot, QWidget* parent)
    : QWidget(parent), frame_(shownAt<Frame>(spot)), geometry_(placeOf(spot)) {
  prepare(*this, spot);
  mirror();
}

void GroundWidget::mirror() {
  place(*this, frame_, geometry_);
  if (back_ == frame_.BackColor) return;
  back_ = frame_.BackColor;
  update();
}

void GroundWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), toScreen(back_));
  painter.setPen(QColor::fromRgb(edgeOfPaper));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace caleidoscopio
