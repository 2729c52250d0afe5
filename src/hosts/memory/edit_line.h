// One line of editable text with a caret and a selection: the engine behind every plain entry of the host.
#ifndef HOSTS_MEMORY_EDIT_LINE_H
#define HOSTS_MEMORY_EDIT_LINE_H

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

namespace gabarito::memory {

// Knows no window, focus or event. Offsets are 0-based. Setters of the selection raise 380 on a negative
// value and stop at the end of the text.
class EditLine {
 public:
  std::u16string_view Text() const { return text_; }
  // Caret to 0. `text` may be a view of the present text.
  void Text(std::u16string_view text);

  std::int32_t SelStart() const { return start_; }
  void SelStart(std::int32_t start);
  std::int32_t SelLength() const { return length_; }
  void SelLength(std::int32_t length);
  std::u16string_view SelText() const;

  // Puts `text` in place of the selection, cut to what `limit` characters in all leave room for; 0 is no
  // limit. The caret goes behind it. False, with nothing changed, when there is no room for any of it.
  bool Replace(std::u16string_view text, std::int32_t limit);

  // Takes the selection away, or else one character before or behind the caret.
  void Backspace();
  void Delete();

 private:
  std::int32_t Size() const { return static_cast<std::int32_t>(text_.size()); }
  void EraseSelection();

  std::u16string text_;
  std::int32_t start_ = 0;
  std::int32_t length_ = 0;
};

// Moves the caret of an EditLine or a MaskedEdit for an arrow key, Home or End; with Shift the selection
// grows from `anchor`, which is kept between calls. False for any other key.
template <class Line>
bool Navigate(Line& line, std::int32_t& anchor, std::int16_t vk, bool shift) {
  constexpr std::int16_t kEnd = 35, kHome = 36, kLeft = 37, kUp = 38, kRight = 39, kDown = 40;
  if (vk < kEnd || vk > kDown) return false;
  const std::int32_t start = line.SelStart();
  const std::int32_t end = start + line.SelLength();
  const auto size = static_cast<std::int32_t>(line.Text().size());
  if (anchor != start && anchor != end) anchor = start;
  const std::int32_t caret = anchor == start ? end : start;
  const bool collapse = !shift && start != end;
  std::int32_t target;
  switch (vk) {
    case kHome:
      target = 0;
      break;
    case kEnd:
      target = size;
      break;
    case kLeft:
    case kUp:
      target = collapse ? start : std::max(caret - 1, 0);
      break;
    case kRight:
    case kDown:
      target = collapse ? end : std::min(caret + 1, size);
      break;
    default:
      return false;
  }
  if (!shift) anchor = target;
  line.SelStart(std::min(anchor, target));
  line.SelLength(std::max(anchor, target) - std::min(anchor, target));
  return true;
}

}  // namespace gabarito::memory

#endif  // HOSTS_MEMORY_EDIT_LINE_H
