#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include "desktop/tool_tips.h"
#include "desktop/window_rig.h"

namespace caleidoscopio::test {

TEST(Window, AnyKeyStopsAHiddenRunAndASecondDoesNothing) {
  for (const Qt::Key key : {Qt::Key_A, Qt::Key_Shift, Qt::Key_Tab, Qt::Key_Control}) {
    WindowRig rig;
    rig.click("cmdGoTimer");
    rig.s().lblHide.BackColor = colours::selected;
    rig.click("cmdGoTimer");
    ASSERT_FALSE(rig.widget("FraPannello(0)").isVisible());
    QTest::keyClick(&*rig.window, key);
    EXPECT_TRUE(rig.widget("FraPannello(0)").isVisible());
    EXPECT_EQ(rig.s().cmdGoTimer.BackColor, colours::idle);
    QTest::keyClick(&*rig.window, key);
    EXPECT_EQ(rig.s().cmdGoTimer.BackColor, colours::idle);
  }
}

TEST(Window, TheFieldMovesByTheRealClock) {
  WindowRig rig(1024, 768, [](Store& s) {
    s.cmdOnOff[1].BackColor = colours::running;
    s.lblVelo[1].Caption = "20";
    s.lblMiro[1].BackColor = {0x0000FF};
  });
  const long long before = rig.field().paintedCells();
  const std::uint64_t time = rig.s().time.now();
  QTest::qWait(200);
  EXPECT_GE(rig.s().time.now(), time + 150);
  EXPECT_GT(rig.field().paintedCells(), before);
}

TEST(Window, ATickThatChangesNothingPaintsNoCell) {
  WindowRig rig;
  rig.click("cmdGoTimer");
  QTest::qWait(50);
  const long long before = rig.field().paintedCells();
  rig.driver->raise(rig.s().TmrGoA, Event::Tick, 0);  // a field of one colour
  QTest::qWait(50);
  EXPECT_EQ(rig.field().paintedCells(), before);
  rig.clickCell(1);
  QTest::qWait(50);
  // The four cells of a quartet stand apart; each is painted alone.
  EXPECT_EQ(rig.field().paintedCells(), before + 4);
}

/// How often the window is painted while `act` and what follows from it runs.
class Repaints : public QObject {
 public:
  explicit Repaints(QObject& window) { window.installEventFilter(this); }
  int count = 0;

