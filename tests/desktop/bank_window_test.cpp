#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <algorithm>

#include "desktop/window_rig.h"

namespace caleidoscopio::test {

/// A stopped instrument, so that the memory buttons take presses.
class BankWindow : public testing::Test {
 protected:
  BankWindow() { rig.click("cmdGoTimer"); }
  QLineEdit& box() { return dynamic_cast<QLineEdit&>(rig.widget("TxtNomeMemoria")); }
  void saveUnder(const char* button, const QString& title) {
    rig.click("lblComandiVari(1)");
    rig.click(button);
    box().clear();
    QTest::keyClicks(&box(), title);
    QTest::keyClick(&box(), Qt::Key_Return);
  }
  WindowRig rig;
};

TEST_F(BankWindow, SavingAsksForATitleInALineThatHasTheFocus) {
  EXPECT_FALSE(rig.widget("FraMemoria").isVisible());
  rig.click("lblComandiVari(1)");
  rig.click("lblSave(3)");
  EXPECT_TRUE(rig.widget("FraMemoria").isVisible());
  EXPECT_EQ(rig.window->focusWidget(), &box());
  QTest::keyClicks(&box(), "mare, \"blu\"");
  EXPECT_EQ(rig.s().TxtNomeMemoria.Text, "mare, \"blu\"");
  rig.click("lblSalvaComb(0)");
  EXPECT_FALSE(rig.widget("FraMemoria").isVisible());
  EXPECT_TRUE(rig.files.files.contains("Miro-Vel-Ta/Save/3.txt"));
  EXPECT_EQ(rig.s().lblComb[3].Caption, "mare, \"blu\"");
  EXPECT_EQ(rig.widget("lblSave(3)").toolTip(), "mare, \"blu\"");
}

TEST_F(BankWindow, EnterSavesAndAnnullaDoesNot) {
  saveUnder("lblSave(4)", "uno");
  EXPECT_TRUE(rig.files.files.contains("Miro-Vel-Ta/Save/4.txt"));
  EXPECT_EQ(rig.s().lblSave[4].BackColor, colours::pressed);
  rig.click("lblComandiVari(1)");
  rig.click("lblSave(5)");
  QTest::keyClicks(&box(), "due");
  rig.click("lblSalvaComb(1)");
  EXPECT_FALSE(rig.files.files.contains("Miro-Vel-Ta/Save/5.txt"));
  EXPECT_FALSE(rig.widget("FraMemoria").isVisible());
}

TEST_F(BankWindow, WhileTheBoxHasTheFocusKeysAreTheBoxsAlone) {
  rig.s().lblHide.BackColor = colours::selected;
  rig.click("lblComandiVari(1)");
  rig.click("lblSave(2)");
  rig.click("lblHide");
  rig.click("lblHide");
  rig.s().cmdGoTimer.BackColor = colours::running;
  for (const Qt::Key key : {Qt::Key_X, Qt::Key_Escape, Qt::Key_Shift, Qt::Key_Up})
    QTest::keyClick(&box(), key);
  EXPECT_EQ(rig.s().cmdGoTimer.BackColor, colours::running);
}

TEST_F(BankWindow, LinesThatArePastedBecomeOneTitle) {
  rig.click("lblComandiVari(1)");
  rig.click("lblSave(3)");
  QGuiApplication::clipboard()->setText("uno\ndue\r\ntre");
  box().paste();
  QTest::keyClick(&box(), Qt::Key_Return);
  const std::string title = rig.s().lblComb[3].Caption;
  EXPECT_EQ(title.find_first_of("\n\r"), std::string::npos) << title;
  EXPECT_TRUE(title.starts_with("uno due")) << title;
  rig.click("lblComandiVari(2)");  // Esc saves the list
  const std::string& names = rig.files.files["Miro-Vel-Ta/Dati/Memorie.txt"];
  EXPECT_EQ(std::count(names.begin(), names.end(), '\n'), 231);
}

TEST_F(BankWindow, ATabCarriesNothingOutOfTheBox) {
  rig.click("lblComandiVari(1)");
  rig.click("lblSave(3)");
  for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab}) {
    QTest::keyClick(rig.window->windowHandle(), key);
    EXPECT_EQ(rig.window->focusWidget(), &box());
  }
  QTest::keyClicks(rig.window->focusWidget(), "mare");
  EXPECT_EQ(rig.s().TxtNomeMemoria.Text, "mare");
}

