#include "gabarito/platform/number.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>

#include "gabarito/platform/decimal_digits.h"
#include "gabarito/platform/erro.h"

namespace gabarito {
namespace {

bool IsBlank(char16_t unit) { return unit == u' ' || unit == u'\t' || unit == u'\n'; }

bool IsDigit(char16_t unit) { return unit >= u'0' && unit <= u'9'; }

std::uint32_t DigitOf(char16_t unit) { return unit - std::uint32_t{u'0'}; }

bool IsSign(char16_t unit) { return unit == u'+' || unit == u'-'; }

bool IsExponentMark(char16_t unit) {
  const char16_t small = unit | 0x20;
  return small == u'e' || small == u'd';
}

enum class Blanks { kSkipped, kKept };

// A place in a text. The end reads as the unit 0, which is part of no number.
class Reader {
 public:
  Reader(std::u16string_view text, Blanks blanks) : text_(text), blanks_(blanks) { SkipIfAsked(); }

  char16_t Peek() const { return at_ < text_.size() ? text_[at_] : u'\0'; }
  bool IsAtEnd() const { return at_ >= text_.size(); }
  std::u16string_view Rest() const { return text_.substr(at_); }

  void Advance(std::size_t count = 1) {
    at_ += count;
    SkipIfAsked();
  }

  // Takes `piece` if it stands here. The empty piece stands nowhere.
  bool Take(std::u16string_view piece) {
    if (piece.empty() || !Rest().starts_with(piece)) return false;
    Advance(piece.size());
    return true;
  }

 private:
  void SkipIfAsked() {
    if (blanks_ == Blanks::kKept) return;
    while (at_ < text_.size() && IsBlank(text_[at_])) ++at_;
  }

  std::u16string_view text_;
  std::size_t at_ = 0;
  Blanks blanks_;
};

// Reads a text of a few digits and nothing else, which most are; false on any other.
bool ReadFewDigits(std::u16string_view text, double& value) {
  constexpr std::size_t kFew = 15;  // whatever they are, a double holds them
  if (text.empty() || text.size() > kFew) return false;
  std::int64_t whole = 0;
  for (const char16_t unit : text) {
    if (!IsDigit(unit)) return false;
    whole = whole * 10 + DigitOf(unit);
  }
  value = static_cast<double>(whole);
  return true;
}

// The exponent that stands at `reader`, which moves behind it; 0, and nothing taken, where there is none:
// in "1e" and "1e+" the number ends before the "e".
std::int64_t ReadExponent(Reader& reader) {
  constexpr std::int64_t kBeyondAnyText = 1'000'000'000'000'000;
  if (!IsExponentMark(reader.Peek())) return 0;
  Reader ahead = reader;
  ahead.Advance();
  const bool negative = ahead.Peek() == u'-';
  if (IsSign(ahead.Peek())) ahead.Advance();
  if (!IsDigit(ahead.Peek())) return 0;
  std::int64_t exponent = 0;
  for (; IsDigit(ahead.Peek()); ahead.Advance()) {
    exponent = std::min(exponent * 10 + DigitOf(ahead.Peek()), kBeyondAnyText);
  }
  reader = ahead;
  return negative ? -exponent : exponent;
}

// The value of a digit in bases up to 16; 16 for a unit that is none.
std::uint32_t HexDigitOf(char16_t unit) {
  if (IsDigit(unit)) return DigitOf(unit);
  const char16_t small = unit | 0x20;
  return small >= u'a' && small <= u'f' ? small - std::uint32_t{u'a'} + 10 : 16;
}

// Reads an integer behind "&H", "&O" or "&" into `value`; false when there is none. A digit that would
// need more than 32 bits ends it.
bool ReadPrefixed(Reader& reader, double& value) {
  if (reader.Peek() != u'&') return false;
  reader.Advance();
  const char16_t letter = reader.Peek() | 0x20;
  const std::uint32_t base = letter == u'h' ? 16 : 8;
  if (letter == u'h' || letter == u'o') reader.Advance();
  if (HexDigitOf(reader.Peek()) >= base) return false;
  std::uint64_t bits = 0;
  for (; HexDigitOf(reader.Peek()) < base; reader.Advance()) {
    const std::uint64_t next = bits * base + HexDigitOf(reader.Peek());
    if (next > std::numeric_limits<std::uint32_t>::max()) break;
    bits = next;
  }
  // &HFFFF is the 16-bit -1; &H10000, which 16 bits do not hold, counts in 32.
  const bool isShort = bits <= std::numeric_limits<std::uint16_t>::max();
  value = isShort ? static_cast<std::int16_t>(bits) : static_cast<std::int32_t>(bits);
  return true;
}

// A number as the region writes it, found in a text: where its digits stand and what goes with them.
struct Shape {
  std::u16string_view digits;  // with separators and the decimal mark
  std::int64_t exponent = 0;
  bool negative = false;
};

// What may stand around the digits, in any order: blanks, one sign or pair of parentheses, the currency.
struct Surroundings {
  bool hasSign = false;
  bool hasCurrency = false;
  bool isOpen = false;  // a parenthesis that waits for its partner
  bool negative = false;

  bool TakeSign(Reader& reader) {
    if (hasSign || !IsSign(reader.Peek())) return false;
    hasSign = true;
    negative = reader.Peek() == u'-';
    reader.Advance();
    return true;
  }

  bool TakeOpening(Reader& reader) {
    if (hasSign || !reader.Take(u"(")) return false;
    hasSign = isOpen = negative = true;
    return true;
  }

  bool TakeClosing(Reader& reader) {
    if (!isOpen || !reader.Take(u")")) return false;
    isOpen = false;
    return true;
  }

