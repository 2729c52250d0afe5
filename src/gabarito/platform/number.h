// The run-time's number functions: reading a number from a text, writing one, exact decimal scaling.
#ifndef GABARITO_PLATFORM_NUMBER_H
#define GABARITO_PLATFORM_NUMBER_H

#include <cstdint>
#include <string>
#include <string_view>

#include "gabarito/platform/regional.h"

namespace gabarito {

// The longest numeric prefix of `text`, 0 if there is none. The decimal mark is the point, whatever the
// region. Blanks, tabs and line feeds are skipped wherever they stand. A sign, an exponent with E or D,
// and `&H` (hexadecimal) and `&O` or `&` (octal) integers are understood; up to four hexadecimal digits
// read as a signed 16-bit value, up to eight as a signed 32-bit one. Never fails: a value beyond the
// range of a double is read as the largest one.
double Val(std::u16string_view text);

// Whether the whole of `text` is a number as the region writes it: blanks at the ends, one sign before or
// behind, parentheses for a negative number, the currency sign before or behind, the thousands separator
// anywhere among the digits of the integer part, the decimal mark, an exponent, or `&H`/`&O`. The empty
// text is none.
bool IsNumeric(std::u16string_view text, const Regional& regional);

// The number of a text that IsNumeric accepts. Raises 13 on any other text, 6 beyond a double's range.
double ToDouble(std::u16string_view text, const Regional& regional);

// The shortest decimal text that gives the value back with at most 15 significant digits; exponent form
// ("1E+16", "1,5E-07") from 1E+15 upwards and below 1E-4 as soon as the plain form would need more than
// 15 digits. `decimal` is the mark to write. No leading blank; zero is "0".
std::u16string NumberToText(double value, std::u16string_view decimal = u".");

// `value` times `factor` in 96-bit scaled decimal arithmetic: both enter with their 15 significant digits,
// the product is exact (rounded half to even only where 96 bits or 28 decimals cannot hold it), and it
// comes back as the nearest double. Raises 6 beyond about 7.9E+28.
double DecimalProduct(double value, double factor);

// Rounds half to even, as conversions to an integer do. Raises 6 outside the type.
std::int16_t ToInt16(double value);
std::int32_t ToInt32(double value);

}  // namespace gabarito

#endif  // GABARITO_PLATFORM_NUMBER_H
