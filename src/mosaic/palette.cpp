#include "mosaic/palette.h"

namespace caleidoscopio {

namespace {
constexpr Colour dark{0x000000};
constexpr Colour light{0xFFFFFF};
}  // namespace

// One row of eight is one hue, from muted dark through pale and saturated to dark. Each colour has
// the ink in which a digit on it stays legible.
// clang-format off
const std::array<Swatch, 105> palette{{
    {{0xFFFFFF}, dark},
    {{0x404080}, light}, {{0x5555AA}, dark}, {{0x8D8DC7}, dark}, {{0xAAAAFF}, dark},
    {{0x5555FF}, dark}, {{0x0000FF}, dark}, {{0x0000AA}, light}, {{0x000055}, light},  // 1 to 8
    {{0x385572}, light}, {{0x5480AB}, dark}, {{0x8DAAC7}, dark}, {{0xC0E0FF}, dark},
    {{0x55AAFF}, dark}, {{0x0080FF}, dark}, {{0x0055AA}, light}, {{0x002B55}, light},  // 9 to 16
    {{0x387272}, light}, {{0x54ABAB}, dark}, {{0x8DC7C7}, dark}, {{0xAAFFFF}, dark},
    {{0x80FFFF}, dark}, {{0x00FFFF}, dark}, {{0x00AAAA}, dark}, {{0x005555}, light},  // 17 to 24
    {{0x387255}, light}, {{0x54AB80}, dark}, {{0x8DC7AA}, dark}, {{0xAAFFD5}, dark},
    {{0x55FFAA}, dark}, {{0x00FF80}, dark}, {{0x00AA55}, light}, {{0x00552B}, light},  // 25 to 32
    {{0x387238}, light}, {{0x55AA55}, dark}, {{0x8DC78D}, dark}, {{0xAAFFAA}, dark},
    {{0x55FF55}, dark}, {{0x00FF00}, dark}, {{0x00AA00}, dark}, {{0x005500}, light},  // 33 to 40
    {{0x557238}, light}, {{0x80AA55}, dark}, {{0xAAC78D}, dark}, {{0xD5FFAA}, dark},
    {{0xAAFF55}, dark}, {{0x80FF00}, dark}, {{0x55AA00}, light}, {{0x2B5500}, light},  // 41 to 48
    {{0x727238}, light}, {{0xAAAA55}, dark}, {{0xC7C78D}, dark}, {{0xFFFFAA}, dark},
    {{0xFFFF55}, dark}, {{0xFFFF00}, dark}, {{0xC0C000}, dark}, {{0x555500}, light},  // 49 to 56
    {{0x725538}, light}, {{0xAA8055}, dark}, {{0xC7AA8D}, dark}, {{0xFFD5AA}, dark},
    {{0xFFAA55}, dark}, {{0xFF8000}, dark}, {{0xAA5500}, light}, {{0x552B00}, light},  // 57 to 64
    {{0x723838}, light}, {{0xAA5555}, light}, {{0xC78D8D}, dark}, {{0xFFAAAA}, dark},
    {{0xFF5555}, light}, {{0xFF0000}, light}, {{0xAA0000}, light}, {{0x550000}, light},  // 65 to 72
    {{0x723855}, light}, {{0xAA5580}, light}, {{0xC78DAA}, dark}, {{0xFFAAD5}, dark},
    {{0xFF55AA}, dark}, {{0xFF0080}, light}, {{0xAA0055}, light}, {{0x55002B}, light},  // 73 to 80
    {{0x723872}, light}, {{0xAA55AA}, dark}, {{0xC78DC7}, dark}, {{0xFFAAFF}, dark},
    {{0xFF55FF}, dark}, {{0xFF00FF}, dark}, {{0xAA00AA}, light}, {{0x550055}, light},  // 81 to 88
    {{0x553872}, light}, {{0x8055AA}, dark}, {{0xAA8DC7}, dark}, {{0xD5AAFF}, dark},
    {{0xAA55FF}, dark}, {{0x8000FF}, dark}, {{0x5500AA}, light}, {{0x2B0055}, light},  // 89 to 96
    {{0xFFFFFF}, dark}, {{0xEBEBEB}, dark}, {{0x808080}, light}, {{0x404040}, light},
    {{0x000000}, light}, {{0x8000000F}, dark}, {{0xC0C0C0}, dark}, {{0xE0E0E0}, dark},  // 97 to 104
}};
// clang-format on

}  // namespace caleidoscopio
