// What can have the focus on a form, and the controls that stand on it in tab order.
#ifndef HOSTS_MEMORY_FOCUSABLE_H
#define HOSTS_MEMORY_FOCUSABLE_H

#include <cstdint>
#include <string_view>
#include <vector>

namespace gabarito::memory {

class Control;

// An entry, a button, a child of a field or the surface of a field.
class Focusable {
 public:
  virtual ~Focusable() = default;

  // "before", "Combo1", "txt_entrada3D(1)"; "field" for a surface.
  virtual std::string_view Name() const = 0;
  virtual Control& Owner() = 0;
  // Visible and enabled.
  virtual bool CanTakeFocus() const = 0;

  // The focus has come or is about to go. Raise the events of a child.
  virtual void GotFocus() {}
  virtual void LostFocus() {}

  // A key goes down: the event, then what the entry does by itself (arrows, Delete). `shift` is 1 Shift, 2
  // Ctrl, 4 Alt. False when the key is used up and its character must not arrive.
  virtual bool KeyDown(std::int16_t /*vk*/, std::int16_t /*shift*/) { return true; }
  // The character that the key types: the event, then what the entry does with it.
  virtual void Character(char16_t) {}
  virtual void KeyUp(std::int16_t /*vk*/, std::int16_t /*shift*/) {}
};

// One place in the tab order of a form.
class Control {
 public:
  virtual ~Control() = default;

  // Appends what the Tab key visits, in order, whether it can take the focus now or not.
  virtual void TabStops(std::vector<Focusable*>& stops) = 0;

  // The focus has passed from this control to another one. Raises ExitFocus of a field.
  virtual void ExitFocus() {}

  // What takes the focus when the part of this control that has it cannot keep it; null for nothing.
  virtual Focusable* Surface() { return nullptr; }
};

}  // namespace gabarito::memory

#endif  // HOSTS_MEMORY_FOCUSABLE_H
