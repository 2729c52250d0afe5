// The keyboard of a form: layout, held keys, Caps Lock and the queue of events on their way.
#ifndef HOSTS_KIT_KEYBOARD_H
#define HOSTS_KIT_KEYBOARD_H

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "gabarito/platform/input_queue.h"
#include "hosts/kit/keyboard_layout.h"

namespace gabarito::kit {

// One event of the queue.
struct KeyEvent {
  std::int16_t vk = 0;
  std::int16_t shift = 0;  // the mask of a person's stroke; records count with the held keys instead
  char16_t unicode = 0;    // of a record that carries a character and no key
  bool up = false;
  bool synthesised = false;
};

class FormModel;

class Keyboard final : public InputQueue {
 public:
  explicit Keyboard(FormModel& form) : form_(form) {}

  const KeyboardLayout& Layout() const { return *layout_; }
  void Layout(const KeyboardLayout& layout) { layout_ = &layout; }

  bool CapsLock() const { return caps_lock_; }
  void CapsLock(bool on) { caps_lock_ = on; }

  std::int32_t SendInput(std::span<const INPUT> events, std::int32_t size) override;
  std::int16_t VkKeyScanA(std::uint8_t character) const override;
  std::int32_t GetKeyboardLayout(std::int32_t thread) const override;
  std::int32_t MapVirtualKeyExA(std::int32_t key, std::int32_t mapType, std::int32_t layout) const override;
  std::int16_t GetKeyState(std::int32_t key) const override;

  // Puts the press and the release of a person's key at the end of the queue.
  void Press(std::int16_t vk, std::int16_t shift);
  // A character that a person types: its key on the layout or, where it has none, the character as it is.
  // Line feed and carriage return are Enter. Caps Lock counts: whoever sees the wrong case come up holds
  // Shift the other way.
  void PressCharacter(char16_t character);
  // The same for each character, one after another: each is pressed when all before it, with whatever it made
  // the field send, has been delivered.
  void PressLater(std::u16string_view text);

  bool Pending() const { return first_ < queue_.size() || next_later_ < later_.size(); }
  // The next event, taken off, its shift mask filled in and the held keys updated. Only while Pending.
  KeyEvent Next();

  // The character that the stroke types with Caps Lock as it is; 0 for none.
  char16_t CharacterOf(const KeyEvent& event) const;

 private:
  FormModel& form_;
  const KeyboardLayout* layout_ = &Abnt2();
  bool caps_lock_ = false;
  std::int16_t held_ = 0;  // mask of the modifiers that records hold down
  std::vector<KeyEvent> queue_;
  std::size_t first_ = 0;  // events before it are delivered; the vector is emptied when all are
  std::u16string later_;
  std::size_t next_later_ = 0;
};

}  // namespace gabarito::kit

#endif  // HOSTS_KIT_KEYBOARD_H
