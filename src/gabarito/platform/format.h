// Format: a number or a moment put into text by a pattern.
#ifndef GABARITO_PLATFORM_FORMAT_H
#define GABARITO_PLATFORM_FORMAT_H

#include <string>
#include <string_view>

#include "gabarito/platform/date.h"
#include "gabarito/platform/regional.h"

namespace gabarito {

// Patterns of zeros ("00", "0000", "0000000000"): the number rounded half away from zero, with leading
// zeros up to the length of the pattern, a minus sign before a result below 0. "#,#": the same integer
// grouped by thousands with the region's separator, the empty text for 0. At most 15 significant digits,
// further ones are zeros. Raises 5 on a pattern that is none of these, 6 on a value that is not finite.
std::u16string FormatNumber(double value, std::u16string_view pattern, const Regional& regional);

// The same for a text that ReadDouble of number.h reads; any other comes back unchanged.
std::u16string FormatNumber(std::u16string_view text, std::u16string_view pattern, const Regional& regional);

// A pattern is made of DD, MM, YYYY, hh and nn ("DD/MM/YYYY", "hh:nn", "hh"): two digits each, YYYY four.
// "/" and ":" stand for themselves; case counts. Raises 5 on anything else in the pattern and 6 on a moment
// outside the calendar.
std::u16string FormatDate(Date date, std::u16string_view pattern);

// The same for a text that ReadDate of date.h reads; any other comes back unchanged.
std::u16string FormatDate(std::u16string_view text, std::u16string_view pattern, const Regional& regional,
                          Date now);

}  // namespace gabarito

#endif  // GABARITO_PLATFORM_FORMAT_H
