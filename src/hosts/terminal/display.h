// What the form needs from a terminal, so that a test can be one.
#ifndef HOSTS_TERMINAL_DISPLAY_H
#define HOSTS_TERMINAL_DISPLAY_H

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

#include "hosts/terminal/screen.h"

namespace gabarito::terminal {

struct Input {
  enum class Kind {
    kKey,        // `vk` with the mask `shift`: 1 Shift, 2 Ctrl, 4 Alt
    kCharacter,  // `character`
    kPaste,      // `text`
    kClick,      // at `at`
    kWheel,      // `turns`, down for more than 0
    kWordStep,   // to the word before for `turns` less than 0, with the mask `shift`
    kFinish,     // the person has filled in the form
    kHelp,
    kRedraw,   // the window has another size, or was covered
    kTime,     // what Next was given has passed
    kNothing,  // a key that means nothing here
  };
  Kind kind = Kind::kRedraw;
  std::int16_t vk = 0;
  std::int16_t shift = 0;
  char16_t character = 0;
  int turns = 0;
  Point at = {};
  std::u16string text = {};
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
  // Waits for what the person does next, with a time for that long at most.
  virtual Input Next(std::optional<std::chrono::milliseconds> most) = 0;
  virtual void Beep() = 0;
};

}  // namespace gabarito::terminal

#endif  // HOSTS_TERMINAL_DISPLAY_H
