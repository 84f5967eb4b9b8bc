#pragma once

#include <QTimer>
#include <QWidget>
#include <map>
#include <utility>
#include <vector>

#include "desktop/control_widget.h"
#include "desktop/field_widget.h"

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
  void build();
  QWidget* widgetOf(Element element) const;
  bool panelsHidden() const;
  void restPointer();

  Driver& driver_;
  Hand hand_;
  FieldWidget* field_;
  std::vector<ControlWidget*> controls_;
  std::vector<GroundWidget*> grounds_;
  std::map<std::pair<const Control*, int>, QWidget*> frames_;
  QTimer pointerRest_;
};

/// Shows a fault that ended the run, until a person closes the box.
void showFault(const QString& message, QWidget* parent);

}  // namespace caleidoscopio
