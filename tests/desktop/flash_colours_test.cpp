#include <gtest/gtest.h>

#include <vector>

#include "console/flashes.h"
#include "desktop/looks.h"

namespace caleidoscopio {
namespace {

// The measure of flashing knows no window, yet it must judge the colours that the window shows.
TEST(FlashColours, AreThoseOfTheWindow) {
  std::vector<std::uint32_t> numbers{0x000000, 0x0000FF, 0x00FF00, 0xFF0000, 0x123456, 0xFFFFFF};
  for (std::uint32_t number = 0x80000000; number <= 0x8000001F; ++number) numbers.push_back(number);
  for (const std::uint32_t number : numbers) {
    const QColor shown = toScreen({number});
    const auto counted =
        static_cast<std::uint32_t>(shown.red() | shown.green() << 8 | shown.blue() << 16);
    EXPECT_DOUBLE_EQ(console::luminanceOf({number}), console::luminanceOf({counted})) << number;
    EXPECT_DOUBLE_EQ(console::rednessOf({number}).amount, console::rednessOf({counted}).amount)
        << number;
  }
}

}  // namespace
}  // namespace caleidoscopio
