// What can have the focus on a form, and the controls that stand on it in tab order.
#ifndef HOSTS_KIT_FOCUSABLE_H
#define HOSTS_KIT_FOCUSABLE_H

#include <memory>
#include <string_view>
#include <vector>

namespace gabarito::kit {

class Control;
class InputModel;

// A child of a field, the surface of a field, or something of the host's own: an entry, a button, a widget of
// somebody else.
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

  // The child of a field behind it; null for anything else.
  virtual InputModel* Input() { return nullptr; }
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

  // Keeps the parts of this control, its Focusables, for as long as somebody holds it; null when they live as
  // long as the form.
  virtual std::shared_ptr<const void> Hold() { return nullptr; }
};

}  // namespace gabarito::kit

#endif  // HOSTS_KIT_FOCUSABLE_H
