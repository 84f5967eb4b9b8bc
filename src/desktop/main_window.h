#pragma once

#include <QTimer>
#include <QWidget>

#include "desktop/field_widget.h"
#include "desktop/widget_tree.h"

namespace caleidoscopio {

/// The instrument's form: the field, and the panels over it. It is built from the store's spots
/// and told after every handler to show what is there.
class MainWindow : public QWidget {
  Q_OBJECT
 public:
  explicit MainWindow(Driver& driver);

  /// Shows what the store holds where it differs from what is on the screen.
  void mirror();

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  bool panelsHidden() const;
  void restPointer();

  Driver& driver_;
  Hand hand_;
  FieldWidget* field_;
  WidgetTree tree_;
  QTimer pointerRest_;
};

/// The last thing that the user sees. A click on the picture ends the program.
class EndWindow : public QWidget {
  Q_OBJECT
 public:
  explicit EndWindow(Driver& driver);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void mirror();

  Driver& driver_;
  Hand hand_;
  WidgetTree tree_;
};

/// Shows a fault that ended the run, until a person closes the box.
void showFault(const QString& message, QWidget* parent);

}  // namespace caleidoscopio
