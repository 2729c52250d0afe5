// What the form needs from a terminal, so that a test can be one.
#ifndef HOSTS_TERMINAL_DISPLAY_H
#define HOSTS_TERMINAL_DISPLAY_H

#include <cstdint>

#include "hosts/terminal/form_view.h"

namespace gabarito::terminal {

struct Input {
  enum class Kind {
    kKey,        // `vk` with the mask `shift`: 1 Shift, 2 Ctrl, 4 Alt
    kCharacter,  // `character`
    kClick,      // at `at`
    kLeave,      // the person wants to leave the form
    kRedraw,     // the window has another size, or was covered
  };
  Kind kind = Kind::kRedraw;
  std::int16_t vk = 0;
  std::int16_t shift = 0;
  char16_t character = 0;
  Point at = {};
};

// Thrown by Display::Next: a signal asks the program to end.
struct Interrupted {
  int signal;
};

class Display {
 public:
  virtual ~Display() = default;
  virtual int Width() const = 0;
  virtual int Height() const = 0;
  virtual void Show(const Screen& screen) = 0;
  // Waits for what the person does next.
  virtual Input Next() = 0;
  virtual void Beep() = 0;
};

}  // namespace gabarito::terminal

#endif  // HOSTS_TERMINAL_DISPLAY_H
