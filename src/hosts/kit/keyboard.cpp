#include "hosts/kit/keyboard.h"

#include "hosts/kit/form_model.h"

namespace gabarito::kit {
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

std::int32_t Keyboard::SendInput(std::span<const INPUT> events, std::int32_t size) {
  if (size != static_cast<std::int32_t>(sizeof(INPUT))) return 0;
  if (form_.recorder != nullptr) form_.recorder->SendInput(events);
  for (const INPUT& record : events) {
    if (record.type != kInputKeyboard) continue;
    KeyEvent event{.up = (record.dwFlags & kKeyUp) != 0, .synthesised = true};
    if ((record.dwFlags & kKeyUnicode) != 0) {
      event.unicode = record.wScan;
    } else {
      event.vk = static_cast<std::int16_t>(record.wVk);
    }
    queue_.push_back(event);
  }
  form_.KeysWaiting();
  return static_cast<std::int32_t>(events.size());
}

std::int16_t Keyboard::VkKeyScanA(std::uint8_t character) const { return layout_->VkKeyScan(character); }

std::int32_t Keyboard::GetKeyboardLayout(std::int32_t) const { return layout_->handle; }

std::int32_t Keyboard::MapVirtualKeyExA(std::int32_t key, std::int32_t mapType, std::int32_t) const {
  return mapType == 0 ? layout_->ScanCode(key) : 0;
}

std::int16_t Keyboard::GetKeyState(std::int32_t vk) const {
  std::int32_t state = 0;
  if (vk == kVkCapital && caps_lock_) state |= 1;
  if ((MaskOf(vk) & held_) != 0) state |= 0x8000;
  return static_cast<std::int16_t>(state);
}

void Keyboard::Press(std::int16_t vk, std::int16_t shift) {
  queue_.push_back({.vk = vk, .shift = shift});
  queue_.push_back({.vk = vk, .shift = shift, .up = true});
}

void Keyboard::PressCharacter(char16_t character) {
  if (character == u'\n') character = u'\r';
  auto stroke = layout_->StrokeFor(character);
  if (!stroke) {
    queue_.push_back({.unicode = character});
    queue_.push_back({.unicode = character, .up = true});
    return;
  }
  if (layout_->CharacterOf(stroke->vk, stroke->shift, caps_lock_) != character) stroke->shift ^= kShiftMask;
  Press(stroke->vk, stroke->shift);
}

void Keyboard::PressLater(std::u16string_view text) {
  later_.append(text);
  form_.KeysWaiting();
}

char16_t Keyboard::CharacterOf(const KeyEvent& event) const {
  if (event.unicode != 0) return event.unicode;
  return layout_->CharacterOf(event.vk, event.shift, caps_lock_);
}

KeyEvent Keyboard::Next() {
  if (first_ == queue_.size()) {
    PressCharacter(later_[next_later_++]);
    if (next_later_ == later_.size()) {
      later_.clear();
      next_later_ = 0;
    }
  }
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

}  // namespace gabarito::kit
