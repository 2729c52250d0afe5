#include <algorithm>
#include <array>
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

// Takes the last decimal digit off. In parts that 64 bits divide: a division of 128 is the library's, and
// long.
std::uint32_t TakeDigit(Wide& number) {
  const auto high = static_cast<std::uint64_t>(number >> 64);
  const auto low = static_cast<std::uint64_t>(number);
  const std::uint64_t middle = high % 10 << 32 | low >> 32;
  const std::uint64_t last = middle % 10 << 32 | (low & 0xFFFFFFFF);
  number = Wide{high / 10} << 64 | ((middle / 10 << 32) + last / 10);
  return static_cast<std::uint32_t>(last % 10);
}

// A number that loses decimals, with what has to be known of those to round once: 0.45 to 0.5 to 1 would be
// twice.
struct Shortened {
  Wide kept;
  std::uint32_t last = 0;  // of the digits lost
  bool more = false;       // whether anything but zeros stood behind it

  void Drop() {
    more = more || last != 0;
    last = TakeDigit(kept);
  }
  // Half to even.
  Wide Rounded() const {
    const bool up = last > 5 || (last == 5 && (more || kept % 2 != 0));
    return up ? kept + 1 : kept;
  }
};

// Brings a number into the type, with a single rounding. Raises 6 when its integer part does not fit.
Scaled Fitted(Wide coefficient, std::int32_t scale) {
  if (coefficient == 0) return {0, 0};
  for (; scale < 0; ++scale) {
    if (coefficient > kLargestCoefficient / 10) Fail(kOverflow);
    coefficient *= 10;
  }
  Shortened number{coefficient};
  for (; scale > kLargestScale; --scale) number.Drop();
  for (; scale > 0 && number.Rounded() > kLargestCoefficient; --scale) number.Drop();
  if (number.Rounded() > kLargestCoefficient) Fail(kOverflow);
  return {number.Rounded(), scale};
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
  for (Wide rest = number.coefficient; rest != 0;) digits[count++] = TakeDigit(rest);
  while (count > 0) reader.AddInteger(digits[--count]);
  return reader.Value(-number.scale);
}

// "1234,5" and "0,0012": `digits` with the decimal mark behind the first `whole` of them.
void AppendPlain(std::u16string& text, std::u16string_view digits, std::int32_t whole,
                 std::u16string_view decimal) {
  const auto size = static_cast<std::int32_t>(digits.size());
  if (whole <= 0) {
    text.append(u"0").append(decimal).append(static_cast<std::size_t>(-whole), u'0');
    text.append(digits);
  } else if (whole >= size) {
    text.append(digits);
    text.append(static_cast<std::size_t>(whole - size), u'0');
  } else {
    text.append(digits.substr(0, static_cast<std::size_t>(whole)));
    text.append(decimal);
    text.append(digits.substr(static_cast<std::size_t>(whole)));
  }
}

// "1,5E-07": `digits` with the mark behind the first, the exponent in at least two digits.
void AppendExponentForm(std::u16string& text, std::u16string_view digits, std::int32_t exponent,
                        std::u16string_view decimal) {
  text.append(digits.substr(0, 1));
  if (digits.size() > 1) {
    text.append(decimal);
    text.append(digits.substr(1));
  }
  text.append(exponent < 0 ? u"E-" : u"E+");
  const std::int32_t magnitude = exponent < 0 ? -exponent : exponent;
  if (magnitude < 10) text.push_back(u'0');
  text.append(WholeDigits(static_cast<std::uint64_t>(magnitude)).Text());
}

}  // namespace

std::u16string NumberToText(double value, std::u16string_view decimal) {
  constexpr std::int32_t kMostWholeDigits = 15;
  constexpr std::int32_t kMostLeadingZeros = 3;  // behind the mark: 0.0001 has them, 0.00001 has one more
  const Significant number = ToSignificant(value);
  const WholeDigits coefficient(number.coefficient);
  const std::u16string_view digits = coefficient.Text();
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
