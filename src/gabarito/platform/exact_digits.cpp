#include "gabarito/platform/exact_digits.h"

#include <array>
#include <cstddef>
#include <cstdio>
#include <cstdlib>

namespace gabarito {

double NearestDouble(std::string_view digits, std::int32_t exponent) {
  constexpr std::size_t kExponentRoom = 16;
  std::array<char, 769 + kExponentRoom> text;
  // Digits and an exponent, without a decimal mark: no locale reads that otherwise.
  char* const end = text.data() + digits.copy(text.data(), text.size() - kExponentRoom);
  std::snprintf(end, kExponentRoom, "e%d", static_cast<int>(exponent));
  return std::strtod(text.data(), nullptr);
}

// Whatever mark the locale of the process puts behind the first digit is passed over.
Significant Rounded(double magnitude, std::int32_t digits) {
  std::array<char, 40> text;
  std::snprintf(text.data(), text.size(), "%.*e", static_cast<int>(digits - 1), magnitude);
  Significant number{0, 0, false};
  const char* at = text.data();
  for (; *at != 'e'; ++at) {
    if (*at < '0' || *at > '9') continue;
    number.coefficient = number.coefficient * 10 + static_cast<std::uint64_t>(*at - '0');
  }
  number.exponent = static_cast<std::int32_t>(std::strtol(at + 1, nullptr, 10)) - (digits - 1);
  return number;
}

}  // namespace gabarito
