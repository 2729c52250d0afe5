#include "hosts/terminal/message_box.h"

#include <algorithm>

#include "gabarito/platform/dialogs.h"
#include "gabarito/platform/virtual_keys.h"
#include "hosts/kit/message_buttons.h"

namespace gabarito::terminal {
namespace {

constexpr int kMargin = 2;  // between frame and text
constexpr int kWidest = 56;
constexpr int kAround = 3;  // rows that are not text: frame and buttons
constexpr int kPage = 5;

}  // namespace

MessageBox::MessageBox(std::u32string_view text, std::int32_t flags, std::u32string_view title)
    : title_(title), text_(text) {
  // The buttons in the order of the platform, so that Escape is the last one.
  if (kit::AsksYesNo(flags)) {
    buttons_ = {{U"[ Sim ]", kAnswerYes}, {U"[ Não ]", kAnswerNo}};
    chosen_ = kit::DefaultAnswer(flags) == kAnswerNo ? 1 : 0;
  } else {
    buttons_ = {{U"[ OK ]", kAnswerOk}};
  }
}

void MessageBox::Press(std::int16_t vk) {
  switch (vk) {
    case kVkReturn:
      answer_ = buttons_[chosen_].answer;
      break;
    case kVkEscape:
      answer_ = buttons_.back().answer;
      break;
    case kVkPageUp:
    case kVkPageDown:
      Turn(vk == kVkPageUp ? -kPage : kPage);
      break;
    case kVkUp:
    case kVkDown:
      if (!IsQuestion()) return Turn(vk == kVkUp ? -1 : 1);
      [[fallthrough]];
    case kVkTab:
    case kVkLeft:
    case kVkRight:
      chosen_ = (chosen_ + 1) % buttons_.size();  // with two buttons both ways are one
      break;
    default:
      break;
  }
}

void MessageBox::Type(char16_t character) {
  if (character == u' ' || character == u'\r') return Press(kVkReturn);
  constexpr std::size_t kFirstLetter = 2;  // behind "[ "
  for (const Button& button : buttons_) {
    const char32_t capital = button.caption[kFirstLetter];
    if (character == capital || character == capital + (U'a' - U'A')) answer_ = button.answer;
  }
}

void MessageBox::Draw(Screen& screen) {
  Grid& grid = screen.grid;
  const int widest = std::min(kWidest, grid.Width() - 2 * kMargin - 2);
  const std::vector<std::u32string> lines = Wrapped(text_, widest);
  const int count = static_cast<int>(lines.size());
  std::size_t inner = std::min(title_.size() + 2, static_cast<std::size_t>(std::max(widest, 1)));
  for (const std::u32string& line : lines) inner = std::max(inner, line.size());
  std::size_t captions = 0;
  for (const Button& button : buttons_) captions += button.caption.size() + 2;
  const int width = static_cast<int>(std::max(inner, captions)) + 2 * kMargin + 2;
  // A row of air around the text where there is room for it.
  const int air = grid.Height() >= count + kAround + 2 ? 1 : 0;
  const int shown = std::clamp(grid.Height() - kAround - 2 * air, 1, count);
  const int height = shown + kAround + 2 * air;
  const int x = std::max((grid.Width() - width) / 2, 0);
  const int y = std::max((grid.Height() - height) / 2, 0);
  top_ = std::clamp(top_, 0, count - shown);

  const Style style{kWindowBackground}, frame{kWindowBackground, kStrong};
  const std::u32string bar(static_cast<std::size_t>(width - 2), U'─');
  for (int row = 0; row < height; ++row) {
    grid.Fill(x, y + row, width, style);
    grid.Put(x, y + row, U'│', frame);
    grid.Put(x + width - 1, y + row, U'│', frame);
  }
  grid.Put(x, y, U"┌" + bar + U"┐", frame);
  grid.Put(x + 2, y, U" " + Shortened(title_, width - 6) + U" ", frame);
  grid.Put(x, y + height - 1, U"└" + bar + U"┘", frame);
  for (int row = top_; row < top_ + shown; ++row) {
    grid.Put(x + 1 + kMargin, y + 1 + air + row - top_, lines[static_cast<std::size_t>(row)], style);
  }
  if (top_ > 0) grid.Put(x + width - 1, y + 1 + air, U'▲', frame);
  if (top_ + shown < count) grid.Put(x + width - 1, y + air + shown, U'▼', frame);

  // The form below takes no clicks while the box is open.
  screen.targets.clear();
  DrawButtons(screen, x + (width - static_cast<int>(captions)) / 2 + 1, y + height - 2, grid.Width());
}

void MessageBox::DrawButtons(Screen& screen, int x, int y, int width) {
  for (std::size_t i = 0; i < buttons_.size(); ++i) {
    const std::u32string_view caption = buttons_[i].caption;
    const bool chosen = i == chosen_;
    screen.grid.Put(x, y, caption, {kWindowBackground, chosen ? Marks(kActive | kSelected) : kPlain});
    if (chosen)
      screen.grid.caret = {std::clamp(x + 2, 0, width - 1), std::clamp(y, 0, screen.grid.Height() - 1)};
    screen.targets.push_back(
        {x, y, static_cast<int>(caption.size()), [this, i](int) { answer_ = buttons_[i].answer; }});
    x += static_cast<int>(caption.size()) + 2;
  }
}

std::vector<std::u32string> Wrapped(std::u32string_view text, int width) {
  const auto most = static_cast<std::size_t>(std::max(width, 1));
  std::vector<std::u32string> lines;
  while (true) {
    const std::size_t line_break = text.find(U'\n');
    std::u32string_view line = text.substr(0, line_break);
    if (!line.empty() && line.back() == U'\r') line.remove_suffix(1);
    while (line.size() > most) {
      // A blank right behind the last cell ends the line too, and is not carried over.
      const std::size_t blank = line.rfind(U' ', most);
      const std::size_t cut = blank == line.npos || blank == 0 ? most : blank;
      lines.emplace_back(line.substr(0, cut));
      line.remove_prefix(cut == blank ? cut + 1 : cut);
    }
    lines.emplace_back(line);
    if (line_break == text.npos) return lines;
    text.remove_prefix(line_break + 1);
  }
}

}  // namespace gabarito::terminal
