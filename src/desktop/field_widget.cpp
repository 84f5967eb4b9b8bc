#include "desktop/field_widget.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <utility>

#include "desktop/looks.h"
#include "desktop/tool_tips.h"

namespace caleidoscopio {

namespace {

/// The first and the last of the columns or rows with these edges that lie between two pixels, both
/// included; the first is past the last where none do.
template <class Edges>
std::pair<int, int> cellsBetween(const Edges& edges, int from, int to) {
  const auto past = [&edges](int at) {
    return static_cast<int>(std::upper_bound(edges.begin(), edges.end(), at) - edges.begin());
  };
  return {std::max(past(from) - 1, 0), std::min(past(to) - 1, side - 1)};
}

}  // namespace

FieldWidget::FieldWidget(Driver& driver, Hand& hand, QWidget* parent)
    : QWidget(parent), driver_(driver), hand_(hand) {
  setObjectName(QStringLiteral("form"));
  setAttribute(Qt::WA_OpaquePaintEvent);
  setAttribute(Qt::WA_NoMousePropagation);
  setMouseTracking(true);
  setAccessibleName(toolTipOf(driver.store(), {&driver.store().form, 0}));
}

void FieldWidget::measure() {
  if (ratio_ == devicePixelRatioF()) return;
  ratio_ = devicePixelRatioF();
  const Store& s = driver_.store();
  const auto edge = [this](Twips at) { return qRound(at.value / twipsToPixel * ratio_); };
  for (int k = 0; k < side; ++k) {
    const auto at = static_cast<std::size_t>(k);
    across_[at] = edge(s.lblMiro.geometry(indexAt({0, k})).Left);
    down_[at] = edge(s.lblMiro.geometry(indexAt({k, 0})).Top);
  }
  const Geometry& last = s.lblMiro.geometry(indexAt({side - 1, side - 1}));
  across_.back() = edge(last.Left + last.Width);
  down_.back() = edge(last.Top + last.Height);
  digits_ = lettersOf({s.lblMiro.geometry(1).FontSize.value * ratio_}, true);
}

QRect FieldWidget::deviceBox(int row, int column) const {
  const auto r = static_cast<std::size_t>(row);
  const auto c = static_cast<std::size_t>(column);
  return {QPoint(across_[c], down_[r]), QPoint(across_[c + 1] - 1, down_[r + 1] - 1)};
}

QRect FieldWidget::deviceField() const {
  return {QPoint(across_.front(), down_.front()), QPoint(across_.back() - 1, down_.back() - 1)};
}

QRect FieldWidget::toLogical(const QRect& device) const {
  return QRectF(device.x() / ratio_, device.y() / ratio_, device.width() / ratio_,
                device.height() / ratio_)
      .toAlignedRect();
}

QRect FieldWidget::boxOf(int cell) const {
  const Place at = placeOf(cell);
  return toLogical(deviceBox(at.row, at.column));
}

int FieldWidget::cellAt(const QPoint& point) const {
  const auto find = [](const auto& edges, double at) {
    const auto next = std::upper_bound(edges.begin(), edges.end(), at);
    if (next == edges.begin() || next == edges.end()) return -1;
    return static_cast<int>(next - edges.begin()) - 1;
  };
  // The middle of the pixel pointed at, on the screen's own pixels.
  const int column = find(across_, (point.x() + 0.5) * ratio_);
  const int row = find(down_, (point.y() + 0.5) * ratio_);
  return row < 0 || column < 0 ? 0 : indexAt({row, column});
}

void FieldWidget::mirror() {
  measure();
  const Store& s = driver_.store();
  const Surroundings now{s.form.BackColor, s.ShpContour.BorderColor, s.ShpContour.BorderWidth,
                         s.ShpContour.Visible, s.ShpRettangolo.Visible};
  if (!(now == surroundings_)) {
    surroundings_ = now;
    update();
  }
  CellSet changed;
  for (int i = 1; i <= cellCount; ++i) {
    const Label& cell = s.lblMiro[i];
    Shown& shown = shown_[static_cast<std::size_t>(i)];
    // Where no digit stands, its colour is not seen.
    if (shown.back == cell.BackColor && shown.border == cell.BorderStyle &&
        shown.caption == cell.Caption && (shown.fore == cell.ForeColor || cell.Caption.empty()))
      continue;
    shown = {cell.Caption, cell.BackColor, cell.ForeColor, cell.BorderStyle};
    changed.set(static_cast<std::size_t>(i));
  }
  if (changed.any()) ask(changed);
}

/// Neighbours in a row are asked for together.
void FieldWidget::ask(const CellSet& cells) {
  QRegion region;
  for (int row = 0; row < side; ++row) {
    const auto asked = [&](int column) {
      return column < side && cells[static_cast<std::size_t>(indexAt({row, column}))];
    };
    for (int column = 0; column < side; ++column) {
      if (!asked(column)) continue;
      const int first = column;
      while (asked(column + 1)) ++column;
      region += toLogical(deviceBox(row, first) | deviceBox(row, column));
    }
  }
  update(region);
}

void FieldWidget::paintContour(QPainter& painter) const {
  if (!surroundings_.contourShown || surroundings_.contourWidth <= 0) return;
  const int width = qRound(surroundings_.contourWidth * ratio_);
  painter.fillRect(deviceField().adjusted(-width, -width, width, width),
                   toScreen(surroundings_.contour));
}

void FieldWidget::paintCell(QPainter& painter, int row, int column) {
  const Shown& cell = shown_[static_cast<std::size_t>(indexAt({row, column}))];
  const QRect box = deviceBox(row, column);
  ++paintedCells_;
  painter.fillRect(box, toScreen(cell.back));
  if (cell.border != 0) {
    // The line belongs to the cell and its neighbour alike: each draws its top and left one, and
    // the last ones close the field.
    const int width = std::max(1, qRound(ratio_));
    const QColor line(Qt::black);
    painter.fillRect(box.left(), box.top(), box.width(), width, line);
    painter.fillRect(box.left(), box.top(), width, box.height(), line);
    if (column == side - 1)
      painter.fillRect(box.right() - width + 1, box.top(), width, box.height(), line);
    if (row == side - 1)
      painter.fillRect(box.left(), box.bottom() - width + 1, box.width(), width, line);
  }
  if (cell.caption.empty()) return;
  painter.setPen(toScreen(cell.fore));
  painter.drawText(box, Qt::AlignCenter, QString::fromStdString(cell.caption));
}

void FieldWidget::paintQuadrant(QPainter& painter) const {
  if (!surroundings_.quadrantShown) return;
  const auto& shape = driver_.store().ShpRettangolo;
  const auto device = [this](Twips at) { return qRound(at.value / twipsToPixel * ratio_); };
  const Geometry& at = shape.geometry();
  const QRect box(QPoint(device(at.Left), device(at.Top)),
                  QPoint(device(at.Left + at.Width), device(at.Top + at.Height)));
  // Black and white dashes show on every ground.
  QPen pen(Qt::black, shape.BorderWidth * ratio_);
  painter.setPen(pen);
  painter.drawRect(box);
  pen.setColor(Qt::white);
  pen.setStyle(Qt::DashLine);
  painter.setPen(pen);
  painter.drawRect(box);
}

void FieldWidget::paintEvent(QPaintEvent* event) {
  measure();
  QPainter painter(this);
  painter.scale(1 / ratio_, 1 / ratio_);
  painter.setFont(digits_);
  const QRect field = deviceField();
  const auto device = [this](const QRect& part) {
    return QRect(
        QPoint(qFloor(part.left() * ratio_), qFloor(part.top() * ratio_)),
        QPoint(qCeil((part.right() + 1) * ratio_) - 1, qCeil((part.bottom() + 1) * ratio_) - 1));
  };
  // The toolkit clips to the event's region. What lies under the cells comes first, so that a cell
  // is painted once, however many parts it lies in.
  bool around = false;
  for (const QRect& part : event->region())
    if (!field.contains(device(part))) {
      painter.fillRect(device(part), toScreen(surroundings_.ground));
      around = true;
    }
  if (around) paintContour(painter);
  CellSet painted;
  for (const QRect& part : event->region()) {
    const QRect box = device(part);
    const auto [top, bottom] = cellsBetween(down_, box.top(), box.bottom());
    const auto [left, right] = cellsBetween(across_, box.left(), box.right());
    for (int row = top; row <= bottom; ++row)
      for (int column = left; column <= right; ++column) {
        const auto at = static_cast<std::size_t>(indexAt({row, column}));
        if (!painted[at]) paintCell(painter, row, column);
        painted.set(at);
      }
  }
  paintQuadrant(painter);
}

Element FieldWidget::elementAt(const QPoint& point) const {
  Store& s = driver_.store();
  const int cell = cellAt(point);
  return cell > 0 ? Element{&s.lblMiro, cell} : Element{&s.form, 0};
}

void FieldWidget::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) hand_.press(elementAt(event->pos()), *this);
}

void FieldWidget::mouseDoubleClickEvent(QMouseEvent* event) {
  mousePressEvent(event);
}

void FieldWidget::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton)
    hand_.release(rect().contains(event->pos()) && hand_.holds(elementAt(event->pos())));
}

bool FieldWidget::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  const auto& help = static_cast<const QHelpEvent&>(*event);
  // On the cells a tip would be in the way of painting.
  if (cellAt(help.pos()) == 0)
    QToolTip::showText(help.globalPos(), toolTipOf(driver_.store(), {&driver_.store().form, 0}),
                       this);
  else
    QToolTip::hideText();
  return true;
}

}  // namespace caleidoscopio
