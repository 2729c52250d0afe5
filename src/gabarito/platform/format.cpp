#include "gabarito/platform/format.h"

#include <cstddef>
#include <cstdint>

#include "gabarito/platform/decimal_digits.h"
#include "gabarito/platform/erro.h"
#include "gabarito/platform/number.h"

namespace gabarito {
namespace {

// A whole number: a sign and its decimal digits, `zeros` more of which follow as zeros.
struct Whole {
  WholeDigits digits;
  std::size_t zeros = 0;
  bool negative = false;

  std::size_t Size() const { return digits.Text().size() + zeros; }
  char16_t Digit(std::size_t index) const {
    return index < digits.Text().size() ? digits.Text()[index] : u'0';
  }
  bool IsZero() const { return digits.Text() == u"0"; }
};

// Half away from zero, judged on the 15 digits: 2.5 gives 3 and -2.5 gives -3.
std::uint64_t WithoutFraction(const Significant& number) {
  constexpr std::int32_t kMostDigits = 15;
  if (number.exponent >= 0) return number.coefficient;
  if (number.exponent < -kMostDigits) return 0;  // below 0.1
  std::uint64_t unit = 1;
  for (std::int32_t power = number.exponent; power < 0; ++power) unit *= 10;
  return (number.coefficient + unit / 2) / unit;
}

Whole Rounded(double value) {
  const Significant number = ToSignificant(value);
  const std::uint64_t coefficient = WithoutFraction(number);
  Whole whole{.digits = WholeDigits(coefficient)};
  whole.zeros = number.exponent > 0 ? static_cast<std::size_t>(number.exponent) : 0;
  // -0.4 gives "00", not "-00".
  whole.negative = number.negative && coefficient != 0;
  return whole;
}

bool IsZeros(std::u16string_view pattern) {
  return !pattern.empty() && pattern.find_first_not_of(u'0') == std::u16string_view::npos;
}

std::u16string Padded(const Whole& whole, std::size_t width) {
  std::u16string text;
  if (whole.negative) text.push_back(u'-');
  if (whole.Size() < width) text.append(width - whole.Size(), u'0');
  for (std::size_t index = 0; index < whole.Size(); ++index) text.push_back(whole.Digit(index));
  return text;
}

std::u16string Grouped(const Whole& whole, std::u16string_view separator) {
  constexpr std::size_t kGroup = 3;
  std::u16string text;
  if (whole.IsZero()) return text;
  if (whole.negative) text.push_back(u'-');
  for (std::size_t index = 0; index < whole.Size(); ++index) {
    const std::size_t rest = whole.Size() - index;
    if (index > 0 && rest % kGroup == 0) text.append(separator);
    text.push_back(whole.Digit(index));
  }
  return text;
}

// Done before a text is read: one that comes back unchanged must not hide a pattern that is none.
void CheckPattern(std::u16string_view pattern) {
  if (pattern != u"#,#" && !IsZeros(pattern)) Fail(kInvalidProcedureCall);
}

}  // namespace

std::u16string FormatNumber(double value, std::u16string_view pattern, const Regional& regional) {
  CheckPattern(pattern);
  const Whole whole = Rounded(value);
  return IsZeros(pattern) ? Padded(whole, pattern.size()) : Grouped(whole, regional.thousands);
}

std::u16string FormatNumber(std::u16string_view text, std::u16string_view pattern, const Regional& regional) {
  CheckPattern(pattern);
  double value = 0;
  if (!ReadDouble(text, regional, value)) return std::u16string(text);
  return FormatNumber(value, pattern, regional);
}

}  // namespace gabarito
