// A child of a field that takes input, as a host sees it: its events, and the hand-over between the model and
// what a person edits.
#ifndef HOSTS_KIT_INPUT_MODEL_H
#define HOSTS_KIT_INPUT_MODEL_H

#include <cstdint>
#include <string_view>

#include "gabarito/platform/child.h"
#include "hosts/kit/focusable.h"

namespace gabarito::kit {

struct FieldParts;

enum class InputKind : std::uint8_t { kTextBox, kCombo, kMasked };

class InputModel : public Focusable {
 public:
  InputModel(InputKind kind, FieldParts& parts) : Focusable(Sort::kInput), kind_(kind), of_(parts) {}

  InputKind Kind() const { return kind_; }
  virtual InputChild& AsChild() = 0;
  // The field that it belongs to; it keeps the form too.
  FieldParts& Parts() const { return of_; }

  // A key goes down: raises the event, if the child has one. Both hold afterwards what the host goes on with;
  // `vk` 0 is a key that is used up. `shift` is 1 Shift, 2 Ctrl, 4 Alt.
  virtual void KeyDown(std::int16_t& /*vk*/, std::int16_t& /*shift*/) {}

  // The character that a key types, or that comes without one: raises the event. Gives what the entry has to
  // act on: 0 nothing, a control character of own_entry.h, or the character to insert.
  virtual char16_t KeyPress(char16_t character) = 0;

  // The key comes up: raises the event, if the child has one.
  virtual void KeyUp(std::int16_t /*vk*/, std::int16_t /*shift*/) {}

  // A native widget tells what it holds now. Raises nothing and notes nothing; a masked box takes over the
  // selection alone, since its text is changed by its engine only.
  virtual void HandOver(std::u16string_view text, std::int32_t selStart, std::int32_t selLength) = 0;

  // Longest text that a person can enter; 0 is no limit.
  virtual std::int32_t Limit() const { return 0; }

  // Small, and in this order: a field has eight of them.
 private:
  InputKind kind_;

 public:
  std::int32_t anchor = 0;  // where a selection by keys began, for a model's own entry

 private:
  FieldParts& of_;
};

inline InputModel* Focusable::Input() {
  return sort_ == Sort::kInput ? static_cast<InputModel*>(this) : nullptr;
}

}  // namespace gabarito::kit

#endif  // HOSTS_KIT_INPUT_MODEL_H