TEST_F(BankWindow, CancSaveAndEscStayInReachOfTheMouseWhileTheBoxIsOpen) {
  rig.click("lblComandiVari(1)");
  rig.click("lblSave(3)");
  for (const char* name : {"lblCanc", "lblComandiVari(1)", "lblComandiVari(2)"}) {
    const QWidget& widget = rig.widget(name);
    EXPECT_EQ(rig.window->childAt(widget.mapTo(&*rig.window, widget.rect().center())), &widget)
        << name;
  }
}

TEST_F(BankWindow, ATitleThatLooksLikeMarkupIsShownAsItWasTyped) {
  saveUnder("lblSave(4)", "<b>mare</b>");
  EXPECT_EQ(rig.widget("lblSave(4)").toolTip(), "&lt;b&gt;mare&lt;/b&gt;");
  EXPECT_EQ(rig.widget("lblSave(4)").accessibleName(), "<b>mare</b>");
}

TEST_F(BankWindow, AfterTheBoxClosesAnyKeyStopsARunAgain) {
  saveUnder("lblSave(1)", "prova");
  EXPECT_EQ(rig.window->focusWidget(), &*rig.window);
  rig.s().lblHide.BackColor = colours::selected;
  rig.click("cmdGoTimer");
  QTest::keyClick(rig.window->focusWidget(), Qt::Key_A);
  EXPECT_EQ(rig.s().cmdGoTimer.BackColor, colours::idle);
}

TEST_F(BankWindow, AMemoryIsLoadedWithOneClick) {
  rig.click("lblSposta(3)");
  saveUnder("lblSave(0)", "tre");
  rig.click("lblSposta(8)");
  rig.click("lblSave(0)");
  EXPECT_EQ(rig.s().lblSomma.Caption, "203");
  EXPECT_EQ(rig.s().lblNomefile.Caption, "tre");
}

TEST_F(BankWindow, AHeldBankButtonGoesOnAndTheListFollows) {
  rig.click("lblSeq(11)");
  rig.press("lblMemo(2)");
  EXPECT_EQ(rig.s().lblMemo[0].Caption, "1");
  QTest::qWait(400);
  rig.release("lblMemo(2)");
  const int bank = std::stoi(rig.s().lblMemo[0].Caption);
  EXPECT_GT(bank, 1);
  EXPECT_TRUE(rig.widget(("lblComb(" + std::to_string(bank) + "4)").c_str()).isVisible());
  EXPECT_FALSE(rig.widget("lblComb(4)").isVisible());
}

TEST_F(BankWindow, TheMemoryButtonsRestDuringARun) {
  rig.click("cmdGoTimer");
  rig.click("lblComandiVari(1)");
  EXPECT_EQ(rig.s().lblComandiVari[1].BackColor, colours::unselected);
}

TEST_F(BankWindow, AProgrammeIsWrittenByClicksOnThePanel) {
  rig.click("lblSeq(11)");
  EXPECT_TRUE(rig.widget("FraPannello(2)").isVisible());
  // The cursor stands on step 3 after the stop; Mem writes there and goes on to 4, then round to 1.
  ASSERT_EQ(rig.s().lblSeq[4].Caption, "3");
  rig.click("cmdOnOff(1)");
  rig.click("lblSposta(7)");
  rig.click("lblSeq(7)");
  rig.click("lblOraria");
  rig.click("lblSposta(2)");
  rig.click("lblSeq(7)");
  rig.click("cmdOnOff(1)");
  rig.click("lblSeq(7)");
  EXPECT_EQ(rig.s().lblTmrA[3].Caption, "7-Out");
  EXPECT_EQ(rig.s().lblTmrA[4].Caption, "2-In");
  EXPECT_EQ(rig.s().lblTmrA[1].Caption, "OFF");
  EXPECT_EQ(rig.s().lblSeq[4].Caption, "2");
}

TEST_F(BankWindow, EscSavesAndTheEndPicturesClickEndsTheProgram) {
  rig.click("lblComandiVari(2)");
  EXPECT_FALSE(rig.s().form.Visible);
  ASSERT_TRUE(rig.s().frmMiroVelTaZQ.Visible);
  EndWindow end(*rig.driver);
  end.resize(1024, 768);
  end.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&end));
  auto* message = end.findChild<ControlWidget*>("lblAvvertimento2");
  ASSERT_NE(message, nullptr);
  EXPECT_EQ(rig.s().lblAvvertimento2.Caption, "...alla prossima!");
  auto* picture = end.findChild<ControlWidget*>("lblZQ");
  ASSERT_NE(picture, nullptr);
  EXPECT_FALSE(rig.s().ended);
  QTest::mouseClick(picture, Qt::LeftButton);
  EXPECT_TRUE(rig.s().ended);
}

}  // namespace caleidoscopio::test
