#pragma once

#include <QWidget>
#include <array>
#include <bitset>
#include <string>

#include "desktop/hand.h"
#include "mosaic/index_map.h"

namespace caleidoscopio {

/// The bare form with the field on it: the ground, the cells and the two outlines. It lies under
/// everything else and fills the window, so that its pixels are the screen's.
class FieldWidget : public QWidget {
  Q_OBJECT
 public:
  FieldWidget(Driver& driver, Hand& hand, QWidget* parent);

  /// Compares the cells shown with the display plane and asks for those that differ.
  void mirror();

  /// The cell at a point of the widget, 0 for none.
  int cellAt(const QPoint& point) const;
  /// The box of a cell, for tests and for tool tips.
  QRect boxOf(int cell) const;
  /// Cells painted since the start.
  long long paintedCells() const { return paintedCells_; }

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  struct Shown {
    std::string caption;
    Colour back, fore;
    std::int32_t border = 0;
    bool operator==(const Shown&) const = default;
  };
  using CellSet = std::bitset<cellCount + 1>;  ///< by index
  /// Everything on the form that is no cell.
  struct Surroundings {
    Colour ground, contour;
    std::int32_t contourWidth = 0;
    bool contourShown = false, quadrantShown = false;
    bool operator==(const Surroundings&) const = default;
  };

  void measure();
  void ask(const CellSet& cells);
  QRect deviceBox(int row, int column) const;
  QRect deviceField() const;
  QRect toLogical(const QRect& device) const;
  Element elementAt(const QPoint& point) const;
  void paintContour(QPainter& painter) const;
  void paintCell(QPainter& painter, int row, int column);
  void paintQuadrant(QPainter& painter) const;

  Driver& driver_;
  Hand& hand_;
  double ratio_ = 0;  ///< device pixels to one of Qt's
  // Left or top edges of the columns and rows in device pixels, and the last far edge: each cell
  // ends where the next begins, so that no gap shows at any scale.
  std::array<int, side + 1> across_{}, down_{};
  QFont digits_;  ///< in device pixels, too
  std::array<Shown, cellCount + 1> shown_;
  Surroundings surroundings_;
  long long paintedCells_ = 0;
};

}  // namespace caleidoscopio
