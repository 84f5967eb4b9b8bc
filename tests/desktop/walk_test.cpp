#include <gtest/gtest.h>

#include <QWindow>
#include <algorithm>
#include <array>
#include <map>

#include "desktop/control_widget.h"
#include "desktop/window_rig.h"

namespace caleidoscopio::test {

namespace {

struct OutOfReach {
  std::string_view control;
  int first, last;
  std::string_view reason;
};

/// Everything else that answers to the mouse must be within a person's reach.
constexpr std::array outOfReach{
    OutOfReach{"Label3", 0, 0, "shows the design plane's frame: for the builder"},
    OutOfReach{"Command1", 0, 0, "for the builder"},
    OutOfReach{"Command8", 0, 0, "stops a Break for good: for the builder"},
    OutOfReach{"cmdDisegnaRettangoli2", 0, 0, "compares the planes: for the builder"},
    OutOfReach{"lblSposta", 13, 24, "parked: families without a mode"},
    OutOfReach{"lblTransf", 7, 12, "parked: modes that do not exist"},
    OutOfReach{"lblCrea", 9, 9, "parked: nothing reads it"},
    OutOfReach{"lblComandiVari", 0, 0, "parked: a click on a memory loads it"},
    OutOfReach{"lblCambioCol", 5, 5, "hidden: holds the operation last run"},
    OutOfReach{"lblCambioCol", 7, 8, "hidden: scratch of the operations"},
    OutOfReach{"lblCambioCol", 11, 11, "hidden: how often an operation repeats"},
    OutOfReach{"lblTmrRndCol", 3, 3, "hidden: the seconds added at random"},
    OutOfReach{"lblBreakMode", 0, 0, "hidden: how many patterns are chosen"},
    OutOfReach{"lblBreakMode", 15, 15, "hidden: the direction of the last Break"},
    OutOfReach{"lblBreakMode", 17, 17, "hidden: the pattern of the last Break"},
    OutOfReach{"lblBreakMode", 25, 25, "hidden: where the sequence of patterns stands"},
    OutOfReach{"lblZQ", 0, 0, "stands in the end picture, a window of its own"},
};

bool isOutOfReach(const Control& control, int index) {
  return std::any_of(outOfReach.begin(), outOfReach.end(), [&](const OutOfReach& one) {
    return control.name() == one.control && one.first <= index && index <= one.last;
  });
}

bool answersTheMouse(const Control& control, int index) {
  constexpr std::array events{Event::Click, Event::MouseDown, Event::MouseUp, Event::MouseMove};
  return std::any_of(events.begin(), events.end(),
                     [&](Event event) { return control.handles(event, index); });
}

/// Every element that answers the mouse and that a person is to reach.
std::vector<Element> withinReach(const Store& s) {
  std::vector<Element> all;
  for (const Control* control : s.controls.all())
    for (int i = control->first(); i <= control->last(); ++i)
      if (answersTheMouse(*control, i) && !isOutOfReach(*control, i))
        all.push_back({const_cast<Control*>(control), i});
  return all;
}

/// Where presses land. It keeps them to itself, so that a walk changes nothing.
class PressCatcher : public QObject {
 public:
  PressCatcher() { qApp->installEventFilter(this); }
  const QWidget* widget = nullptr;
  QPoint at;

 private:
  bool eventFilter(QObject* receiver, QEvent* event) override {
    if (event->type() == QEvent::MouseButtonRelease || event->type() == QEvent::MouseButtonDblClick)
      return true;
    if (event->type() != QEvent::MouseButtonPress) return false;
    // The window passes its presses on to the widget under the point: that one counts.
    if (const auto* hit = qobject_cast<const QWidget*>(receiver)) {
      widget = hit;
      at = static_cast<QMouseEvent*>(event)->position().toPoint();
      return true;
    }
    return false;
  }
};

}  // namespace

class Walk : public testing::TestWithParam<std::pair<int, int>> {
 protected:
  WindowRig rig{GetParam().first, GetParam().second};

