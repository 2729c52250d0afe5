// The two conversions between doubles and decimal digits that take arithmetic of long numbers. The standard
// library does it; a program that has somebody else for it links its own exact_digits instead
// (cmake/wasm/numbers.cpp).
#ifndef GABARITO_PLATFORM_EXACT_DIGITS_H
#define GABARITO_PLATFORM_EXACT_DIGITS_H

#include <cstdint>
#include <string_view>

#include "gabarito/platform/decimal_digits.h"

namespace gabarito {

// The double nearest to `digits`, at most 769 of them, times 10 to the power `exponent`.
double NearestDouble(std::string_view digits, std::int32_t exponent);

// `magnitude`, a finite value above 0, rounded to `digits` significant ones (at most 15), half to even.
Significant Rounded(double magnitude, std::int32_t digits);

}  // namespace gabarito

#endif  // GABARITO_PLATFORM_EXACT_DIGITS_H
