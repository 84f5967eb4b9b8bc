#include "mosaic/slots.h"

#include <gtest/gtest.h>

#include <string>

#include "mosaic/cells.h"
#include "support/digit_field.h"
#include "support/hands.h"
#include "support/rig.h"
#include "support/run_end.h"

namespace caleidoscopio::test {
namespace {

struct Slots : testing::Test, Rig {
  Colour shown(int i) const { return s.lblMiro[i].BackColor; }
  void showDigits() {
    if (!showsDigits(s)) press(s.lblComCol, 1);
  }
};

TEST_F(Slots, AClickMakesASlotTheOneThatTheBrushPaintsWith) {
  s.lblValore[5].Caption = "2";
  click(s.lblValore, 5);
  EXPECT_EQ(s.lblValAttivo.Caption, "5");
  EXPECT_EQ(s.lblNumAttivo.Caption, "2");
  EXPECT_EQ(s.lblValAttivo.BackColor, Colour{0xFF0080});
  EXPECT_EQ(s.lblValAttivo.ForeColor, Colour{0xFFFFFF});
  for (int k = 0; k <= 6; ++k) EXPECT_EQ(s.lblValore[k].BorderStyle, k == 5 ? 1 : 0);
}

// ---- a free swatch --------------------------------------------------------------------------

TEST_F(Slots, AFreeSwatchRecoloursTheActiveSlotWithInkAndIndex) {
  click(s.lblColore, 1);
  EXPECT_EQ(s.lblTav[3].Caption, "1");
  for (const Label* label :
       {static_cast<Label*>(&s.lblValAttivo), &s.lblValore[3], &s.lblSfondo[3]}) {
    EXPECT_EQ(label->BackColor, Colour{0x404080});
    EXPECT_EQ(label->ForeColor, Colour{0xFFFFFF});
  }
  EXPECT_EQ(s.lblColore[6].BorderStyle, 0);
  EXPECT_EQ(s.lblColore[1].BorderStyle, 1);
  EXPECT_EQ(s.lblMemoCol.BackColor, Colour{0x0000FF});
  EXPECT_EQ(s.lblValore[3].Caption, "3");
}

TEST_F(Slots, AFreeSwatchRecoloursTheCellsOfTheSlotOnBothPlanesAndNoDigit) {
  showDigits();
  paintQuartet(s, 2, 2, 3);
  const int cell = leaderAt(2, 2);
  s.lblMiro2[cell].Caption = "x";
  click(s.lblColore, 1);
  EXPECT_EQ(shown(cell), Colour{0x404080});
  EXPECT_EQ(s.lblMiro[cell].ForeColor, Colour{0xFFFFFF});
  EXPECT_EQ(s.lblMiro2[cell].BackColor, Colour{0x404080});
  EXPECT_EQ(s.lblMiro2[cell].ForeColor, Colour{0xFFFFFF});
  EXPECT_EQ(s.lblMiro2[cell].Caption, "x");
  EXPECT_EQ(s.lblMiro[cell].Caption, "3");
  EXPECT_EQ(shown(leaderAt(5, 5)), Colour{0xC0C000});
}

TEST_F(Slots, ADesignCellFollowsItsDisplayCellAndNotItsOwnColour) {
  s.lblMiro2[50].BackColor = {0x0000FF};  // the display has the ground there
  click(s.lblColore, 1);
  EXPECT_EQ(s.lblMiro2[50].BackColor, Colour{0x0000FF});
}

TEST_F(Slots, RecolouringTheSlotWhoseColourTheBackgroundUsesRepaintsTheBackgroundToo) {
  click(s.lblValore, 0);
  click(s.lblColore, 97);
  for (int i = 1; i <= 441; ++i) EXPECT_EQ(shown(i), Colour{0xFFFFFF}) << i;
}

TEST_F(Slots, AFreeSwatchRecoloursTheMatrixToo) {
  click(s.lblTotali, 4);
  click(s.lblColore, 1);
  EXPECT_EQ(s.lblTotali[4].BackColor, Colour{0x404080});
  EXPECT_EQ(s.lblTotali[4].ForeColor, Colour{0xFFFFFF});
  EXPECT_EQ(s.lblTotali[5].BackColor, Colour{0xC0C000});
}

TEST_F(Slots, SwatchesThatAreNeverDrawnCanBeClicked) {
  click(s.lblColore, 102);
  EXPECT_EQ(s.lblValore[3].BackColor, Colour{0x8000000F});
  EXPECT_EQ(s.lblTav[3].Caption, "102");
}

TEST_F(Slots, AnIndexOfASwatchThatIsNoNumberEndsTheRunAndNamesIt) {
  s.lblTav[3].Caption = "red";
  EXPECT_TRUE(endsTheRun([&] { click(s.lblColore, 1); }, {"lblTav(3).Caption", "\"red\""}));
  s.lblTav[3].Caption = "105";
  EXPECT_TRUE(endsTheRun([&] { click(s.lblColore, 1); }, {"lblColore(105)"}));
}

// ---- a swatch in use: two slots trade places ------------------------------------------------

struct Swap : Slots {
  // Slot 3, swatch 6, is active; the click asks for swatch 70, which slot 6 has.
  Swap() {
    showDigits();
    drawQuadrant(s, before);
    ConsolidaPiano(s);
    click(s.lblValore, 3);
  }
  Rows before{"360000000", "636000000", "063600000", "000000000", "444444444",
              "000000000", "111000000", "000333666", "666333000"};
};

TEST_F(Swap, EveryCellOfTheOneColourEndsInTheOther) {
  const Colour three = s.lblValore[3].BackColor;
  const Colour six = s.lblValore[6].BackColor;
  click(s.lblColore, 70);
  for (int r = 1; r <= 9; ++r)
    for (int c = 1; c <= 9; ++c) {
      const char was = before[static_cast<std::size_t>(r - 1)][static_cast<std::size_t>(c - 1)];
      for (int m = 0; m < 4; ++m) {
        const int i = leaderAt(r, c) + m;
        const Colour expected = was == '3'   ? six
                                : was == '6' ? three
                                             : s.lblValore[was - '0'].BackColor;
        EXPECT_EQ(shown(i), expected) << i;
        EXPECT_EQ(s.lblMiro2[i].BackColor, expected) << i;
      }
    }
  // Slots and cells traded together, so that as a drawing of slots the picture is the same.
  EXPECT_TRUE(becomes(before, quadrantOf(s), before));
}

TEST_F(Swap, DigitsStayOnTheCellsUntilTheNextCommit) {
  click(s.lblValore, 3);
  click(s.lblColore, 70);
  EXPECT_EQ(s.lblMiro[leaderAt(1, 1)].Caption, "3");
  EXPECT_EQ(s.lblMiro2[leaderAt(1, 1)].Caption, "3");
  EXPECT_EQ(s.lblMiro2[leaderAt(1, 2)].Caption, "6");
}

TEST_F(Swap, BothSlotsTakeTheOthersColourInkAndIndexAndBothSwatchesStayInUse) {
  click(s.lblColore, 70);
  for (const Label* label :
       {static_cast<Label*>(&s.lblValAttivo), &s.lblValore[3], &s.lblSfondo[3]}) {
    EXPECT_EQ(label->BackColor, Colour{0xFF0000});
    EXPECT_EQ(label->ForeColor, Colour{0xFFFFFF});
  }
  for (const Label* label : {&s.lblValore[6], &s.lblSfondo[6]}) {
    EXPECT_EQ(label->BackColor, Colour{0x0000FF});
    EXPECT_EQ(label->ForeColor, Colour{0x000000});
  }
  EXPECT_EQ(s.lblTav[3].Caption, "70");
  EXPECT_EQ(s.lblTav[6].Caption, "6");
  EXPECT_EQ(s.lblColore[6].BorderStyle, 1);
  EXPECT_EQ(s.lblColore[70].BorderStyle, 1);
  EXPECT_EQ(s.lblValAttivo.Caption, "3");
}

TEST_F(Swap, TwiceGivesBackWhatWas) {
  const Colour three = s.lblValore[3].BackColor;
  click(s.lblColore, 70);
  click(s.lblColore, 6);
  EXPECT_EQ(s.lblValore[3].BackColor, three);
  EXPECT_EQ(shown(leaderAt(1, 1)), three);
}

TEST_F(Swap, AClickOnTheActiveSlotsOwnSwatchChangesNothing) {
  const auto all = [&] {
    std::string values;
    for (const Control* control : s.controls.all())
      for (int i = control->first(); i <= control->last(); ++i)
        for (const Property& p : propertiesOf(control->kind())) {
          if (control->name() == "lblMemoCol") continue;  // the scratch of the trade
          values += control->nameOf(i) + std::string(p.name) + toText(p.of(*control, i));
        }
    return values;
  };
  const std::string was = all();
  click(s.lblColore, 6);
  EXPECT_EQ(all(), was);
}

TEST_F(Swap, ASwatchThatIsMarkedButInNoSlotSendsTheOldColourToElementSeven) {
  s.lblColore[1].BorderStyle = 1;
  click(s.lblColore, 1);
  EXPECT_EQ(s.lblValore[7].BackColor, Colour{0x0000FF});
  EXPECT_EQ(s.lblSfondo[7].BackColor, Colour{0x0000FF});
  EXPECT_EQ(s.lblTav[7].Caption, "6");
  EXPECT_EQ(s.lblValore[3].BackColor, Colour{0x404080});
  EXPECT_EQ(s.lblTav[3].Caption, "1");
}

// ---- what a swatch colours ------------------------------------------------------------------

TEST_F(Slots, InModeSfondoASwatchColoursTheForm) {
  s.lblComCol[3].Caption = "Sfondo";
  click(s.lblColore, 70);
  EXPECT_EQ(s.form.BackColor, Colour{0xFF0000});
  EXPECT_EQ(s.lblValore[3].BackColor, Colour{0x0000FF});
}

TEST_F(Slots, InModeTitoliASwatchsColourBecomesTheInkOfTheThreeHeadings) {
  s.lblComCol[3].Caption = "Titoli";
  click(s.lblColore, 70);
  for (const int i : {7, 8, 9}) {
    EXPECT_EQ(s.lblScritteVarie[i].ForeColor, Colour{0xFF0000});
    EXPECT_EQ(s.lblScritteVarie[i].BackColor, Colour{0xFFFFFF});
  }
  EXPECT_EQ(s.lblScritteVarie[10].ForeColor, Colour{0x000000});
}

TEST_F(Slots, InModeContornoAFreeSwatchChangesNeitherTheSlotsNorAnyMark) {
  s.lblComCol[3].Caption = "Contorno";
  click(s.lblColore, 1);
  EXPECT_EQ(s.ShpContour.BorderColor, Colour{0x404080});
  EXPECT_EQ(s.lblValore[3].BackColor, Colour{0x0000FF});
  EXPECT_EQ(s.lblTav[3].Caption, "6");
  EXPECT_EQ(s.lblColore[1].BorderStyle, 0);
  EXPECT_EQ(s.lblColore[6].BorderStyle, 1);
}

// ---- the digit button -----------------------------------------------------------------------

TEST_F(Slots, HeldThroughFourTicksAtFiveShowsSixNoughtOneTwoAndTheReleaseMakesItThree) {
  showDigits();
  paintQuartet(s, 4, 4, 5);
  press(s.lblPiù, 5);
  EXPECT_EQ(s.lblPiù[5].BackColor, colours::selected);
  EXPECT_EQ(s.lblValore[5].Caption, "5");
  for (const char* digit : {"6", "0", "1", "2"}) {
    s.time.advance(200);
    EXPECT_EQ(s.lblValore[5].Caption, digit);
    EXPECT_EQ(s.lblMiro[leaderAt(4, 4)].Caption, "5");  // a tick changes no cell
  }
  release(s.lblPiù, 5);
  EXPECT_EQ(s.lblPiù[5].BackColor, colours::unselected);
  click(s.lblPiù, 5);
  EXPECT_EQ(s.lblValore[5].Caption, "3");
  for (int m = 0; m < 4; ++m) {
    EXPECT_EQ(s.lblMiro[leaderAt(4, 4) + m].Caption, "3");
    EXPECT_EQ(s.lblMiro2[leaderAt(4, 4) + m].Caption, "3");
  }
  s.time.advance(1000);
  EXPECT_EQ(s.lblValore[5].Caption, "3");
}

TEST_F(Slots, ATickKeepsTheActiveDigitInStep) {
  press(s.lblPiù, 3);
  s.time.advance(200);
  EXPECT_EQ(s.lblNumAttivo.Caption, "4");
}

TEST_F(Slots, TheClickOfTheDigitButtonMakesItsSlotActive) {
  pressAndRelease(s.lblPiù, 1);
  EXPECT_EQ(s.lblValAttivo.Caption, "1");
  EXPECT_EQ(s.lblNumAttivo.Caption, "2");
  EXPECT_EQ(s.lblValAttivo.BackColor, Colour{0x00FFFF});
  EXPECT_EQ(s.lblValore[1].BorderStyle, 1);
  EXPECT_EQ(s.lblValore[3].BorderStyle, 0);
}

TEST_F(Slots, WithoutDigitsTheClickWritesTheDesignsDigitsAlone) {
  paintQuartet(s, 4, 4, 5);
  pressAndRelease(s.lblPiù, 5);
  EXPECT_EQ(s.lblMiro2[leaderAt(4, 4)].Caption, "6");
  EXPECT_EQ(s.lblMiro[leaderAt(4, 4)].Caption, "");
}

TEST_F(Slots, TheClickWritesTheDigitToTheMatrix) {
  click(s.lblValore, 5);
  click(s.lblTotali, 8);
  pressAndRelease(s.lblPiù, 5);
  EXPECT_EQ(s.lblTot[8].Caption, "6");
  EXPECT_EQ(s.lblTot[9].Caption, "0");
}

TEST_F(Slots, TwoSlotsCanCarryTheSameDigit) {
  pressAndRelease(s.lblPiù, 1);
  EXPECT_EQ(s.lblValore[1].Caption, "2");
  EXPECT_EQ(s.lblValore[2].Caption, "2");
}

}  // namespace
}  // namespace caleidoscopio::test
