#include <QAccessible>
#include <QAccessibleWidget>

#include "desktop/control_widget.h"

namespace caleidoscopio {

namespace {

class ControlAccessible : public QAccessibleWidget {
 public:
  explicit ControlAccessible(ControlWidget* widget)
      : QAccessibleWidget(widget,
                          widget->isButton() ? QAccessible::Button : QAccessible::StaticText) {}

  QStringList actionNames() const override {
    return control().isButton() ? QStringList{pressAction()} : QStringList{};
  }
  void doAction(const QString& action) override {
    if (action == pressAction()) control().pressAndRelease();
  }

 private:
  ControlWidget& control() const { return *static_cast<ControlWidget*>(widget()); }
};

QAccessibleInterface* interfaceFor(const QString&, QObject* object) {
  if (auto* widget = qobject_cast<ControlWidget*>(object)) return new ControlAccessible(widget);
  return nullptr;
}

}  // namespace

void installAccessibility() {
  QAccessible::installFactory(interfaceFor);
}

}  // namespace caleidoscopio