  /// The element's widget and its box there: its own, a cell of the field, or for the form a
  /// corner of its bare ground, which the field's widget shows.
  std::pair<const QWidget*, QRect> shownBy(Element e) {
    const Store& s = rig.s();
    if (e.control == &s.form) return {&rig.field(), QRect(0, 0, 5, 5)};
    if (e.control == &s.lblMiro) return {&rig.field(), rig.field().boxOf(e.index)};
    const auto* widget =
        rig.window->findChild<QWidget*>(QString::fromStdString(e.control->nameOf(e.index)));
    return {widget, widget ? widget->rect() : QRect()};
  }

  /// Shows the panels that lie over others one after another: the option frames, the naming box
  /// with the first, the sequencer's table with none.
  template <class Look>
  void eachSurface(Look look) {
    for (int shown = 0; shown <= 12; ++shown) {
      for (int i = 1; i <= 12; ++i) rig.s().FraTransf[i].Visible = i == shown;
      rig.s().FraPannello[2].Visible = shown == 0;
      rig.s().FraMemoria.Visible = shown == 1;
      rig.window->mirror();
      look();
    }
  }
};

TEST_P(Walk, WhateverAnswersTheMouseIsPressedAtItsMiddle) {
  PressCatcher catcher;
  std::map<std::string, bool> reached;
  const std::vector<Element> elements = withinReach(rig.s());
  for (const Element e : elements) reached[e.control->nameOf(e.index)] = false;
  eachSurface([&] {
    for (const Element e : elements) {
      const auto [widget, box] = shownBy(e);
      if (!widget || !widget->isVisible()) continue;
      const QPoint middle = widget->mapTo(&*rig.window, box.center());
      catcher.widget = nullptr;
      QTest::mousePress(rig.window->windowHandle(), Qt::LeftButton, {}, middle);
      QTest::mouseRelease(rig.window->windowHandle(), Qt::LeftButton, {}, middle);
      if (catcher.widget == widget && box.contains(catcher.at))
        reached[e.control->nameOf(e.index)] = true;
    }
  });
  for (const auto& [name, well] : reached) EXPECT_TRUE(well) << name;
}

TEST_P(Walk, NothingLiesOverAnyCornerOfWhatAnswersTheMouseAndNoPanelCutsItOff) {
  std::map<std::string, bool> free;
  const std::vector<Element> elements = withinReach(rig.s());
  for (const Element e : elements)
    // Cells lie under the panels while these are shown.
    if (e.control != &rig.s().lblMiro) free[e.control->nameOf(e.index)] = false;
  eachSurface([&] {
    for (const Element e : elements) {
      const auto [widget, box] = shownBy(e);
      if (!widget || !widget->isVisible()) continue;
      const bool cut = widget->visibleRegion().boundingRect().intersected(box) != box;
      const std::array corners{box.topLeft(), box.topRight(), box.bottomLeft(), box.bottomRight()};
      const bool covered = std::any_of(corners.begin(), corners.end(), [&](const QPoint& corner) {
        return rig.window->childAt(widget->mapTo(&*rig.window, corner)) != widget;
      });
      if (!cut && !covered) free[e.control->nameOf(e.index)] = true;
    }
  });
  for (const auto& [name, well] : free) EXPECT_TRUE(well) << name;
}

TEST(OutOfReach, NothingThatIsCalledSoIsShown) {
  WindowRig rig;
  for (const OutOfReach& one : outOfReach)
    for (int i = one.first; i <= one.last; ++i) {
      Control* control = rig.s().controls.find(one.control);
      ASSERT_NE(control, nullptr) << one.control;
      EXPECT_TRUE(answersTheMouse(*control, i)) << control->nameOf(i) << " needs no exception";
      EXPECT_EQ(rig.window->findChild<QWidget*>(QString::fromStdString(control->nameOf(i))),
                nullptr)
          << control->nameOf(i);
    }
}

INSTANTIATE_TEST_SUITE_P(Screens, Walk, screens);

}  // namespace caleidoscopio::test
