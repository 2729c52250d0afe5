#include "gabarito/platform/decimal_digits.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <string>
#include <string_view>

#include "gabarito/platform/erro.h"
#include "gabarito/platform/exact_digits.h"

namespace gabarito {
namespace {

constexpr std::size_t kHeadDigits = 19;  // the most that 64 bits hold
constexpr int kSafeDigits = 15;          // the most that every normal double tells apart
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

// The fewest digits that tell `magnitude` from its neighbours. Asked for below the normal doubles alone,
// which hold less than 15: 4.94E-324 would show digits that nobody has written.
Significant Shortest(double magnitude) {
  int digits = 1;
  while (digits < kSafeDigits) {
    const Significant number = Rounded(magnitude, digits);
    DecimalReader reader;
    const WholeDigits written(number.coefficient);
    for (const char16_t digit : written.Text()) reader.AddInteger(digit - std::uint32_t{u'0'});
    if (reader.Value(number.exponent) == magnitude) break;
    ++digits;
  }
  return Rounded(magnitude, digits);
}

}  // namespace

WholeDigits::WholeDigits(std::uint64_t number) {
  do {
    units_[--first_] = static_cast<char16_t>(u'0' + number % 10);
    number /= 10;
  } while (number != 0);
}

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
  // Judged before: of "1e99999999999999" the exponent itself is out of range.
  const std::int64_t magnitude = power + static_cast<std::int64_t>(count_);
  if (magnitude > kFarBeyond) return std::numeric_limits<double>::infinity();
  if (magnitude < -kFarBeyond) return 0;

  const std::string_view kept(digits_.data(), count_);
  if (!hasRemainder_) return NearestDouble(kept, static_cast<std::int32_t>(power));
  // One more digit stands for all that was dropped.
  return NearestDouble(std::string(kept) + '1', static_cast<std::int32_t>(power - 1));
}

Significant ToSignificant(double value) {
  if (!std::isfinite(value)) Fail(kOverflow);
  if (value == 0) return {0, 0, false};
  const double magnitude = std::fabs(value);
  const auto whole = static_cast<std::uint64_t>(std::min(magnitude, static_cast<double>(kSafeLimit)));
  Significant number{whole, 0, false};
  if (static_cast<double>(whole) != magnitude) {
    const bool isNormal = magnitude >= std::numeric_limits<double>::min();
    number = isNormal ? Rounded(magnitude, kSafeDigits) : Shortest(magnitude);
  }
  number = WithoutTrailingZeros(number);
  number.negative = value < 0;
  return number;
}

}  // namespace gabarito
