#include "gabarito/platform/decimal_digits.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#include <iterator>
#include <limits>

#include "gabarito/platform/erro.h"

namespace gabarito {
namespace {

constexpr std::size_t kHeadDigits = 19;  // the most that 64 bits hold
constexpr int kSafeDigits = 15;          // the most that every double tells apart
constexpr std::uint64_t kSafeLimit = 1'000'000'000'000'000;

// The powers of ten that are exact as doubles. One operation with an exact integer and one of these is
// rounded once, so its result is the nearest double.
constexpr double kExactPowers[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                   1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
constexpr std::int64_t kLargestExactPower = std::size(kExactPowers) - 1;

Significant WithoutTrailingZeros(Significant number) {
  while (number.coefficient % 10 == 0) {
    number.coefficient /= 10;
    ++number.exponent;
  }
  return number;
}

// Reads "1.2345e-05", as std::to_chars writes it, up to `end`; tells the number of its digits.
Significant FromScientific(const char* begin, const char* end, bool negative, int& digits) {
  Significant number{0, 0, negative};
  digits = 0;
  const char* at = begin;
  for (; *at != 'e'; ++at) {
    if (*at == '.') continue;
    number.coefficient = number.coefficient * 10 + static_cast<std::uint64_t>(*at - '0');
    ++digits;
  }
  ++at;
  if (*at == '+') ++at;  // std::from_chars takes no plus sign
  std::from_chars(at, end, number.exponent);
  number.exponent -= digits - 1;
  return number;
}

}  // namespace

bool ExactProduct(std::uint64_t coefficient, std::int64_t exponent, double& value) {
  if (coefficient > kLargestExact) return false;
  const auto whole = static_cast<double>(coefficient);
  if (exponent >= 0 && exponent <= kLargestExactPower) {
    value = whole * kExactPowers[exponent];
  } else if (exponent < 0 && exponent >= -kLargestExactPower) {
    value = whole / kExactPowers[-exponent];
  } else {
    return false;
  }
  return true;
}

void DecimalReader::AddInteger(std::uint32_t digit) {
  if (count_ == kCapacity) {
    hasRemainder_ = hasRemainder_ || digit != 0;
    ++shift_;
    return;
  }
  Store(digit);
}

void DecimalReader::AddFraction(std::uint32_t digit) {
  if (count_ == kCapacity) {
    hasRemainder_ = hasRemainder_ || digit != 0;
    return;
  }
  --shift_;
  Store(digit);
}

void DecimalReader::Store(std::uint32_t digit) {
  if (count_ == 0 && digit == 0) return;  // leading zeros take no room
  if (count_ < kHeadDigits) head_ = head_ * 10 + digit;
  digits_[count_++] = static_cast<char>('0' + digit);
}

double DecimalReader::Value(std::int64_t exponent) const {
  const std::int64_t power = exponent + shift_;
  if (count_ == 0) return 0;
  double value = 0;
  return count_ <= kHeadDigits && ExactProduct(head_, power, value) ? value : Parse(power);
}

double DecimalReader::Parse(std::int64_t power) const {
  constexpr std::int64_t kFarBeyond = 2000;  // every double lies within 10^-324 and 10^309
  constexpr std::size_t kExponentRoom = 24;
  // Judged before a text is made of it: the exponent of "1e99999999999999" would be out of range for the
  // parser with no hint on which side.
  const std::int64_t magnitude = power + static_cast<std::int64_t>(count_);
  if (magnitude > kFarBeyond) return std::numeric_limits<double>::infinity();
  if (magnitude < -kFarBeyond) return 0;

  std::array<char, kCapacity + 1 + kExponentRoom> text;
  std::memcpy(text.data(), digits_.data(), count_);
  char* end = text.data() + count_;
  std::int64_t exponent = power;
  if (hasRemainder_) {  // one more digit stands for all that was dropped
    *end++ = '1';
    --exponent;
  }
  *end++ = 'e';
  end = std::to_chars(end, text.data() + text.size(), exponent).ptr;
  double value = 0;
  const auto result = std::from_chars(text.data(), end, value);
  if (result.ec == std::errc{}) return value;
  return magnitude > 0 ? std::numeric_limits<double>::infinity() : 0;
}

Significant ToSignificant(double value) {
  if (!std::isfinite(value)) throw Erro(kOverflow);
  if (value == 0) return {0, 0, false};
  const bool negative = value < 0;
  const double magnitude = std::fabs(value);
  if (magnitude < static_cast<double>(kSafeLimit)) {
    const auto whole = static_cast<std::uint64_t>(magnitude);
    if (static_cast<double>(whole) == magnitude) return WithoutTrailingZeros({whole, 0, negative});
  }
  std::array<char, 32> text;
  char* const limit = text.data() + text.size();
  int digits = 0;
  char* end = std::to_chars(text.data(), limit, magnitude, std::chars_format::scientific).ptr;
  Significant number = FromScientific(text.data(), end, negative, digits);
  if (digits > kSafeDigits) {
    // Rounded anew from the value itself: rounding the 17 digits once more could round twice.
    end = std::to_chars(text.data(), limit, magnitude, std::chars_format::scientific, kSafeDigits - 1).ptr;
    number = FromScientific(text.data(), end, negative, digits);
  }
  return WithoutTrailingZeros(number);
}

}  // namespace gabarito
