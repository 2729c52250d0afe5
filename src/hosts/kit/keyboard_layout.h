// A keyboard layout: which key types which character, and the scan code of each key.
//
// Two layouts are there, the Brazilian ABNT2 and the US one. Characters that take two strokes (a dead key
// and a letter) belong to neither: a dead key types no character here.
//
// Every look-up is one or two steps into a table made while compiling: no allocation, any thread.
#ifndef HOSTS_KIT_KEYBOARD_LAYOUT_H
#define HOSTS_KIT_KEYBOARD_LAYOUT_H

#include <cstdint>
#include <optional>
#include <string_view>

namespace gabarito::kit {

struct KeyboardTables;

// A key held together with others. `shift` is a sum of 1 Shift, 2 Ctrl and 4 Alt; AltGr is Ctrl with Alt.
struct KeyStroke {
  std::int16_t vk;
  std::int16_t shift;
  friend bool operator==(const KeyStroke&, const KeyStroke&) = default;
};

class KeyboardLayout {
 public:
  // `tables` has to outlive the layout.
  constexpr KeyboardLayout(std::int32_t layoutHandle, std::u16string_view layoutName,
                           const KeyboardTables& tables)
      : handle(layoutHandle), name(layoutName), tables_(&tables) {}

  // The stroke that types a code page 1252 character, as User32::VkKeyScanA gives it: virtual key in the low
  // byte, shift state in the high byte; -1 if there is none. 8, 9, 10, 13 and 27 are on Backspace, Tab,
  // Ctrl+Enter, Enter and Escape, other control characters on Ctrl with a letter or sign.
  std::int16_t VkKeyScan(std::uint8_t ansi) const;

  // The same for any character, as a key and a shift state. Keys of the numeric keypad are never given: the
  // main block has all their characters.
  std::optional<KeyStroke> StrokeFor(char16_t character) const;

  // 0 for a key that the layout does not know.
  std::int32_t ScanCode(std::int32_t vk) const;

  // The character that a stroke types; 0 if it types none. Ctrl with a letter gives 1 to 26. Alt alone gives
  // none, Shift with AltGr neither. Caps Lock turns letters over, "ç" included, and nothing else. Keys 96 to
  // 111 are the numeric keypad with Num Lock on.
  char16_t CharacterOf(std::int16_t vk, std::int16_t shift, bool capsLock) const;

  std::int32_t handle;
  std::u16string_view name;

 private:
  const KeyboardTables* tables_;
};

const KeyboardLayout& Abnt2();  // handle 0x04160416
const KeyboardLayout& Us();     // handle 0x04090409

}  // namespace gabarito::kit

#endif  // HOSTS_KIT_KEYBOARD_LAYOUT_H
