#include "mosaic/palette.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "support/rig.h"

namespace caleidoscopio::test {
namespace {

// The palette by rows of eight from index 1 on, as 0xBBGGRR; `w` where the ink is white.
constexpr const char* rows[] = {"404080w 5555AA 8D8DC7 AAAAFF 5555FF 0000FF 0000AAw 000055w",
                                "385572w 5480AB 8DAAC7 C0E0FF 55AAFF 0080FF 0055AAw 002B55w",
                                "387272w 54ABAB 8DC7C7 AAFFFF 80FFFF 00FFFF 00AAAA 005555w",
                                "387255w 54AB80 8DC7AA AAFFD5 55FFAA 00FF80 00AA55w 00552Bw",
                                "387238w 55AA55 8DC78D AAFFAA 55FF55 00FF00 00AA00 005500w",
                                "557238w 80AA55 AAC78D D5FFAA AAFF55 80FF00 55AA00w 2B5500w",
                                "727238w AAAA55 C7C78D FFFFAA FFFF55 FFFF00 C0C000 555500w",
                                "725538w AA8055 C7AA8D FFD5AA FFAA55 FF8000 AA5500w 552B00w",
                                "723838w AA5555w C78D8D FFAAAA FF5555w FF0000w AA0000w 550000w",
                                "723855w AA5580w C78DAA FFAAD5 FF55AA FF0080w AA0055w 55002Bw",
                                "723872w AA55AA C78DC7 FFAAFF FF55FF FF00FF AA00AAw 550055w",
                                "553872w 8055AA AA8DC7 D5AAFF AA55FF 8000FF 5500AAw 2B0055w",
                                "FFFFFF EBEBEB 808080w 404040w 000000w 8000000F C0C0C0 E0E0E0"};

TEST(Palette, HoldsTheColoursAndInksOfItsRows) {
  const Rig rig;
  int index = 0;
  for (const char* row : rows) {
    std::istringstream words(row);
    for (std::string word; words >> word;) {
      const Label& swatch = rig.s.lblColore[++index];
      EXPECT_EQ(swatch.BackColor.value, std::stoul(word, nullptr, 16)) << index;
      EXPECT_EQ(swatch.ForeColor.value, word.ends_with('w') ? 0xFFFFFFU : 0U) << index;
    }
  }
  EXPECT_EQ(index, 104);
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
