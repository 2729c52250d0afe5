#include "gabarito/platform/date.h"

#include <algorithm>
#include <cmath>

#include "gabarito/platform/erro.h"

namespace gabarito {
namespace {

constexpr std::int32_t kFirstYear = 100;
constexpr std::int32_t kLastYear = 9999;
constexpr std::int32_t kSecondsOfDay = 24 * 60 * 60;
constexpr std::int32_t kDaysOf400Years = 146097;
constexpr std::int32_t kDaysOfCentury = 36524;  // one that does not begin with a leap day
constexpr std::int32_t kDaysOf4Years = 1461;

// The calendar counts from 1 March, so that a leap day is the last day of its year and the months run
// 31, 30, 31, 30, 31 from March and again from August: five months are 153 days.
constexpr std::int32_t DaysBeforeMonth(std::int32_t monthsSinceMarch) {
  return (153 * monthsSinceMarch + 2) / 5;
}

// Days since 1 March of the year 0.
constexpr std::int32_t DaysSinceYear0(std::int32_t year, std::int32_t month, std::int32_t day) {
  const bool isOfYearBefore = month <= 2;
  const std::int32_t y = isOfYearBefore ? year - 1 : year;
  return y * 365 + y / 4 - y / 100 + y / 400 + DaysBeforeMonth(isOfYearBefore ? month + 9 : month - 3) + day -
         1;
}

constexpr std::int32_t kDayZero = DaysSinceYear0(1899, 12, 30);
constexpr std::int32_t kFirstDay = DaysSinceYear0(kFirstYear, 1, 1) - kDayZero;
constexpr std::int32_t kLastDay = DaysSinceYear0(kLastYear, 12, 31) - kDayZero;

std::int32_t DaysOfMonth(std::int32_t year, std::int32_t month) {
  constexpr std::int32_t kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  const bool isLeap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
  return month == 2 && isLeap ? 29 : kDays[month - 1];
}

struct DayAndSecond {
  std::int32_t day, second;
};

// False when `date` lies outside the calendar.
bool Split(Date date, DayAndSecond& split) {
  // Both ends are open, as the first day reaches down to -657434.99 (its fraction counts away from zero) and
  // the last one up to 2958465.99. Written so that what is no number fails it, before it is made an integer.
  if (!(date > kFirstDay - 1 && date < kLastDay + 1)) return false;
  const double day = std::trunc(date);
  split.day = static_cast<std::int32_t>(day);
  split.second = static_cast<std::int32_t>(std::lround(std::fabs(date - day) * kSecondsOfDay));
  if (split.second == kSecondsOfDay) {
    // The last half second of a day belongs to the next one, before day 0 too.
    split.second = 0;
    ++split.day;
  }
  return split.day <= kLastDay;
}

}  // namespace

bool IsInCalendar(const DateParts& parts) {
  const auto isBetween = [](std::int32_t value, std::int32_t first, std::int32_t last) {
    return value >= first && value <= last;
  };
  return isBetween(parts.year, kFirstYear, kLastYear) && isBetween(parts.month, 1, 12) &&
         isBetween(parts.day, 1, DaysOfMonth(parts.year, parts.month)) && isBetween(parts.hour, 0, 23) &&
         isBetween(parts.minute, 0, 59) && isBetween(parts.second, 0, 59);
}

bool IsInCalendar(Date date) {
  DayAndSecond split;
  return Split(date, split);
}

Date DateFromParts(const DateParts& parts) {
  if (!IsInCalendar(parts)) Fail(kInvalidProcedureCall);
  const std::int32_t day = DaysSinceYear0(parts.year, parts.month, parts.day) - kDayZero;
  const Date time = static_cast<Date>((parts.hour * 60 + parts.minute) * 60 + parts.second) / kSecondsOfDay;
  return day < 0 ? day - time : day + time;
}

// The year is taken off in blocks of 400, 100, 4 and 1 years, each counted from 1 March.
DateParts PartsOf(Date date) {
  DayAndSecond split;
  if (!Split(date, split)) Fail(kOverflow);
  std::int32_t rest = split.day + kDayZero;
  std::int32_t year = rest / kDaysOf400Years * 400;
  rest %= kDaysOf400Years;
  // The last of four centuries and the last of four years have one day more: the leap day at their end.
  const std::int32_t century = std::min(rest / kDaysOfCentury, 3);
  rest -= century * kDaysOfCentury;
  year += century * 100 + rest / kDaysOf4Years * 4;
  rest %= kDaysOf4Years;
  const std::int32_t yearOfFour = std::min(rest / 365, 3);
  rest -= yearOfFour * 365;
  year += yearOfFour;
  const std::int32_t month = (5 * rest + 2) / 153;
  const bool isOfNextYear = month >= 10;
  return {year + (isOfNextYear ? 1 : 0),
          isOfNextYear ? month - 9 : month + 3,
          rest - DaysBeforeMonth(month) + 1,
          split.second / 3600,
          split.second / 60 % 60,
          split.second % 60};
}

std::int32_t Day(Date date) { return PartsOf(date).day; }
std::int32_t Month(Date date) { return PartsOf(date).month; }
std::int32_t Year(Date date) { return PartsOf(date).year; }
std::int32_t Hour(Date date) { return PartsOf(date).hour; }
std::int32_t Minute(Date date) { return PartsOf(date).minute; }

}  // namespace gabarito
