// Numbers as decimal digits: what reading and writing a number have in common.
#ifndef GABARITO_PLATFORM_DECIMAL_DIGITS_H
#define GABARITO_PLATFORM_DECIMAL_DIGITS_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace gabarito {

// The decimal digits of a whole number.
class WholeDigits {
 public:
  explicit WholeDigits(std::uint64_t number);
  std::u16string_view Text() const { return {units_.data() + first_, kMost - first_}; }

 private:
  static constexpr std::size_t kMost = 20;

  std::array<char16_t, kMost> units_;
  std::size_t first_ = kMost;
};

// Gathers the digits of a number of any length in constant memory and gives the nearest double.
class DecimalReader {
 public:
  // Appends the digit `digit` (0 to 9).
  void AddInteger(std::uint32_t digit);
  void AddFraction(std::uint32_t digit);

  // The digits times 10 to the power `exponent`, correctly rounded; infinity beyond the range of a double.
  // No digit at all is 0.
  double Value(std::int64_t exponent) const;

 private:
  // A decimal value halfway between two doubles has at most 767 significant digits; beyond that only
  // whether anything but zeros follows can count.
  static constexpr std::size_t kCapacity = 768;

  void Store(std::uint32_t digit);
  double Parse(std::int64_t exponent) const;

  std::uint64_t head_ = 0;     // the first 19 significant digits as a number
  std::size_t count_ = 0;      // significant digits kept in digits_
  std::int64_t shift_ = 0;     // the power of ten that the kept digits have to be multiplied by
  bool hasRemainder_ = false;  // whether a digit above 0 was dropped
  std::array<char, kCapacity> digits_;
};

// The largest integer up to which a double holds every integer.
inline constexpr std::uint64_t kLargestExact = std::uint64_t{1} << 53;

// Sets `value` to the nearest double of coefficient * 10^exponent where one operation gives it (a
// coefficient up to kLargestExact, an exponent of at most 22 either way); false, and nothing set, elsewhere.
bool ExactProduct(std::uint64_t coefficient, std::int64_t exponent, double& value);

// A finite value as (negative ? -1 : 1) * coefficient * 10^exponent with a coefficient of at most 15
// digits that does not end in 0; zero is 0 * 10^0, never negative.
struct Significant {
  std::uint64_t coefficient;
  std::int32_t exponent;
  bool negative;
};

// Raises 6 on a value that is not finite.
Significant ToSignificant(double value);

}  // namespace gabarito

#endif  // GABARITO_PLATFORM_DECIMAL_DIGITS_H
