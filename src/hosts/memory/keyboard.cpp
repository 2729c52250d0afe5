#include "hosts/memory/keyboard.h"

namespace gabarito::memory {
namespace {

// The bit of a modifier key in a shift mask; 0 for any other key.
std::int16_t MaskOf(std::int32_t vk) {
  switch (vk) {
    case kVkShift:
      return kShiftMask;
    case kVkControl:
      return kCtrlMask;
    case kVkMenu:
      return kAltMask;
    default:
      return 0;
  }
}

}  // namespace

std::int16_t Keyboard::KeyState(std::int32_t vk) const {
  std::int32_t state = 0;
  if (vk == kVkCapital && caps_lock_) state |= 1;
  if ((MaskOf(vk) & held_) != 0) state |= 0x8000;
  return static_cast<std::int16_t>(state);
}

void Keyboard::Press(std::int16_t vk, std::int16_t shift) {
  queue_.push_back({.vk = vk, .shift = shift});
  queue_.push_back({.vk = vk, .shift = shift, .up = true});
}

void Keyboard::Send(std::span<const INPUT> records) {
  for (const INPUT& record : records) {
    if (record.type != kInputKeyboard) continue;
    KeyEvent event{.up = (record.dwFlags & kKeyUp) != 0, .synthesised = true};
    if ((record.dwFlags & kKeyUnicode) != 0) {
      event.unicode = record.wScan;
    } else {
      event.vk = static_cast<std::int16_t>(record.wVk);
    }
    queue_.push_back(event);
  }
}

KeyEvent Keyboard::Next() {
  KeyEvent event = queue_[first_++];
  if (first_ == queue_.size()) {
    queue_.clear();
    first_ = 0;
  }
  if (event.synthesised) {
    const std::int16_t mask = MaskOf(event.vk);
    held_ = static_cast<std::int16_t>(event.up ? held_ & ~mask : held_ | mask);
    event.shift = held_;
  }
  if (event.vk == kVkCapital && !event.up) caps_lock_ = !caps_lock_;
  return event;
}

}  // namespace gabarito::memory
