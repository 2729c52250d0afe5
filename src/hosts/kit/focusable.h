// What can have the focus on a form, and the controls that stand on it in tab order.
#ifndef HOSTS_KIT_FOCUSABLE_H
#define HOSTS_KIT_FOCUSABLE_H

#include <cstdint>
#include <string_view>
#include <utility>
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
  InputModel* Input();  // input_model.h

 protected:
  enum class Sort : std::uint8_t { kInput, kOther };
  explicit Focusable(Sort sort = Sort::kOther) : sort_(sort) {}

 private:
  Sort sort_;
};

// A hold on the parts of a control; see Control::Hold.
class Held {
 public:
  Held() = default;  // of nothing
  explicit Held(Control& control);
  ~Held();
  Held(Held&& other) noexcept : control_(std::exchange(other.control_, nullptr)) {}
  Held& operator=(Held&&) = delete;

 private:
  Control* control_ = nullptr;
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

  // Keeps the parts of this control, its Focusables, until the answer goes: whoever raises an event holds
  // them, since a field may be deleted inside. Costs a count.
  [[nodiscard]] Held Hold() { return Held(*this); }

 protected:
  // The control has come to its end: Ended runs as soon as nobody holds its parts.
  void EndParts() {
    ending_ = true;
    const Held held(*this);
  }
  bool Ending() const { return ending_; }

 private:
  friend class Held;
  // Lets the parts go. They may be gone when it returns.
  virtual void Ended() {}

  int holds_ = 0;
  bool ending_ = false;
};

inline Held::Held(Control& control) : control_(&control) { ++control_->holds_; }
inline Held::~Held() {
  if (control_ != nullptr && --control_->holds_ == 0 && control_->ending_) control_->Ended();
}

}  // namespace gabarito::kit

#endif  // HOSTS_KIT_FOCUSABLE_H
