// One line of text with a caret and a selection: what every plain entry of a field holds.
#ifndef HOSTS_KIT_TEXT_LINE_H
#define HOSTS_KIT_TEXT_LINE_H

#include <cstdint>
#include <string>
#include <string_view>

namespace gabarito::kit {

// Knows no window, focus or event. Offsets are 0-based. Setters of the selection raise 380 on a negative
// value and stop at the end of the text.
class TextLine {
 public:
  std::u16string_view Text() const { return text_; }
  // Caret to 0. `text` may be a view of the present text.
  void Text(std::u16string_view text);

  // Takes the text of `other`, caret to 0. Between two lines that are copied again and again only what has
  // changed in either since the last time is copied.
  void CopyOf(const TextLine& other);

  std::int32_t SelStart() const { return start_; }
  void SelStart(std::int32_t start);
  std::int32_t SelLength() const { return length_; }
  void SelLength(std::int32_t length);
  std::u16string_view SelText() const;

  // Puts `text` in place of the selection; the caret goes behind it. `limit` is the longest text, 0 for none:
  // what there is no room for is cut. False, with nothing changed, when there is no room for any of it.
  bool Replace(std::u16string_view text, std::int32_t limit);

 private:
  std::int32_t Size() const { return static_cast<std::int32_t>(text_.size()); }

  void Changed(std::size_t from);

  std::u16string text_;
  mutable const TextLine* twin_ = nullptr;  // the line of the last copy, either way
  mutable std::size_t same_ = 0;            // characters from the start that have not changed since
  std::int32_t start_ = 0;
  std::int32_t length_ = 0;
};

}  // namespace gabarito::kit

#endif  // HOSTS_KIT_TEXT_LINE_H
