// The conversions between numbers and decimal digits, done by the page: exact as well, and without the
// run-time library's own arithmetic of long numbers, a tenth of the module. The linker finds these first.
#include "gabarito/platform/exact_digits.h"

#define GABARITO_IMPORT(name) __attribute__((import_module("env"), import_name(#name)))

extern "C" {

// The double nearest to the digits times 10 to the power `exponent`.
GABARITO_IMPORT(gb_number) double gb_number(const char* digits, std::size_t size, std::int32_t exponent);
// `value` with so many significant digits, half to even: a whole number, and the power of ten that belongs to
// it.
GABARITO_IMPORT(gb_digits) double gb_digits(double value, std::int32_t digits, std::int32_t* exponent);

}  // extern "C"

namespace gabarito {

double NearestDouble(std::string_view digits, std::int32_t exponent) {
  return gb_number(digits.data(), digits.size(), exponent);
}

Significant Rounded(double magnitude, std::int32_t digits) {
  std::int32_t exponent = 0;
  const double coefficient = gb_digits(magnitude, digits, &exponent);
  return {static_cast<std::uint64_t>(coefficient), exponent, false};
}

}  // namespace gabarito
