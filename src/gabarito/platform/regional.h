// The regional settings of the system that numbers and dates are read and written by.
#ifndef GABARITO_PLATFORM_REGIONAL_H
#define GABARITO_PLATFORM_REGIONAL_H

#include <cstdint>
#include <string>

namespace gabarito {

// A plain value; the default is Brazilian. Dates are always read in the order day, month, year.
struct Regional {
  std::u16string decimal = u",";         // decimal mark; one character in every use, empty allowed
  std::u16string thousands = u".";       // thousands separator
  std::u16string currency = u"R$";       // currency sign that a number may carry
  std::int32_t lastTwoDigitYear = 2029;  // a year of one or two digits lies in the 100 years that end here

  friend bool operator==(const Regional&, const Regional&) = default;
};

}  // namespace gabarito

#endif  // GABARITO_PLATFORM_REGIONAL_H