 private:
  bool eventFilter(QObject*, QEvent* event) override {
    count += event->type() == QEvent::UpdateRequest;
    return false;
  }
};

TEST(Window, ThePanelsHideAndShowInOneRepaint) {
  WindowRig rig;
  rig.click("cmdGoTimer");  // the start ended in a run
  QTest::qWait(50);
  rig.s().lblHide.BackColor = colours::selected;
  {
    Repaints repaints(*rig.window);
    rig.click("cmdGoTimer");
    QTest::qWait(50);
    ASSERT_FALSE(rig.widget("FraPannello(0)").isVisible());
    EXPECT_EQ(repaints.count, 1);
  }
  Repaints repaints(*rig.window);
  QTest::keyClick(&*rig.window, Qt::Key_Space);
  QTest::qWait(50);
  ASSERT_TRUE(rig.widget("FraPannello(0)").isVisible());
  EXPECT_EQ(repaints.count, 1);
}

class Sizes : public testing::TestWithParam<std::pair<int, int>> {};

TEST_P(Sizes, EveryCaptionIsShownWhole) {
  const auto [width, height] = GetParam();
  WindowRig rig(width, height);
  for (const ControlWidget* control : rig.window->findChildren<ControlWidget*>())
    EXPECT_TRUE(control->showsWholeCaption()) << control->objectName().toStdString();
}

TEST_P(Sizes, NoLetterIsBelowNinePixels) {
  const auto [width, height] = GetParam();
  WindowRig rig(width, height);
  for (const ControlWidget* control : rig.window->findChildren<ControlWidget*>())
    EXPECT_GE(control->letterPixels(), 9) << control->objectName().toStdString();
}

TEST_P(Sizes, TheFieldsCellsMeetWithoutAGap) {
  const auto [width, height] = GetParam();
  WindowRig rig(width, height, [](Store& s) {
    for (int i = 1; i <= cellCount; ++i) s.lblMiro[i].BackColor = {0x00FF00};
    s.form.BackColor = {0x0000FF};
  });
  const QImage picture = rig.window->grab().toImage();
  const double ratio = picture.devicePixelRatio();
  const auto device = [ratio](const QPoint& point) { return (QPointF(point) * ratio).toPoint(); };
  const QPoint from = device(rig.field().boxOf(437).topLeft()) + QPoint(2, 2);
  const QPoint to = device(rig.field().boxOf(439).bottomRight()) - QPoint(2, 2);
  for (int x = from.x(); x <= to.x(); ++x)
    ASSERT_EQ(picture.pixelColor(x, from.y() + 3), QColor(0, 255, 0)) << x;
  for (int y = from.y(); y <= to.y(); ++y)
    ASSERT_EQ(picture.pixelColor(from.x() + 3, y), QColor(0, 255, 0)) << y;
}

INSTANTIATE_TEST_SUITE_P(Screens, Sizes, screens);

TEST(Window, EveryControlThatAPersonUsesHasAToolTipAndTheSameAccessibleName) {
  WindowRig rig;
  for (const Spot& spot : rig.s().spots) {
    const auto* widget = rig.window->findChild<ControlWidget*>(
        QString::fromStdString(spot.element.control->nameOf(spot.element.index)));
    if (!widget) continue;
    const std::string name = widget->objectName().toStdString();
    const bool used = widget->isButton() || spot.look == Look::Display;
    EXPECT_TRUE(!used || !widget->toolTip().isEmpty()) << name;
    EXPECT_EQ(widget->toolTip(), toolTipOf(rig.s(), spot.element)) << name;
    EXPECT_EQ(widget->accessibleName(), widget->toolTip()) << name;
  }
}

TEST(Window, TheTipsThatPeopleKnowTheInstrumentByAreTheseToTheLetter) {
  const std::pair<const char*, const char*> tips[] = {
      {"lblBreakMode(16)", "Tempo di Ripresa Timer"},
      {"lblBreakMode(18)", "Colori di transizione"},
      {"lblBreakMode(19)", "Crea Disegno"},
      {"lblBreakMode(21)", "Ripeti"},
      {"lblBreakMode(26)", "Modifica Colori"},
      {"lblTmrBreak(0)", "Velocità di transizione"},
      {"lblCambioCol(0)", "colore Disegno attivo"},
      {"lblCambioCol(1)", "Cambia Tutti i colori"},
      {"lblCambioCol(2)", "Scambia una coppia di colori"},
      {"lblCambioCol(3)", "Sposta tutti i colori"},
      {"lblCambioCol(4)", "colore Fondo attivo"},
      {"lblCambioCol(6)", "Includi primo Colore"},
      {"lblCambioCol(9)", "Random All"},
      {"lblCambioCol(10)", "Colore Random"},
      {"lblNSc", "Numero Colori"},
  };
  WindowRig rig;
  for (const auto& [control, tip] : tips)
    EXPECT_EQ(rig.widget(control).toolTip(), QString::fromUtf8(tip)) << control;
  // These two are clipped away; their tips are kept with the others.
  EXPECT_EQ(toolTipOf(rig.s(), {&rig.s().lblTmrRndCol, 3}), "Aggiunta secondi random");
  EXPECT_EQ(toolTipOf(rig.s(), {&rig.s().lblCambioCol, 11}), "Ripetizioni");
}

TEST(Window, AssistiveProgramsFindAButtonAndPressIt) {
  WindowRig rig;
  QAccessibleInterface* button = QAccessible::queryAccessibleInterface(&rig.widget("lblSposta(4)"));
  ASSERT_NE(button, nullptr);
  EXPECT_EQ(button->role(), QAccessible::Button);
  EXPECT_EQ(button->text(QAccessible::Name), "Campo Verticale");
  button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(rig.s().lblSomma.Caption, "204");
  EXPECT_EQ(QAccessible::queryAccessibleInterface(&rig.widget("lblMode(1)"))->role(),
            QAccessible::StaticText);
}

TEST(Window, ThePointerRestsWhileThePanelsAreHidden) {
  WindowRig rig;
  rig.click("cmdGoTimer");
  rig.s().lblHide.BackColor = colours::selected;
  rig.click("cmdGoTimer");
  QTest::qWait(3300);
  EXPECT_EQ(rig.field().cursor().shape(), Qt::BlankCursor);
  QTest::mouseMove(&rig.field(), QPoint(300, 300));
  QTest::mouseMove(&rig.field(), QPoint(310, 310));
  QTest::qWait(50);
  EXPECT_NE(rig.field().cursor().shape(), Qt::BlankCursor);
}

TEST(Window, AFaultEndsTheRunAndNothingMovesAfterIt) {
  WindowRig rig;
  rig.s().lblVelo[1].Caption = "abc";
  rig.click("cmdGoTimer");
  rig.click("cmdGoTimer");  // Go reads the speed
  ASSERT_EQ(rig.faults.size(), 1);
  EXPECT_TRUE(rig.faults[0].contains("lblVelo(1)")) << rig.faults[0].toStdString();
  EXPECT_TRUE(rig.faults[0].contains("abc"));
  EXPECT_TRUE(rig.runs().runEnded());
  rig.click("lblSposta(9)");
  EXPECT_EQ(rig.s().lblSomma.Caption, "201");
}

TEST(Window, AFaultsBoxIsClosedAsAPersonWould) {
  QString shown;
  QTimer::singleShot(100, [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    shown = box->text();
    // What a file held is not taken for markup.
    EXPECT_EQ(box->textFormat(), Qt::PlainText);
    QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton);
  });
  showFault("Default.txt, line 3: found '<b>'", nullptr);
  EXPECT_EQ(shown, "Default.txt, line 3: found '<b>'");
}

}  // namespace caleidoscopio::test
