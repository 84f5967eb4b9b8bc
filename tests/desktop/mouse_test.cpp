#include <gtest/gtest.h>

#include "desktop/window_rig.h"

namespace caleidoscopio::test {

TEST(Mouse, PressAndReleaseOnAFamilySelectsTheShift) {
  WindowRig rig;
  rig.click("lblSposta(9)");
  EXPECT_EQ(rig.s().lblSomma.Caption, "209");
  EXPECT_EQ(rig.s().lblMode[1].Caption, "Zig-Zag Orizzontale Out");
  EXPECT_EQ(rig.s().lblSposta[9].BackColor, colours::selected);
}

TEST(Mouse, ThePressFlipsTheDirectionAndTheReleaseOnlyPaints) {
  WindowRig rig;
  rig.press("lblOraria");
  EXPECT_EQ(rig.s().lblOraria.Caption, "In");
  EXPECT_EQ(rig.s().lblOraria.BackColor, colours::pressed);
  rig.release("lblOraria");
  EXPECT_EQ(rig.s().lblOraria.Caption, "In");
  EXPECT_EQ(rig.s().lblOraria.BackColor, colours::unselected);
}

TEST(Mouse, AHeldSpeedButtonStepsUntilItIsLetGo) {
  WindowRig rig;
  rig.press("lblPiùTmr(1)");
  EXPECT_EQ(rig.s().lblVelo[1].Caption, "500");
  QTest::qWait(300);
  rig.release("lblPiùTmr(1)");
  const std::string reached = rig.s().lblVelo[1].Caption;
  // The steps come at 70, 138, 204 and 268 ms; a busy machine may lose some, never win any.
  EXPECT_GT(std::stoi(reached), 500);
  EXPECT_FALSE(rig.s().TmrVeloPiù.Enabled());
  EXPECT_EQ(std::to_string(rig.s().TmrGoA.Interval()), reached);
  QTest::qWait(200);
  EXPECT_EQ(rig.s().lblVelo[1].Caption, reached);
}

TEST(Mouse, AClickPaintsACellAndItsMirrorsAndASecondErasesThem) {
  WindowRig rig;
  for (const int m : {0, 1, 2, 3}) EXPECT_EQ(rig.s().lblMiro[41 + m].BackColor.value, 0xC0C000u);
  rig.clickCell(43);
  for (const int m : {0, 1, 2, 3}) {
    EXPECT_EQ(rig.s().lblMiro[41 + m].BackColor.value, 0x0000FFu);
    EXPECT_EQ(rig.s().lblMiro2[41 + m].BackColor.value, 0x0000FFu);
  }
  rig.clickCell(42);
  for (const int m : {0, 1, 2, 3}) EXPECT_EQ(rig.s().lblMiro[41 + m].BackColor.value, 0xC0C000u);
}

TEST(Mouse, EveryCellIsPressedWhereItIsShown) {
  WindowRig rig(1366, 768);
  for (int cell = 1; cell <= cellCount; ++cell)
    EXPECT_EQ(rig.field().cellAt(rig.field().boxOf(cell).center()), cell);
  EXPECT_EQ(rig.field().cellAt({5, 5}), 0);
}

TEST(Mouse, AReleaseBesideTheControlIsNoClick) {
  WindowRig rig;
  rig.press("lblSposta(5)");
  QTest::mouseRelease(&rig.widget("lblSposta(5)"), Qt::LeftButton, {}, QPoint(-30, -30));
  EXPECT_EQ(rig.s().lblSomma.Caption, "201");
}

TEST(Mouse, AReleaseOnAnotherCellPaintsNothing) {
  WindowRig rig;
  QTest::mousePress(&rig.field(), Qt::LeftButton, {}, rig.field().boxOf(1).center());
  QTest::mouseRelease(&rig.field(), Qt::LeftButton, {}, rig.field().boxOf(9).center());
  EXPECT_EQ(rig.s().lblIndex.Caption, "0");
}

TEST(Mouse, OnlyTheLeftButtonCounts) {
  WindowRig rig;
  QTest::mouseClick(&rig.widget("lblSposta(5)"), Qt::RightButton);
  QTest::mouseClick(&rig.widget("lblSposta(6)"), Qt::MiddleButton);
  EXPECT_EQ(rig.s().lblSomma.Caption, "201");
}

TEST(Mouse, TheSecondPressOfADoubleClickIsAPress) {
  WindowRig rig;
  rig.click("lblOraria");
  EXPECT_EQ(rig.s().lblOraria.Caption, "In");
  QWidget& button = rig.widget("lblOraria");
  const QPointF at = button.rect().center();
  QMouseEvent second(QEvent::MouseButtonDblClick, at, button.mapToGlobal(at), Qt::LeftButton,
                     Qt::LeftButton, {});
  QApplication::sendEvent(&button, &second);
  EXPECT_EQ(rig.s().lblOraria.Caption, "Out");
  EXPECT_EQ(rig.s().lblOraria.BackColor, colours::pressed);
  rig.release("lblOraria");
  EXPECT_EQ(rig.s().lblOraria.BackColor, colours::unselected);
}

TEST(Mouse, AButtonHiddenWhileHeldStopsRepeating) {
  WindowRig rig;
  rig.press("lblPiùTmr(1)");
  EXPECT_TRUE(rig.s().TmrVeloPiù.Enabled());
  rig.s().FraPannello[0].Visible = false;
  rig.window->mirror();
  EXPECT_FALSE(rig.s().TmrVeloPiù.Enabled());
  EXPECT_EQ(rig.s().lblPiùTmr[1].BackColor, colours::idle);
}

TEST(Mouse, AButtonDisabledWhileHeldStopsRepeating) {
  WindowRig rig;
  rig.press("lblMenoTmr(2)");
  rig.s().lblMenoTmr[2].Enabled = false;
  rig.window->mirror();
  EXPECT_FALSE(rig.s().TmrVeloMeno.Enabled());
}

TEST(Mouse, AWindowThatLosesTheMouseLetsGo) {
  WindowRig rig;
  rig.press("lblPiùTmr(1)");
  QEvent away(QEvent::WindowDeactivate);
  QApplication::sendEvent(&*rig.window, &away);
  EXPECT_FALSE(rig.s().TmrVeloPiù.Enabled());
  EXPECT_EQ(rig.s().lblPiùTmr[1].BackColor, colours::idle);
}

TEST(Mouse, ADisabledControlTakesNoMouseAndIsNoBareForm) {
  WindowRig rig;
  rig.s().lblHide.BackColor = colours::selected;  // a click on the bare form would stop the run
  rig.s().lblSyncro.Enabled = false;
  rig.window->mirror();
  rig.click("lblSyncro");
  EXPECT_EQ(rig.s().lblSyncro.BackColor, colours::unselected);
  EXPECT_EQ(rig.s().cmdGoTimer.BackColor, colours::running);
}

TEST(Mouse, AClickOnAPanelsGroundIsNoClickOnTheForm) {
  WindowRig rig;
  rig.s().lblHide.BackColor = colours::selected;
  QTest::mouseClick(&rig.widget("FraPannello(0)"), Qt::LeftButton, {}, QPoint(3, 3));
  EXPECT_EQ(rig.s().cmdGoTimer.BackColor, colours::running);
}

TEST(Mouse, AClickOnTheBareFormStopsAHiddenRunAndShowsThePanels) {
  WindowRig rig;
  rig.click("cmdGoTimer");  // stops the run that start-up began
  rig.s().lblHide.BackColor = colours::selected;
  rig.click("cmdGoTimer");
  EXPECT_FALSE(rig.widget("FraPannello(0)").isVisible());
  EXPECT_FALSE(rig.widget("FraPannello(1)").isVisible());
  QTest::mouseClick(&rig.field(), Qt::LeftButton, {}, QPoint(4, 4));
  EXPECT_TRUE(rig.widget("FraPannello(0)").isVisible());
  EXPECT_TRUE(rig.widget("FraPannello(1)").isVisible());
  EXPECT_EQ(rig.s().cmdGoTimer.BackColor, colours::idle);
}

TEST(Mouse, TheHeadingsAroundTheFieldArePartOfTheBareForm) {
  for (const char* heading : {"lblScritteVarie(7)", "lblScritteVarie(8)", "lblScritteVarie(9)"}) {
    WindowRig rig;
    rig.s().lblHide.BackColor = colours::selected;
    rig.click("cmdGoTimer");
    rig.click("cmdGoTimer");
    ASSERT_FALSE(rig.widget("FraPannello(0)").isVisible());
    QTest::mouseClick(rig.window->windowHandle(), Qt::LeftButton, {},
                      rig.widget(heading).geometry().center());
    EXPECT_TRUE(rig.widget("FraPannello(0)").isVisible()) << heading;
  }
}

TEST(Mouse, ACellPaintsDuringARunAndTheRunGoesOn) {
  WindowRig rig;
  rig.s().lblHide.BackColor = colours::selected;
  rig.clickCell(1);
  EXPECT_EQ(rig.s().cmdGoTimer.BackColor, colours::running);
  EXPECT_EQ(rig.s().lblMiro[3].BackColor.value, 0x0000FFu);
}

}  // namespace caleidoscopio::test
