// The engine of the masked edit box: one for every host.
//
// A pattern is at most 64 characters:
//
//   #  digit, or an empty place        9  digit, optional
//   A  letter or digit                 a  the same, optional
//   ?  letter                          &  any character       C  the same, optional
//   >  letters behind it become capitals      <  letters behind it become small
//   \  the next character as itself    . , : / - and every other character: literals
//
// The text has one character for each place and each literal: places that are not filled hold the prompt
// character "_". An empty pattern makes it a plain box.
//
// The engine knows no window, focus or event. A host feeds it keys, shows Text() and paints the selection.
#ifndef GABARITO_PLATFORM_MASKED_EDIT_H
#define GABARITO_PLATFORM_MASKED_EDIT_H

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace gabarito {

class MaskedEdit {
 public:
  static constexpr char16_t kPrompt = u'_';
  static constexpr std::int32_t kLongest = 64;  // places and literals of a pattern, and MaxLength

  // The pattern as it was set.
  std::u16string_view Mask() const { return mask_; }
  // Empties the text to the template of the new pattern, caret at 0. Raises 380, with everything as it was,
  // on a pattern longer than kLongest or one that ends in a lone "\".
  void Mask(std::u16string_view pattern);

  // Literals and prompt characters included.
  std::u16string_view Text() const { return text_; }
  // Takes a text that fits position by position: as long as the template, literals in place, each place
  // filled with a fitting character (put into capitals or small letters by > and <) or the prompt. The
  // empty text empties to the template. Without a pattern any text. Raises 380, with everything as it was,
  // on another one. The caret goes to 0.
  void Text(std::u16string_view text);

  // Without a pattern the longest text that can be typed; 0 is no limit. Raises 380 outside 0 to 64.
  std::int32_t MaxLength() const { return max_length_; }
  void MaxLength(std::int32_t length);

  // 0-based; set beyond the end they stop at the end. Raise 380 when negative. SelStart drops the selection.
  std::int32_t SelStart() const { return start_; }
  std::int32_t SelLength() const { return length_; }
  void SelStart(std::int32_t start);
  void SelLength(std::int32_t length);

  // The selected part of the text.
  std::u16string_view SelText() const;
  // Replaces the selection, keeping the pattern: the places of the selection are emptied, then the
  // characters are laid from its start, each into the first place that takes it; literals of the pattern
  // are stepped over, also where the text brings them along, and what fits nowhere is dropped. The caret
  // ends behind the last character laid.
  void SelText(std::u16string_view text);

  // One typed character. True when it was taken (or equals the literal at the caret, which is stepped
  // over); false when it fits nowhere from the caret on: nothing changes, and the host beeps.
  bool Type(char16_t character);
  // Backspace: empties the selection, or the nearest place before the caret and moves there.
  void Backspace();
  // Delete: empties the selection, or the place at the caret.
  void Delete();

 private:
  std::u16string mask_;
  std::u16string text_;
  std::int32_t max_length_ = kLongest;
  std::int32_t start_ = 0;
  std::int32_t length_ = 0;
};

}  // namespace gabarito

#endif  // GABARITO_PLATFORM_MASKED_EDIT_H
