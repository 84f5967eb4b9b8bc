#pragma once

#include <QWidget>
#include <string>

#include "desktop/hand.h"
#include "panel/spots.h"

namespace caleidoscopio {

/// A label or button of the panels: mirrors one control of the store and hands its presses on.
class ControlWidget : public QWidget {
  Q_OBJECT
 public:
  ControlWidget(const Spot& spot, Hand& hand, Driver& driver, QWidget* parent);

  /// Compares what is shown with what is there, and repaints only if it differs.
  void mirror();
  /// The same for the tip of a memory's button, whose title stands elsewhere.
  void mirrorTitle();
  /// The press of a person who uses no mouse.
  void pressAndRelease();

  Element element() const { return spot_.element; }
  bool isButton() const { return takesPress_; }
  /// The caption as it is shown: whole, wrapped by words where it must.
  bool showsWholeCaption() const;
  /// The size of its letters in device-independent pixels.
  double letterPixels() const { return points_ * 96 / 72; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  void showTip();
  QFont letters() const;
  QRect textBox() const;
  int textFlags() const;
  void paintBody(QPainter& painter, const QColor& ground) const;

  Spot spot_;
  Hand& hand_;
  Driver& driver_;
  const Label& label_;
  const Geometry& geometry_;
  bool takesPress_;
  // What is shown.
  std::string caption_;
  Colour back_, fore_;
  std::int32_t border_ = 0;
  double points_ = 0;
  std::string title_;
};

/// A frame of the panels: a ground that clips its children and swallows what misses them.
class GroundWidget : public QWidget {
  Q_OBJECT
 public:
  GroundWidget(const Spot& spot, QWidget* parent);
  void mirror();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const Frame& frame_;
  const Geometry& geometry_;
  Colour back_;
};

/// Lets assistive programs see a ControlWidget as the label or button that it is.
void installAccessibility();

}  // namespace caleidoscopio
