// A control of the form's own, beside the fields.
#ifndef HOSTS_MEMORY_OWN_CONTROL_H
#define HOSTS_MEMORY_OWN_CONTROL_H

#include <cstdint>
#include <string>
#include <utility>

#include "hosts/kit/focusable.h"

namespace gabarito::memory {

// One tab stop that is always there. It lives as long as the form.
class OwnControl : public kit::Control, public kit::Focusable {
 public:
  explicit OwnControl(std::string name) : name_(std::move(name)) {}

  std::string_view Name() const override { return name_; }
  kit::Control& Owner() override { return *this; }
  bool CanTakeFocus() const override { return true; }
  void TabStops(std::vector<kit::Focusable*>& stops) override { stops.push_back(this); }

  // A key goes down; `shift` is 1 Shift, 2 Ctrl, 4 Alt.
  virtual void KeyDown(std::int16_t /*vk*/, std::int16_t /*shift*/) {}
  // The character that it types.
  virtual void Character(char16_t /*character*/) {}

 private:
  std::string name_;
};

}  // namespace gabarito::memory

#endif  // HOSTS_MEMORY_OWN_CONTROL_H
