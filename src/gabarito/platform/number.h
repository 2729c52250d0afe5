// The run-time's number functions: reading a number from a text, writing one, exact decimal scaling.
#ifndef GABARITO_PLATFORM_NUMBER_H
#define GABARITO_PLATFORM_NUMBER_H

#include <cstdint>
#include <string>
#include <string_view>

#include "gabarito/platform/regional.h"

namespace gabarito {

// The longest numeric prefix of `text`, 0 if there is none. The decimal mark is the point, whatever the
// region. Blanks, tabs and line feeds are skipped wherever they stand. Understood are one sign, an exponent
// with E or D, and without a sign the integers `&H` (hexadecimal) and `&O` or `&` (octal): a value up to
// &HFFFF is a signed 16-bit one (&HFFFF is -1), a value up to &HFFFFFFFF a signed 32-bit one, and a digit
// that would lead beyond ends the number. Never fails: a value beyond the range of a double is read as the
// largest one, one too small as 0. No allocation; linear in the length of the text.
double Val(std::u16string_view text);

// Whether the whole of `text` is a number as the region writes it: digits, with the thousands separator
// anywhere in the integer part behind its first digit, one decimal mark and an exponent (E or D). Before
// and behind them, in any order, may stand blanks, tabs and line feeds, the currency sign once, and either
// one sign or the parentheses of a negative number. So may `&H`, `&O` and `&` integers as Val reads them,
// with blanks only. The empty text is none; how large the number is does not count. No allocation; linear
// in the length of the text.
bool IsNumeric(std::u16string_view text, const Regional& regional);

// Reads a text that IsNumeric accepts; false, with `value` untouched, on any other text and on a number
// beyond the range of a double. Never raises.
bool ReadDouble(std::u16string_view text, const Regional& regional, double& value);

// What ReadDouble reads. Raises 13 on a text that IsNumeric refuses, 6 beyond the range of a double.
double ToDouble(std::u16string_view text, const Regional& regional);

// The value rounded to 15 significant digits, without the zeros at the end of its fraction. From 1E+15
// upwards and below 0.0001, as rounded, in exponent form ("1E+16", "1,5E-07"), else plain ("0,0001").
// `decimal` is the mark to write. No leading blank; zero of either sign is "0". Raises 6 on a value that is
// not finite.
std::u16string NumberToText(double value, std::u16string_view decimal = u".");

// `value` times `factor` in 96-bit scaled decimal arithmetic: both enter with their 15 significant digits
// and at most 28 decimals, the product is exact (rounded once, half to even, only where 96 bits or 28
// decimals cannot hold it), and it comes back as the nearest double. Raises 6 when a factor or the product
// lies beyond 79228162514264337593543950335.
double DecimalProduct(double value, double factor);

// Rounds half to even, as conversions to an integer do. Raises 6 outside the type.
std::int16_t ToInt16(double value);
std::int32_t ToInt32(double value);

}  // namespace gabarito

#endif  // GABARITO_PLATFORM_NUMBER_H
