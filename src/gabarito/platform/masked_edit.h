// The engine of the masked edit box: one for every host.
//
// A pattern is at most 64 characters:
//
//   #  digit, or a blank: an empty place     9  digit, optional
//   A  letter or digit                       a  the same, optional
//   ?  letter                                &  any character      C  the same, optional
//   >  letters behind it become capitals     <  letters behind it become small
//   \  the next character as itself          . , : / - and every other character: literals
//
// The text has one character for each place and each literal: places that are not filled hold the prompt
// character "_". The box never asks whether an entry is complete, so an optional place differs from its
// sibling in one thing: what does not fit it may pass over it. Letters are the Latin ones, accents included;
// any character is any but the control characters (below 32, and 127). > and < change what is entered, never
// a literal. A prompt character that is typed, pasted or set fits every place and leaves it empty.
//
// A character that is entered goes to the first place from the caret on if it fits there, else it is refused,
// with two exceptions. Optional places that it does not fit are passed over, up to and including the first
// required one. And a separator (neither letter nor digit) that equals a literal ahead goes behind that
// literal, over places that are still empty: 1/2 entered in ##/## gives "1_/2_". A literal right at the caret
// is stepped over by its own character, also a letter or digit. Places are fixed: entering replaces what a
// place holds and shifts nothing.
//
// An empty pattern makes it a plain box, which inserts.
//
// The engine knows no window, focus or event. A host feeds it keys, shows Text() and paints the selection.
#ifndef GABARITO_PLATFORM_MASKED_EDIT_H
#define GABARITO_PLATFORM_MASKED_EDIT_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace gabarito {

class MaskedEdit {
 public:
  static constexpr char16_t kPrompt = u'_';
  static constexpr std::int32_t kLongest = 64;  // characters of a pattern, and MaxLength

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

  // Without a pattern the longest text that can be typed; 0 is no limit. It binds Type alone: a host that
  // pastes for the user cuts what it hands to SelText. Raises 380 outside 0 to 64.
  std::int32_t MaxLength() const { return max_length_; }
  void MaxLength(std::int32_t length);

  // 0-based; set beyond the end they stop at the end. Raise 380 when negative. SelStart drops the selection.
  std::int32_t SelStart() const { return static_cast<std::int32_t>(start_); }
  std::int32_t SelLength() const { return static_cast<std::int32_t>(length_); }
  void SelStart(std::int32_t start);
  void SelLength(std::int32_t length);

  // The selected part of the text.
  std::u16string_view SelText() const { return Text().substr(start_, length_); }
  // Replaces the selection, keeping the pattern: the places of the selection are emptied, then the
  // characters are entered one by one from its start, and what is refused is dropped. The caret ends
  // behind the last character entered, in front of a literal that follows; no selection stays.
  void SelText(std::u16string_view text);

  // One typed character: replaces the selection. True when it was taken; false when it is refused, when it is
  // a control character, or when MaxLength is reached: nothing changes, and the host beeps. The caret goes on
  // to the next place, over the literals that follow. So 12 in ##/## leaves it behind the slash, and the "/"
  // that the person types then, where no place takes it, is taken once and changes nothing.
  bool Type(char16_t character);
  // Backspace: empties the selection, or the nearest place before the caret and moves there.
  void Backspace();
  // Delete: empties the selection, or the place at the caret, which stays. At a literal nothing changes.
  void Delete();

 private:
  enum class Letters { kAsEntered, kCapital, kSmall };
  struct Position {
    char16_t place;    // the pattern's character for what fits, or kLiteral
    char16_t literal;  // what an empty position shows: the literal, or the prompt
    Letters letters;
  };
  static constexpr char16_t kLiteral = 0;

  static std::vector<Position> Parse(std::u16string_view pattern);
  static bool Fits(const Position& position, char16_t character);
  static char16_t Entered(const Position& position, char16_t character);

  bool IsPlain() const { return mask_.empty(); }
  bool IsPlace(std::size_t at) const { return positions_[at].place != kLiteral; }
  bool IsLiteral(std::size_t at, char16_t character) const;
  std::u16string Template() const;
  std::size_t FindPlace(std::size_t from, char16_t character) const;
  std::size_t FindSeparator(std::u16string_view text, std::size_t from, char16_t separator) const;
  std::size_t Find(std::u16string_view text, std::size_t caret, char16_t character) const;
  void Select(std::size_t start, std::size_t length);
  void Empty(std::u16string& text, std::size_t start, std::size_t length) const;
  void RunOverLiterals();
  bool TakeAgain(char16_t separator);
  bool TypePlain(char16_t character);

  std::u16string mask_;
  std::vector<Position> positions_;  // one for each character of text_; none without a pattern
  std::u16string text_;
  std::int32_t max_length_ = kLongest;
  std::size_t start_ = 0;
  std::size_t length_ = 0;
  std::size_t ran_from_ = 0;  // where the caret stood before it ran over literals to start_; else start_
};

}  // namespace gabarito

#endif  // GABARITO_PLATFORM_MASKED_EDIT_H
