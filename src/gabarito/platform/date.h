// Dates and times: the platform's number for a moment, the calendar and the date reader.
//
// A moment is a count of days since 30 December 1899 with the time of day as its fraction; the fraction of
// a moment before that day counts away from zero, as its whole days do. The calendar is the proleptic
// Gregorian one, years 100 to 9999.
#ifndef GABARITO_PLATFORM_DATE_H
#define GABARITO_PLATFORM_DATE_H

#include <cstdint>
#include <string_view>

#include "gabarito/platform/regional.h"

namespace gabarito {

using Date = double;

struct DateParts {
  std::int32_t year, month, day, hour, minute, second;
  friend bool operator==(const DateParts&, const DateParts&) = default;
};

// Raises 5 when a part lies outside the calendar (year 100 to 9999, a day that the month has, a time up to
// 23:59:59).
Date DateFromParts(const DateParts& parts);

// The parts, to the nearest second. Raises 6 outside years 100 to 9999.
DateParts PartsOf(Date date);

std::int32_t Day(Date date);
std::int32_t Month(Date date);
std::int32_t Year(Date date);
std::int32_t Hour(Date date);
std::int32_t Minute(Date date);

// Reads `text` as a date, a time or both; false, with `date` untouched, when it is none. `now` gives the
// present year for a text that leaves it out (12/03/). A time alone lies on day 0. Never raises; no
// allocation; linear in the length of the text.
bool ReadDate(std::u16string_view text, const Regional& regional, Date now, Date& date);

bool IsDate(std::u16string_view text, const Regional& regional, Date now);

// Raises 13 on a text that IsDate refuses.
Date CDate(std::u16string_view text, const Regional& regional, Date now);

}  // namespace gabarito

#endif  // GABARITO_PLATFORM_DATE_H
