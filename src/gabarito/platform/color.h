// Colours: 32 bits with red in the low byte, or a system colour with the top bit set.
#ifndef GABARITO_PLATFORM_COLOR_H
#define GABARITO_PLATFORM_COLOR_H

#include <cstdint>

namespace gabarito {

using Color = std::uint32_t;

inline constexpr Color kWindowBackground = 0x80000005;
inline constexpr Color kWindowText = 0x80000008;
inline constexpr Color kButtonFace = 0x8000000F;

// Each part 0 to 255; a larger one counts as 255.
constexpr Color RGB(std::uint32_t red, std::uint32_t green, std::uint32_t blue) {
  const auto byte = [](std::uint32_t part) { return part > 255 ? 255 : part; };
  return byte(red) | byte(green) << 8 | byte(blue) << 16;
}

}  // namespace gabarito

#endif  // GABARITO_PLATFORM_COLOR_H
