// System calls about windows, keyboard and drawing. Handles are the host's own numbers; 0 is none.
#ifndef GABARITO_PLATFORM_USER32_H
#define GABARITO_PLATFORM_USER32_H

#include <cstdint>
#include <span>
#include <string_view>

#include "gabarito/platform/combo_box.h"

namespace gabarito {

// Messages to a combo box.
inline constexpr std::int32_t kCbFindString = 332;    // CB_FINDSTRING
inline constexpr std::int32_t kCbShowDropDown = 335;  // CB_SHOWDROPDOWN

// Virtual keys that the field or the key strings name.
inline constexpr std::int16_t kVkBack = 8;
inline constexpr std::int16_t kVkTab = 9;
inline constexpr std::int16_t kVkReturn = 13;
inline constexpr std::int16_t kVkShift = 16;
inline constexpr std::int16_t kVkControl = 17;
inline constexpr std::int16_t kVkMenu = 18;  // Alt
inline constexpr std::int16_t kVkCapital = 20;
inline constexpr std::int16_t kVkEscape = 27;
inline constexpr std::int16_t kVkDelete = 46;

// Shift states: of a key event, and in the high byte of VkKeyScanA.
inline constexpr std::int16_t kShiftMask = 1;
inline constexpr std::int16_t kCtrlMask = 2;
inline constexpr std::int16_t kAltMask = 4;

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

struct RECT {
  std::int32_t left = 0, top = 0, right = 0, bottom = 0;  // pixels
  friend bool operator==(const RECT&, const RECT&) = default;
};

using DeviceContext = std::intptr_t;

class User32;

// A window procedure, and its address as window calls and window properties carry it.
using WindowProcedure = std::int32_t (*)(User32& user32, WindowHandle window, std::int32_t message,
                                         std::int32_t wParam, std::int32_t lParam);
using WindowProc = std::intptr_t;

class User32 {
 public:
  virtual ~User32() = default;

  // kCbShowDropDown, wParam 1: opens the list; an open one stays open. kCbFindString, wParam -1: the 0-based
  // position of the first entry that begins with `text`, comparing without regard to case, from the top of
  // the list; -1 if there is none. Other messages give 0.
  virtual std::int32_t SendMessageA(WindowHandle window, std::int32_t message, std::int32_t wParam,
                                    std::u16string_view text) = 0;

  // Freezes the painting of one window; 0 releases it.
  virtual void LockWindowUpdate(WindowHandle window) = 0;

  // Puts the events at the end of the input queue and returns their number. They are delivered after the
  // handler in progress has returned, never inside this call. `size` is that of one record, 28.
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

  // Window properties by name; 0 for one that is not there.
  virtual std::intptr_t GetPropA(WindowHandle window, std::string_view name) const = 0;
  virtual void SetPropA(WindowHandle window, std::string_view name, std::intptr_t value) = 0;
  // index -4: the window procedure. Set returns the former value.
  virtual std::intptr_t GetWindowLongA(WindowHandle window, std::int32_t index) const = 0;
  virtual std::intptr_t SetWindowLongA(WindowHandle window, std::int32_t index, std::intptr_t value) = 0;
  virtual std::int32_t CallWindowProcA(WindowProc procedure, WindowHandle window, std::int32_t message,
                                       std::int32_t wParam, std::int32_t lParam) = 0;

  // Drawing on the whole window, frame included.
  virtual DeviceContext GetWindowDC(WindowHandle window) = 0;
  virtual void ReleaseDC(WindowHandle window, DeviceContext context) = 0;
  virtual void GetClientRect(WindowHandle window, RECT& rectangle) const = 0;
  virtual void DrawEdge(DeviceContext context, const RECT& rectangle, std::int32_t edge,
                        std::int32_t flags) = 0;
  virtual void InflateRect(RECT& rectangle, std::int32_t dx, std::int32_t dy) const = 0;
};

}  // namespace gabarito

#endif  // GABARITO_PLATFORM_USER32_H
