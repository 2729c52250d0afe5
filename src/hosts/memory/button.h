// A push button: Enter and the blank press it.
#ifndef HOSTS_MEMORY_BUTTON_H
#define HOSTS_MEMORY_BUTTON_H

#include <functional>

#include "hosts/memory/own_control.h"

namespace gabarito::memory {

class Button final : public OwnControl {
 public:
  using OwnControl::OwnControl;

  std::function<void()> onClick;

  void Character(char16_t character) override {
    if ((character == u'\r' || character == u' ') && onClick) onClick();
  }
};

}  // namespace gabarito::memory

#endif  // HOSTS_MEMORY_BUTTON_H
