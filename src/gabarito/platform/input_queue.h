// The system's queue of keyboard input, and what is known of the keyboard itself. Required of every host: the
// field types for the user, Tab above all.
#ifndef GABARITO_PLATFORM_INPUT_QUEUE_H
#define GABARITO_PLATFORM_INPUT_QUEUE_H

#include <cstdint>
#include <span>

#include "gabarito/platform/virtual_keys.h"

namespace gabarito {

// One keyboard event for SendInput.
inline constexpr std::int32_t kInputKeyboard = 1;
inline constexpr std::int32_t kKeyExtended = 1;
inline constexpr std::int32_t kKeyUp = 2;
inline constexpr std::int32_t kKeyUnicode = 4;

struct INPUT {
  std::int32_t type = 0;
  std::uint16_t wVk = 0;
  std::uint16_t wScan = 0;
  std::int32_t dwFlags = 0;
  std::int32_t time = 0;
  std::int32_t dwExtraInfo = 0;
  std::int32_t padding[2] = {};
};
static_assert(sizeof(INPUT) == 28);

class InputQueue {
 public:
  virtual ~InputQueue() = default;

  // Puts the events at the end of the input queue and returns their number. They are delivered after the
  // handler in progress has returned, never inside this call, to whatever has the focus by then; Tab and
  // Shift+Tab move the focus through the tab order of the window or page, foreign widgets included. `size` is
  // that of one record, 28; with another one nothing is queued and 0 returned.
  virtual std::int32_t SendInput(std::span<const INPUT> events, std::int32_t size) = 0;

  // The key that types a code page 1252 character: virtual key in the low byte, shift state (1 Shift, 2
  // Ctrl, 4 Alt) in the high byte; -1 if the layout has none.
  virtual std::int16_t VkKeyScanA(std::uint8_t character) const = 0;
  virtual std::int32_t GetKeyboardLayout(std::int32_t thread) const = 0;
  // mapType 0: the scan code of a virtual key; 0 if there is none.
  virtual std::int32_t MapVirtualKeyExA(std::int32_t key, std::int32_t mapType,
                                        std::int32_t layout) const = 0;
  // Low bit: the key is switched on (Caps Lock); top bit: it is down.
  virtual std::int16_t GetKeyState(std::int32_t key) const = 0;
};

}  // namespace gabarito

#endif  // GABARITO_PLATFORM_INPUT_QUEUE_H
