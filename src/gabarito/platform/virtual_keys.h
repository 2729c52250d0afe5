// Keys by their virtual-key codes, and the mask of the keys held with one: the one list of them.
#ifndef GABARITO_PLATFORM_VIRTUAL_KEYS_H
#define GABARITO_PLATFORM_VIRTUAL_KEYS_H

#include <cstdint>

namespace gabarito {

inline constexpr std::int16_t kVkBack = 8;
inline constexpr std::int16_t kVkTab = 9;
inline constexpr std::int16_t kVkReturn = 13;
inline constexpr std::int16_t kVkShift = 16;
inline constexpr std::int16_t kVkControl = 17;
inline constexpr std::int16_t kVkMenu = 18;  // Alt
inline constexpr std::int16_t kVkCapital = 20;
inline constexpr std::int16_t kVkEscape = 27;
inline constexpr std::int16_t kVkSpace = 32;
inline constexpr std::int16_t kVkPageUp = 33;
inline constexpr std::int16_t kVkPageDown = 34;
inline constexpr std::int16_t kVkEnd = 35;
inline constexpr std::int16_t kVkHome = 36;
inline constexpr std::int16_t kVkLeft = 37;
inline constexpr std::int16_t kVkUp = 38;
inline constexpr std::int16_t kVkRight = 39;
inline constexpr std::int16_t kVkDown = 40;
inline constexpr std::int16_t kVkInsert = 45;
inline constexpr std::int16_t kVkDelete = 46;
inline constexpr std::int16_t kVkF1 = 112;
inline constexpr std::int16_t kVkF4 = 115;
inline constexpr std::int16_t kVkF10 = 121;
// A character that comes without a key of its own.
inline constexpr std::int16_t kVkPacket = 231;

// Shift states: of a key event, and in the high byte of VkKeyScanA.
inline constexpr std::int16_t kShiftMask = 1;
inline constexpr std::int16_t kCtrlMask = 2;
inline constexpr std::int16_t kAltMask = 4;

}  // namespace gabarito

#endif  // GABARITO_PLATFORM_VIRTUAL_KEYS_H
