// Dates and times: the platform's number for a moment, the calendar and the date reader.
//
// A moment is a count of days since 30 December 1899 with the time of day as its fraction; the fraction of
// a moment before that day counts away from zero, as its whole days do: -1.75 is 29 December, 18:00. The
// calendar is the proleptic Gregorian one, years 100 to 9999.
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

// Whether the calendar holds it: year 100 to 9999, a day that the month has, a time up to 23:59:59.
bool IsInCalendar(const DateParts& parts);
// The same for a number, taken to the nearest second; infinities and what is no number lie outside.
bool IsInCalendar(Date date);

// Raises 5 when a part lies outside the calendar.
Date DateFromParts(const DateParts& parts);

// The parts, to the nearest second. Raises 6 when `date` lies outside the calendar.
DateParts PartsOf(Date date);

// One part, as PartsOf gives it.
std::int32_t Day(Date date);
std::int32_t Month(Date date);
std::int32_t Year(Date date);
std::int32_t Hour(Date date);
std::int32_t Minute(Date date);

// Reads `text` as a date, a time or both; false, with `date` untouched, when it is none.
//
//   25/12/2024  25-12-24  25.12.2024  25 12 2024   day, month, year; marks may differ
//   2024-12-25                                     four digits first: year, month, day
//   5 de março de 2024  5 MAR 2024  5/mar/24       month names, full or three letters, in any case
//   03/2024  3/24  março de 2024                   month and year: the first of that month
//   12/03/                                         the present year, which is taken from `now`
//   7:30  07:30:15  7:                             hours and minutes, seconds; on day 0
//   12/03/2024 7:30  2024-03-12T07:30              a date, then blanks or "T", then a time
//
// Blanks (character 32) are skipped at both ends and around a mark. A year of one or two digits lies in the
// hundred years that end with the region's lastTwoDigitYear; month and year take two digits or more. No
// piece is ever swapped to make a date fit. Never raises, also where `now` lies outside the calendar; no
// allocation; linear in the length of the text.
bool ReadDate(std::u16string_view text, const Regional& regional, Date now, Date& date);

// Whether ReadDate reads it.
bool IsDate(std::u16string_view text, const Regional& regional, Date now);

// What ReadDate reads. Raises 13 on a text that IsDate refuses.
Date CDate(std::u16string_view text, const Regional& regional, Date now);

}  // namespace gabarito

#endif  // GABARITO_PLATFORM_DATE_H
