#pragma once

#include <compare>
#include <cstdint>

namespace caleidoscopio {

/// A colour as the instrument counts it: 0x00BBGGRR, or 0x800000NN for a colour of the system.
/// Compared exactly; as a number in a file it is these 32 bits, signed.
struct Colour {
  std::uint32_t value = 0;
  constexpr bool operator==(const Colour&) const = default;
};

/// A length on the screen in twips: 15 to a device-independent pixel. Not rounded.
struct Twips {
  double value = 0;
  constexpr auto operator<=>(const Twips&) const = default;
};
constexpr Twips operator+(Twips a, Twips b) {
  return {a.value + b.value};
}
constexpr Twips operator*(Twips a, double ratio) {
  return {a.value * ratio};
}

/// A size of letters in points, 96 device-independent pixels to the inch.
struct Points {
  double value = 8;
  constexpr auto operator<=>(const Points&) const = default;
};

/// The colours that carry meaning. Whatever a flag means is read by comparing with one of these.
namespace colours {
inline constexpr Colour selected{0xC0C0FF};
inline constexpr Colour unselected{0xFFFFFF};
inline constexpr Colour pressed{0xC0FFC0};   ///< held down; out, on a switch; current, on a memory
inline constexpr Colour running{0x8080FF};   ///< on Go and on the switches
inline constexpr Colour idle{0x8000000F};    ///< the system's button face
inline constexpr Colour occupied{0xC0E0FF};  ///< a memory that holds something
inline constexpr Colour inRange{0xFFFFC0};   ///< a sequencer row inside the programme
inline constexpr Colour ground{0xD7F7FD};    ///< form and panels
inline constexpr Colour black{0x000000};
}  // namespace colours

}  // namespace caleidoscopio
