#include "mosaic/palette.h"

#include <gtest/gtest.h>

#include "support/rig.h"

namespace caleidoscopio::test {
namespace {

TEST(Palette, HoldsTheColoursAndInksOfItsRows) {
  const Rig rig;
  const struct {
    int index;
    std::uint32_t colour, ink;
  } spots[] = {{1, 0x404080, 0xFFFFFF},   {2, 0x5555AA, 0},         {8, 0x000055, 0xFFFFFF},
               {9, 0x385572, 0xFFFFFF},   {14, 0x0080FF, 0},        {16, 0x002B55, 0xFFFFFF},
               {23, 0x00AAAA, 0},         {24, 0x005555, 0xFFFFFF}, {31, 0x00AA55, 0xFFFFFF},
               {39, 0x00AA00, 0},         {40, 0x005500, 0xFFFFFF}, {47, 0x55AA00, 0xFFFFFF},
               {55, 0xC0C000, 0},         {56, 0x555500, 0xFFFFFF}, {63, 0xAA5500, 0xFFFFFF},
               {66, 0xAA5555, 0xFFFFFF},  {67, 0xC78D8D, 0},        {69, 0xFF5555, 0xFFFFFF},
               {70, 0xFF0000, 0xFFFFFF},  {74, 0xAA5580, 0xFFFFFF}, {77, 0xFF55AA, 0},
               {78, 0xFF0080, 0xFFFFFF},  {82, 0xAA55AA, 0},        {88, 0x550055, 0xFFFFFF},
               {90, 0x8055AA, 0},         {96, 0x2B0055, 0xFFFFFF}, {97, 0xFFFFFF, 0},
               {98, 0xEBEBEB, 0},         {99, 0x808080, 0xFFFFFF}, {100, 0x404040, 0xFFFFFF},
               {101, 0x000000, 0xFFFFFF}, {102, 0x8000000F, 0},     {103, 0xC0C0C0, 0},
               {104, 0xE0E0E0, 0}};
  for (const auto& spot : spots) {
    EXPECT_EQ(rig.s.lblColore[spot.index].BackColor, Colour{spot.colour}) << spot.index;
    EXPECT_EQ(rig.s.lblColore[spot.index].ForeColor, Colour{spot.ink}) << spot.index;
  }
}

TEST(Palette, NoTwoSwatchesHaveOneColour) {
  for (std::size_t a = 1; a <= 104; ++a)
    for (std::size_t b = a + 1; b <= 104; ++b)
      EXPECT_NE(palette[a].colour, palette[b].colour) << a << " " << b;
}

TEST(Palette, ElementNoughtIsWhiteAndTakesNoClick) {
  Rig rig;
  EXPECT_EQ(rig.s.lblColore[0].BackColor, Colour{0xFFFFFF});
  click(rig.s.lblColore, 0);
  EXPECT_EQ(rig.s.lblTav[3].Caption, "6");
}

}  // namespace
}  // namespace caleidoscopio::test
