#include <gtest/gtest.h>

#include <array>
#include <string>

#include "mosaic/slots.h"
#include "support/digit_field.h"
#include "support/rig.h"

namespace caleidoscopio::test {
namespace {

struct RandomPalette : testing::Test, Rig {
  std::vector<int> marked() const {
    std::vector<int> all;
    for (int i = 1; i <= 104; ++i)
      if (s.lblColore[i].BorderStyle == 1) all.push_back(i);
    return all;
  }
};

TEST_F(RandomPalette, DrawsSevenSwatchesForTheSlotsAndBothSetsInTheOrderDrawn) {
  const std::array drawn{101, 5, 40, 7, 97, 33, 12};
  for (const int p : drawn) pick(p, 101);
  PaletteCasuale(s);
  EXPECT_EQ(generator.draws, 7);
  for (int k = 0; k <= 6; ++k) {
    const int p = drawn[static_cast<std::size_t>(k)];
    for (const Label* index : {&s.lblTav[k], &s.lblTavB[k], &s.lblTavC[k]})
      EXPECT_EQ(index->Caption, std::to_string(p));
    for (const Label* slot :
         {&s.lblValore[k], &s.lblSfondo[k], &s.lblValoreB[k], &s.lblValoreC[k]}) {
      EXPECT_EQ(slot->BackColor, s.lblColore[p].BackColor);
      EXPECT_EQ(slot->ForeColor, s.lblColore[p].ForeColor);
    }
  }
  EXPECT_EQ(marked(), (std::vector{5, 7, 12, 33, 40, 97, 101}));
}

TEST_F(RandomPalette, PassesOverASwatchThatWasDrawnBefore) {
  for (const int p : {5, 5, 6, 5, 6, 7, 8, 9, 10, 11}) pick(p, 101);
  PaletteCasuale(s);
  EXPECT_EQ(generator.draws, 10);
  EXPECT_EQ(marked(), (std::vector{5, 6, 7, 8, 9, 10, 11}));
}

TEST_F(RandomPalette, FreesTheSwatchesOfTheOldPaletteButNotTheThreeGreysBeyond101) {
  s.lblColore[103].BorderStyle = 1;
  for (const int p : {1, 2, 3, 4, 5, 7, 8}) pick(p, 101);
  PaletteCasuale(s);
  EXPECT_EQ(marked(), (std::vector{1, 2, 3, 4, 5, 7, 8, 103}));
}

TEST_F(RandomPalette, KeepsTheDigitsAndGivesThemToBothSets) {
  s.lblValore[2].Caption = "6";
  for (const int p : {1, 2, 3, 4, 5, 7, 8}) pick(p, 101);
  PaletteCasuale(s);
  EXPECT_EQ(s.lblValore[2].Caption, "6");
  EXPECT_EQ(s.lblValoreB[2].Caption, "6");
  EXPECT_EQ(s.lblValoreC[2].Caption, "6");
}

TEST_F(RandomPalette, RepaintsNoCell) {
  paintQuartet(s, 1, 1, 3);
  for (const int p : {1, 2, 3, 4, 5, 7, 8}) pick(p, 101);
  PaletteCasuale(s);
  EXPECT_EQ(s.lblMiro[1].BackColor, Colour{0x0000FF});
  EXPECT_EQ(s.lblMiro[441].BackColor, Colour{0xC0C000});
}

TEST_F(RandomPalette, WithFewerThanSevenInAThousandDrawsTheRestReadSwatchNoughtWhite) {
  pick(9, 101);
  generator.otherwise = 0.0F;  // swatch 1, again and again
  PaletteCasuale(s);
  EXPECT_EQ(generator.draws, 1000);
  EXPECT_EQ(s.lblTav[0].Caption, "9");
  EXPECT_EQ(s.lblTav[1].Caption, "1");
  for (int k = 2; k <= 6; ++k) {
    EXPECT_EQ(s.lblTav[k].Caption, "0");
    EXPECT_EQ(s.lblTavB[k].Caption, "0");
    EXPECT_EQ(s.lblValore[k].BackColor, Colour{0xFFFFFF});
  }
  EXPECT_EQ(s.lblColore[0].BorderStyle, 0);
}

}  // namespace
}  // namespace caleidoscopio::test
