#include "gabarito/platform/masked_edit.h"

#include <algorithm>
#include <utility>

#include "gabarito/platform/erro.h"
#include "gabarito/platform/text.h"

namespace gabarito {
namespace {

constexpr std::u16string_view kPlaces = u"#9Aa?&C";
constexpr std::u16string_view kOptional = u"9aC";
constexpr char16_t kDelete = 127;

bool IsControl(char16_t c) { return c < u' ' || c == kDelete; }
bool IsDigit(char16_t c) { return c >= u'0' && c <= u'9'; }

// ASCII, Latin-1 and Latin Extended-A, which is what UCase knows; the two signs are times and divided by.
bool IsLetter(char16_t c) {
  return (UCase(c) >= u'A' && UCase(c) <= u'Z') || (c >= 0xC0 && c <= 0x17F && c != 0xD7 && c != 0xF7);
}

// The inverse of UCase, which sets a small letter 32 behind its capital, or next to it beyond Latin-1.
char16_t SmallOf(char16_t c) {
  for (const int candidate : {c + 0x20, c + 1, 0xFF}) {
    const auto small = static_cast<char16_t>(candidate);
    if (small != c && IsLetter(small) && UCase(small) == c) return small;
  }
  return c;
}

std::size_t SizeOf(std::int32_t value) {
  if (value < 0) Fail(kInvalidPropertyValue);
  return static_cast<std::size_t>(value);
}

}  // namespace

std::vector<MaskedEdit::Position> MaskedEdit::Parse(std::u16string_view pattern) {
  std::vector<Position> positions;
  Letters letters = Letters::kAsEntered;
  for (std::size_t i = 0; i < pattern.size(); ++i) {
    const char16_t c = pattern[i];
    if (c == u'>' || c == u'<') {
      letters = c == u'>' ? Letters::kCapital : Letters::kSmall;
    } else if (c == u'\\') {
      if (++i == pattern.size()) Fail(kInvalidPropertyValue);
      positions.push_back({kLiteral, pattern[i], letters});
    } else if (kPlaces.find(c) != std::u16string_view::npos) {
      positions.push_back({c, kPrompt, letters});
    } else {
      positions.push_back({kLiteral, c, letters});
    }
  }
  return positions;
}

bool MaskedEdit::Fits(const Position& position, char16_t character) {
  if (character == kPrompt) return true;
  switch (position.place) {
    case u'#':
      return IsDigit(character) || character == u' ';
    case u'9':
      return IsDigit(character);
    case u'?':
      return IsLetter(character);
    case u'A':
    case u'a':
      return IsDigit(character) || IsLetter(character);
    default:
      return !IsControl(character);
  }
}

// What a place holds once `character`, which fits, is entered. The blank of "#" is kept as the prompt, so
// that there is one kind of empty place.
char16_t MaskedEdit::Entered(const Position& position, char16_t character) {
  if (position.place == u'#' && character == u' ') return kPrompt;
  if (position.letters == Letters::kCapital) return UCase(character);
  return position.letters == Letters::kSmall ? SmallOf(character) : character;
}

bool MaskedEdit::IsLiteral(std::size_t at, char16_t character) const {
  return at < positions_.size() && !IsPlace(at) && positions_[at].literal == character;
}

std::u16string MaskedEdit::Template() const {
  std::u16string text;
  for (const Position& position : positions_) text += position.literal;
  return text;
}

// The place that takes `character`: the first from `from` on, or one that only optional places stand before.
// Those do not have to be filled, so a character that they refuse passes over them; a required place ends it.
std::size_t MaskedEdit::FindPlace(std::size_t from, char16_t character) const {
  for (std::size_t at = from; at < positions_.size(); ++at) {
    if (!IsPlace(at)) continue;
    if (Fits(positions_[at], character)) return at;
    if (kOptional.find(positions_[at].place) == std::u16string_view::npos) break;
  }
  return positions_.size();
}

// The literal ahead that equals `separator`, over empty places alone: what is filled is not left behind.
std::size_t MaskedEdit::FindSeparator(std::u16string_view text, std::size_t from, char16_t separator) const {
  for (std::size_t at = from; at < positions_.size(); ++at) {
    if (IsLiteral(at, separator)) return at;
    if (IsPlace(at) && text[at] != kPrompt) break;
  }
  return positions_.size();
}

// The position that takes `character` with the caret at `caret` in `text`, which has the form of this
// pattern; the size of the text when none does. Entering goes on behind that position.
std::size_t MaskedEdit::Find(std::u16string_view text, std::size_t caret, char16_t character) const {
  if (IsLiteral(caret, character)) return caret;
  const std::size_t place = FindPlace(caret, character);
  if (place < positions_.size() || IsDigit(character) || IsLetter(character)) return place;
  return FindSeparator(text, caret, character);
}

// A host that puts the caret where it is has not moved it.
void MaskedEdit::Select(std::size_t start, std::size_t length) {
  const std::size_t former = start_;
  start_ = std::min(start, text_.size());
  length_ = std::min(length, text_.size() - start_);
  if (start_ != former || length_ > 0) ran_from_ = start_;
}

// Steps over the literals that follow, and remembers where it came from.
void MaskedEdit::RunOverLiterals() {
  std::size_t caret = start_;
  while (caret < positions_.size() && !IsPlace(caret)) ++caret;
  const std::size_t from = start_;
  Select(caret, 0);
  ran_from_ = from;
}

// A separator that the caret has run over by itself is taken when the person types it: the "/" of 12/34. A
// letter or digit is meant for a place.
bool MaskedEdit::TakeAgain(char16_t separator) {
  if (IsDigit(separator) || IsLetter(separator)) return false;
  for (std::size_t at = ran_from_; at < start_; ++at) {
    if (!IsLiteral(at, separator)) continue;
    ran_from_ = at + 1;
    return true;
  }
  return false;
}

void MaskedEdit::Empty(std::u16string& text, std::size_t start, std::size_t length) const {
  for (std::size_t i = start; i < start + length; ++i) text[i] = positions_[i].literal;
}

void MaskedEdit::Mask(std::u16string_view pattern) {
  if (pattern.size() > kLongest) Fail(kInvalidPropertyValue);
  // Whatever can fail comes before the first change.
  std::vector<Position> positions = Parse(pattern);
  std::u16string mask(pattern);
  positions_ = std::move(positions);
  mask_ = std::move(mask);
  text_ = Template();
  Select(0, 0);
}

void MaskedEdit::Text(std::u16string_view text) {
  std::u16string entered = !IsPlain() && text.empty() ? Template() : std::u16string(text);
  if (!IsPlain()) {
    if (entered.size() != positions_.size()) Fail(kInvalidPropertyValue);
    for (std::size_t i = 0; i < entered.size(); ++i) {
      const bool fits = IsPlace(i) ? Fits(positions_[i], entered[i]) : IsLiteral(i, entered[i]);
      if (!fits) Fail(kInvalidPropertyValue);
      if (IsPlace(i)) entered[i] = Entered(positions_[i], entered[i]);
    }
  }
  text_ = std::move(entered);
  Select(0, 0);
}

void MaskedEdit::MaxLength(std::int32_t length) {
  if (length < 0 || length > kLongest) Fail(kInvalidPropertyValue);
  max_length_ = length;
}

void MaskedEdit::SelStart(std::int32_t start) { Select(SizeOf(start), 0); }
void MaskedEdit::SelLength(std::int32_t length) { Select(start_, SizeOf(length)); }

void MaskedEdit::SelText(std::u16string_view text) {
  if (IsPlain()) {
    const std::size_t end = start_ + text.size();  // `text` may be a piece of text_, gone after the next line
    text_.replace(start_, length_, text);
    Select(end, 0);
    return;
  }
  // In a copy: `text` may be a piece of text_. The caret does not run over literals between two characters,
  // so that the box's own text (12134 in ##1##) meets each of them and comes back as it was.
  std::u16string entered = text_;
  Empty(entered, start_, length_);
  std::size_t caret = ran_from_;
  for (const char16_t c : text) {
    const std::size_t at = Find(entered, caret, c);
    if (at == positions_.size()) continue;
    if (IsPlace(at)) entered[at] = Entered(positions_[at], c);
    caret = at + 1;
  }
  text_ = std::move(entered);
  Select(caret, 0);
}

bool MaskedEdit::TypePlain(char16_t character) {
  // A text longer than the limit may stand there already, set by a program: it stays, and takes no more.
  const auto limit = static_cast<std::size_t>(max_length_);
  if (limit != 0 && text_.size() - length_ >= limit) return false;
  text_.replace(start_, length_, 1, character);
  Select(start_ + 1, 0);
  return true;
}

bool MaskedEdit::Type(char16_t character) {
  if (IsControl(character)) return false;
  if (IsPlain()) return TypePlain(character);
  // A key that is refused leaves the selection as it is, so it is emptied in a copy.
  std::u16string without;
  if (length_ > 0) Empty(without = text_, start_, length_);
  const std::size_t at = Find(length_ > 0 ? without : text_, start_, character);
  const bool place = at < positions_.size() && IsPlace(at);
  // Before the next "/" of ##/##/## is gone to.
  if (!place && at != start_ && TakeAgain(character)) return true;
  if (at == positions_.size()) return false;
  Empty(text_, start_, length_);
  Select(at + 1, 0);
  if (!place) return true;
  text_[at] = Entered(positions_[at], character);
  RunOverLiterals();
  return true;
}

// Steps over literals: they cannot be emptied, and a Backspace that stuck at one would be a dead key.
void MaskedEdit::Backspace() {
  if (length_ > 0) return Delete();
  std::size_t at = start_;
  do {
    if (at == 0) return;
    --at;
  } while (!IsPlain() && !IsPlace(at));
  Select(at, 1);
  Delete();
}

void MaskedEdit::Delete() {
  const std::size_t length = std::min(std::max<std::size_t>(length_, 1), text_.size() - start_);
  if (IsPlain()) {
    text_.erase(start_, length);
  } else {
    Empty(text_, start_, length);
  }
  Select(start_, 0);
}

}  // namespace gabarito
