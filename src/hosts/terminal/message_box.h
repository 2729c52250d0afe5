// A message box as a modal window over the form.
#ifndef HOSTS_TERMINAL_MESSAGE_BOX_H
#define HOSTS_TERMINAL_MESSAGE_BOX_H

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "hosts/terminal/screen.h"

namespace gabarito::terminal {

class MessageBox {
 public:
  // `flags` as dialogs.h tells them.
  MessageBox(std::u32string_view text, std::int32_t flags, std::u32string_view title);

  // Whether there is more than one answer.
  bool IsQuestion() const { return buttons_.size() > 1; }

  // Centred, over what `screen` shows; its targets take the place of those that are there. A text longer than
  // the window is turned by the arrows, Page Up, Page Down and the wheel.
  void Draw(Screen& screen);

  // A key: Tab and the arrows walk the buttons, Enter and the blank press one, a button's first letter
  // presses it, Escape is OK or No.
  void Press(std::int16_t vk);
  void Type(char16_t character);
  // Turns the text by rows, down for more than 0.
  void Turn(int rows) { top_ += rows; }

  // The button that was pressed.
  const std::optional<std::int32_t>& Answer() const { return answer_; }

 private:
  struct Button {
    std::u32string_view caption;
    std::int32_t answer;
  };

  void DrawButtons(Screen& screen, int x, int y, int width);

  std::u32string title_;
  std::u32string text_;
  std::vector<Button> buttons_;
  std::size_t chosen_ = 0;
  std::optional<std::int32_t> answer_;
  int top_ = 0;  // the first row of the text that is on show
};

// `text` in lines of at most `width` cells, broken at blanks where that is possible and at line breaks
// always.
std::vector<std::u32string> Wrapped(std::u32string_view text, int width);

}  // namespace gabarito::terminal

#endif  // HOSTS_TERMINAL_MESSAGE_BOX_H