  bool TakeCurrency(Reader& reader, const Regional& regional) {
    if (hasCurrency || !reader.Take(regional.currency)) return false;
    hasCurrency = true;
    return true;
  }
};

bool TakeBlank(Reader& reader) {
  if (!IsBlank(reader.Peek())) return false;
  reader.Advance();
  return true;
}

// Takes digits with the region's marks, in one pass and without a copy, so that 40,000 pasted digits cost
// 40,000 steps; false when there is no digit.
bool TakeDigits(Reader& reader, const Regional& regional) {
  bool hasDigit = false;
  bool hasMark = false;
  for (;;) {
    if (IsDigit(reader.Peek())) {
      hasDigit = true;
      reader.Advance();
    } else if (!hasMark && reader.Take(regional.decimal)) {  // first: "1.5" where one mark serves as both
      hasMark = true;
    } else if (!hasDigit || hasMark || !reader.Take(regional.thousands)) {
      return hasDigit;
    }
  }
}

// Whether the whole of `text` is a decimal number; its shape then.
bool Recognize(std::u16string_view text, const Regional& regional, Shape& shape) {
  Reader reader(text, Blanks::kKept);
  Surroundings around;
  while (TakeBlank(reader) || around.TakeSign(reader) || around.TakeOpening(reader) ||
         around.TakeCurrency(reader, regional)) {
  }
  const std::u16string_view digits = reader.Rest();
  if (!TakeDigits(reader, regional)) return false;
  shape.digits = digits.substr(0, digits.size() - reader.Rest().size());
  shape.exponent = ReadExponent(reader);
  while (TakeBlank(reader) || around.TakeSign(reader) || around.TakeClosing(reader) ||
         around.TakeCurrency(reader, regional)) {
  }
  shape.negative = around.negative;
  // A parenthesis still open is no number: "(5" is not a -5.
  return reader.IsAtEnd() && !around.isOpen;
}

// Whether the whole of `text` is an integer behind "&H", "&O" or "&".
bool RecognizePrefixed(std::u16string_view text, double& value) {
  Reader reader(text, Blanks::kKept);
  while (TakeBlank(reader)) {
  }
  if (!ReadPrefixed(reader, value)) return false;
  while (TakeBlank(reader)) {
  }
  return reader.IsAtEnd();
}

// Infinity beyond the range of a double.
double ValueOf(const Shape& shape, const Regional& regional) {
  DecimalReader digits;
  Reader reader(shape.digits, Blanks::kKept);
  bool isFraction = false;
  const auto isMark = [&] {
    return !regional.decimal.empty() && reader.Rest().starts_with(regional.decimal);
  };
  while (!reader.IsAtEnd()) {
    if (!IsDigit(reader.Peek())) {
      isFraction = isFraction || isMark();
    } else if (isFraction) {
      digits.AddFraction(DigitOf(reader.Peek()));
    } else {
      digits.AddInteger(DigitOf(reader.Peek()));
    }
    reader.Advance();
  }
  const double value = digits.Value(shape.exponent);
  // No negative zero for "-0": it equals 0 and still behaves otherwise under a division.
  return shape.negative && value != 0 ? -value : value;
}

// Whether the whole of `text` is a number, and its value, as ValueOf gives it.
bool ReadNumber(std::u16string_view text, const Regional& regional, double& value) {
  Shape shape;
  if (!Recognize(text, regional, shape)) return RecognizePrefixed(text, value);
  value = ValueOf(shape, regional);
  return true;
}

template <class Integer>
Integer ToInteger(double value) {
  const double whole = std::nearbyint(value);
  const bool fits =
      whole >= std::numeric_limits<Integer>::min() && whole <= std::numeric_limits<Integer>::max();
  if (!fits) Fail(kOverflow);  // a value that is no number fits nowhere
  return static_cast<Integer>(whole);
}

}  // namespace

double Val(std::u16string_view text) {
  double whole = 0;
  if (ReadFewDigits(text, whole)) return whole;
  Reader reader(text, Blanks::kSkipped);
  // Before the sign is looked for: "-&HFF" has no numeric prefix.
  if (reader.Peek() == u'&') return ReadPrefixed(reader, whole) ? whole : 0;

  const bool negative = reader.Peek() == u'-';
  if (IsSign(reader.Peek())) reader.Advance();
  DecimalReader digits;
  bool hasDigit = false;
  for (; IsDigit(reader.Peek()); reader.Advance()) {
    hasDigit = true;
    digits.AddInteger(DigitOf(reader.Peek()));
  }
  if (reader.Take(u".")) {
    for (; IsDigit(reader.Peek()); reader.Advance()) {
      hasDigit = true;
      digits.AddFraction(DigitOf(reader.Peek()));
    }
  }
  if (!hasDigit) return 0;
  const double value = std::min(digits.Value(ReadExponent(reader)), std::numeric_limits<double>::max());
  return negative && value != 0 ? -value : value;
}

bool IsNumeric(std::u16string_view text, const Regional& regional) {
  Shape shape;
  double value = 0;
  return Recognize(text, regional, shape) || RecognizePrefixed(text, value);
}

bool ReadDouble(std::u16string_view text, const Regional& regional, double& value) {
  double number = 0;
  if (!ReadNumber(text, regional, number) || std::isinf(number)) return false;
  value = number;
  return true;
}

double ToDouble(std::u16string_view text, const Regional& regional) {
  double number = 0;
  if (!ReadNumber(text, regional, number)) Fail(kTypeMismatch);
  if (std::isinf(number)) Fail(kOverflow);
  return number;
}

std::int16_t ToInt16(double value) { return ToInteger<std::int16_t>(value); }

std::int32_t ToInt32(double value) { return ToInteger<std::int32_t>(value); }

}  // namespace gabarito
