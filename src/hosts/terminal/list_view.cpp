#include "hosts/terminal/list_view.h"

#include <algorithm>
#include <string>

namespace gabarito::terminal {
namespace {

constexpr std::size_t kWidest = 60;

std::u32string ToDigits(int number) {
  const std::string digits = std::to_string(number);
  return {digits.begin(), digits.end()};
}

std::u32string CountOf(int selected, int count) {
  return U" " + (selected < 0 ? U"" : ToDigits(selected + 1) + U" de ") + ToDigits(count) + U" ";
}

void DrawEntry(Screen& screen, Point at, int width, kit::ComboModel& combo, int entry) {
  Style style{combo.Color(), kPlain};
  if (entry == combo.Selected()) style.marks |= kSelected;
  screen.grid.Fill(at.x, at.y, width, style);
  const std::u32string text = ToCells(combo.Entries().At(static_cast<std::size_t>(entry)));
  screen.grid.Put(at.x, at.y, Shortened(text, width), style);
  screen.targets.push_back(
      {at.x, at.y, width, [&combo, entry](int) { combo.Pick(static_cast<std::int16_t>(entry)); }});
}

}  // namespace

void ListView::Draw(Screen& screen, int x, int width, Rows field, Rows rows, kit::ComboModel& combo) {
  count_ = static_cast<int>(combo.Entries().Count());
  const int below = rows.end - field.end, above = field.first - rows.first;
  shown_ = std::min(count_, kMost);
  const bool opens_below = below > shown_ || below >= above;
  shown_ = std::min(shown_, (opens_below ? below : above) - 1);  // a row for the frame
  if (shown_ < 1) return;
  if (combo_ != &combo || selected_ != combo.Selected()) {
    combo_ = &combo;
    selected_ = combo.Selected();
    first_ = selected_ - shown_ / 2;
  }
  first_ = std::clamp(first_, 0, count_ - shown_);

  // Of the entries on show alone: there can be thousands of others.
  std::size_t longest = 0;
  for (int entry = first_; entry < first_ + shown_; ++entry) {
    longest = std::max(longest, combo.Entries().At(static_cast<std::size_t>(entry)).size());
  }
  Grid& grid = screen.grid;
  const std::u32string count = CountOf(selected_, count_);
  constexpr int kFrame = 2;
  int inside = std::max(
      {width - kFrame, static_cast<int>(std::min(longest, kWidest)), static_cast<int>(count.size())});
  inside = std::min(inside, std::max(grid.Width() - kFrame, 1));
  x = std::clamp(x, 0, std::max(0, grid.Width() - inside - kFrame));
  const int y = opens_below ? field.end : field.first - shown_;
  const Style frame{combo.Color(), kStrong};
  for (int i = 0; i < shown_; ++i) {
    grid.Put(x, y + i, U'│', frame);
    DrawEntry(screen, {x + 1, y + i}, inside, combo, first_ + i);
  }
  DrawBar(screen, x + 1 + inside, y, combo);
  const int end = opens_below ? y + shown_ : y - 1;
  const std::u32string line(static_cast<std::size_t>(inside), U'─');
  grid.Put(x, end, opens_below ? U"└" + line + U"┘" : U"┌" + line + U"┐", frame);
  grid.Put(x + 1 + inside - static_cast<int>(count.size()), end, count, frame);
}

// A click on the bar shows that part of the list.
void ListView::DrawBar(Screen& screen, int x, int y, const kit::ComboModel& combo) {
  const Style style{combo.Color(), kStrong};
  const bool all = shown_ >= count_;
  const int thumb = std::max(shown_ * shown_ / std::max(count_, 1), 1);
  const int start = all ? 0 : first_ * (shown_ - thumb) / (count_ - shown_);
  for (int i = 0; i < shown_; ++i) {
    const bool held = !all && i >= start && i < start + thumb;
    screen.grid.Put(x, y + i, held ? U'█' : U'│', style);
    if (all) continue;
    screen.targets.push_back(
        {x, y + i, 1, [this, i](int) { first_ = i * (count_ - shown_) / std::max(shown_ - 1, 1); }});
  }
}

}  // namespace gabarito::terminal
