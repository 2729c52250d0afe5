// A push button: Enter and the blank press it.
#ifndef HOSTS_MEMORY_BUTTON_H
#define HOSTS_MEMORY_BUTTON_H

#include <functional>
#include <string>
#include <utility>

#include "hosts/memory/focusable.h"

namespace gabarito::memory {

class Button final : public Control, public Focusable {
 public:
  explicit Button(std::string name) : name_(std::move(name)) {}

  std::function<void()> onClick;

  std::string_view Name() const override { return name_; }
  Control& Owner() override { return *this; }
  bool CanTakeFocus() const override { return true; }
  void Character(char16_t character) override {
    if ((character == u'\r' || character == u' ') && onClick) onClick();
  }

  void TabStops(std::vector<Focusable*>& stops) override { stops.push_back(this); }

 private:
  std::string name_;
};

}  // namespace gabarito::memory

#endif  // HOSTS_MEMORY_BUTTON_H
