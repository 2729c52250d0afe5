// The keyboard of a form: layout, held keys, Caps Lock and the queue of events on their way.
#ifndef HOSTS_MEMORY_KEYBOARD_H
#define HOSTS_MEMORY_KEYBOARD_H

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "gabarito/platform/user32.h"
#include "hosts/memory/keyboard_layout.h"

namespace gabarito::memory {

// One event of the queue.
struct KeyEvent {
  std::int16_t vk = 0;
  std::int16_t shift = 0;  // the mask of a person's stroke; records count with the held keys instead
  char16_t unicode = 0;    // of a record that carries a character and no key
  bool up = false;
  bool synthesised = false;
};

class Keyboard {
 public:
  const KeyboardLayout& Layout() const { return *layout_; }
  void Layout(const KeyboardLayout& layout) { layout_ = &layout; }

  bool CapsLock() const { return caps_lock_; }
  void CapsLock(bool on) { caps_lock_ = on; }

  // Low bit: switched on; top bit: held down.
  std::int16_t KeyState(std::int32_t vk) const;

  // Puts the press and the release of a person's key at the end of the queue.
  void Press(std::int16_t vk, std::int16_t shift);
  // Puts records at the end of the queue. Records of another type than the keyboard's are left out.
  void Send(std::span<const INPUT> records);

  bool Pending() const { return first_ < queue_.size(); }
  // The next event, taken off, its shift mask filled in and the held keys updated.
  KeyEvent Next();

 private:
  const KeyboardLayout* layout_ = &Abnt2();
  bool caps_lock_ = false;
  std::int16_t held_ = 0;  // mask of the modifiers that records hold down
  std::vector<KeyEvent> queue_;
  std::size_t first_ = 0;  // events before it are delivered; the vector is emptied when all are
};

}  // namespace gabarito::memory

#endif  // HOSTS_MEMORY_KEYBOARD_H
