#pragma once

#include <QLineEdit>
#include <map>
#include <span>
#include <utility>
#include <vector>

#include "desktop/control_widget.h"

namespace caleidoscopio {

/// The library's line edit as the naming box: what is typed goes into the store at once, Enter is
/// the key that the instrument hears, and every key stays in the box.
class NamingBox : public QLineEdit {
  Q_OBJECT
 public:
  NamingBox(const Spot& spot, Driver& driver, QWidget* parent);
  void mirror();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  TextBox& box() const;
  Spot spot_;
  Driver& driver_;
  Points letters_{0};
};

/// The picture of the end: the field as it stood, its square rings bent into circles.
class ImageWidget : public QWidget {
  Q_OBJECT
 public:
  ImageWidget(const Spot& spot, const Driver& driver, QWidget* parent);
  void mirror();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Spot spot_;
  const Driver& driver_;
};

/// The widgets of one window: one for each spot, under the widget of its parent.
class WidgetTree {
 public:
  /// `root` shows the control that the outermost spots are placed on.
  void build(QWidget& root, Element rootControl, std::span<const Spot> spots, Hand& hand,
             Driver& driver);
  /// Tells every widget to show what is there.
  void mirror();

 private:
  /// A copy of a label beside it, all in one block: after every handler hundreds are compared, and
  /// only those that differ are looked up among the widgets. Where a label stands is not compared:
  /// it is settled by the start, before there is a window; only frames move later.
  struct Watched {
    ControlWidget* widget;
    const Label* now;
    Label shown;
  };
  using Key = std::pair<const Control*, int>;
  std::map<Key, QWidget*> parents_;
  std::vector<GroundWidget*> grounds_;
  std::vector<Watched> controls_;
  std::vector<ControlWidget*> memories_;  ///< the buttons whose tips are titles
  std::vector<NamingBox*> boxes_;
  std::vector<ImageWidget*> images_;
};

}  // namespace caleidoscopio
