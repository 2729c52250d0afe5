#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>

#include "gabarito/platform/decimal_digits.h"
#include "gabarito/platform/erro.h"
#include "gabarito/platform/number.h"

namespace gabarito {
namespace {

__extension__ using Wide = unsigned __int128;

// What the scaled decimal type holds: 96 bits and up to 28 decimals.
constexpr Wide kLargestCoefficient = (Wide{1} << 96) - 1;
constexpr std::int32_t kLargestScale = 28;

// A coefficient with `scale` decimals.
struct Scaled {
  Wide coefficient;
  std::int32_t scale;
};

Wide PowerOfTen(std::int32_t exponent) {
  Wide power = 1;
  for (; exponent > 0; --exponent) power *= 10;
  return power;
}

// Without the last `count` decimals, rounded half to even.
Wide Shortened(Wide coefficient, std::int32_t count) {
  if (count == 0) return coefficient;
  constexpr std::int32_t kMostDigits = 38;  // of 128 bits; 10^39 would wrap
  if (count > kMostDigits) return 0;
  const Wide unit = PowerOfTen(count);
  const Wide quotient = coefficient / unit;
  const Wide remainder = coefficient % unit;
  const Wide half = unit / 2;
  const bool up = remainder > half || (remainder == half && quotient % 2 != 0);
  return up ? quotient + 1 : quotient;
}

// Brings a number into the type, with a single rounding. Raises 6 when its integer part does not fit.
Scaled Fitted(Wide coefficient, std::int32_t scale) {
  if (coefficient == 0) return {0, 0};
  for (; scale < 0; ++scale) {
    if (coefficient > kLargestCoefficient / 10) Fail(kOverflow);
    coefficient *= 10;
  }
  // Each try starts from all digits: dropping them one by one would round twice, 0.45 to 0.5 to 1.
  std::int32_t surplus = std::max(0, scale - kLargestScale);
  while (surplus < scale && Shortened(coefficient, surplus) > kLargestCoefficient) ++surplus;
  const Scaled fitted{Shortened(coefficient, surplus), scale - surplus};
  if (fitted.coefficient > kLargestCoefficient) Fail(kOverflow);
  return fitted;
}

// A factor as it enters the type. Trailing zeros of a whole number stay in the exponent, so that the
// product of two coefficients never needs more than 30 digits.
Scaled Entered(const Significant& number) {
  const Scaled fitted = Fitted(number.coefficient, -number.exponent);
  return number.exponent > 0 ? Scaled{number.coefficient, -number.exponent} : fitted;
}

double Nearest(const Scaled& number) {
  double value = 0;
  if (number.coefficient <= kLargestExact &&
      ExactProduct(static_cast<std::uint64_t>(number.coefficient), -number.scale, value)) {
    return value;
  }
  DecimalReader reader;
  std::array<std::uint32_t, 39> digits;
  std::size_t count = 0;
  for (Wide rest = number.coefficient; rest != 0; rest /= 10) {
    digits[count++] = static_cast<std::uint32_t>(rest % 10);
  }
  while (count > 0) reader.AddInteger(digits[--count]);
  return reader.Value(-number.scale);
}

void Append(std::u16string& text, std::string_view ascii) { text.append(ascii.begin(), ascii.end()); }

// "1234,5" and "0,0012": `digits` with the decimal mark behind the first `whole` of them.
void AppendPlain(std::u16string& text, std::string_view digits, std::int32_t whole,
                 std::u16string_view decimal) {
  const auto size = static_cast<std::int32_t>(digits.size());
  if (whole <= 0) {
    text.append(u"0").append(decimal).append(static_cast<std::size_t>(-whole), u'0');
    Append(text, digits);
  } else if (whole >= size) {
    Append(text, digits);
    text.append(static_cast<std::size_t>(whole - size), u'0');
  } else {
    Append(text, digits.substr(0, static_cast<std::size_t>(whole)));
    text.append(decimal);
    Append(text, digits.substr(static_cast<std::size_t>(whole)));
  }
}

// "1,5E-07": `digits` with the mark behind the first, the exponent in at least two digits.
void AppendExponentForm(std::u16string& text, std::string_view digits, std::int32_t exponent,
                        std::u16string_view decimal) {
  Append(text, digits.substr(0, 1));
  if (digits.size() > 1) {
    text.append(decimal);
    Append(text, digits.substr(1));
  }
  text.append(exponent < 0 ? u"E-" : u"E+");
  std::array<char, 8> buffer;
  const std::int32_t magnitude = exponent < 0 ? -exponent : exponent;
  if (magnitude < 10) text.push_back(u'0');
  const auto* const end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude).ptr;
  Append(text, {buffer.data(), static_cast<std::size_t>(end - buffer.data())});
}

}  // namespace

std::u16string NumberToText(double value, std::u16string_view decimal) {
  constexpr std::int32_t kMostWholeDigits = 15;
  constexpr std::int32_t kMostLeadingZeros = 3;  // behind the mark: 0.0001 has them, 0.00001 has one more
  const Significant number = ToSignificant(value);
  std::array<char, 24> buffer;
  const auto* const end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number.coefficient).ptr;
  const std::string_view digits(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
  const std::int32_t whole = static_cast<std::int32_t>(digits.size()) + number.exponent;

  std::u16string text;
  // ToSignificant has no negative zero, so "-0" is never written.
  if (number.negative) text.push_back(u'-');
  if (whole > kMostWholeDigits || whole < -kMostLeadingZeros) {
    AppendExponentForm(text, digits, whole - 1, decimal);
  } else {
    AppendPlain(text, digits, whole, decimal);
  }
  return text;
}

double DecimalProduct(double value, double factor) {
  const Significant left = ToSignificant(value);
  const Significant right = ToSignificant(factor);
  const Scaled a = Entered(left);
  const Scaled b = Entered(right);
  const double product = Nearest(Fitted(a.coefficient * b.coefficient, a.scale + b.scale));
  return left.negative != right.negative && product != 0 ? -product : product;
}

}  // namespace gabarito
