#include "gabarito/platform/date.h"

#include <gtest/gtest.h>

#include <chrono>
#include <limits>
#include <string>
#include <utility>

#include "expect.h"

namespace gabarito {
namespace {

using testing::PrintToString;

// A moment as the number yyyymmddhhmmss.
using Stamp = std::int64_t;

DateParts PartsIn(Stamp stamp) {
  const auto ending = [stamp](Stamp unit) { return static_cast<std::int32_t>(stamp / unit % 100); };
  const auto year = static_cast<std::int32_t>(stamp / 10'000'000'000);
  return {year, ending(100'000'000), ending(1'000'000), ending(10'000), ending(100), ending(1)};
}

const Date kNow = DateFromParts(PartsIn(20240305'102030));

TEST(Calendar, AgreesWithTheStandardLibraryOnEveryDay) {
  using namespace std::chrono;
  const sys_days dayZero = year(1899) / December / 30;
  sys_days day = year(100) / January / 1;
  for (year_month_day ymd = day; int(ymd.year()) < 10000; ymd = ++day) {
    const DateParts parts{int(ymd.year()), int(unsigned(ymd.month())), int(unsigned(ymd.day())), 0, 0, 0};
    ASSERT_EQ(DateFromParts(parts), (day - dayZero).count()) << int(ymd.year());
    ASSERT_EQ(PartsOf((day - dayZero).count()), parts) << int(ymd.year());
  }
}

TEST(Calendar, KeepsEverySecondOfADayOnBothSidesOfDayZero) {
  for (const std::int32_t year : {100, 1899, 9999}) {
    for (std::int32_t s = 0; s < 86400; ++s) {
      const DateParts parts{year, 2, 28, s / 3600, s / 60 % 60, s % 60};
      ASSERT_EQ(PartsOf(DateFromParts(parts)), parts) << year << " second " << s;
    }
  }
  EXPECT_EQ(PartsOf(-1.75), PartsIn(18991229'180000));
  EXPECT_EQ(PartsOf(-1.9999999), PartsIn(18991230'000000));
  EXPECT_EQ(PartsOf(1.9999999), PartsIn(19000101'000000));
}

TEST(Calendar, RefusesWhatLiesOutside) {
  using Limits = std::numeric_limits<double>;
  for (const Date date : {-657435.0, 2958465.9999999, Limits::infinity(), Limits::quiet_NaN(), -1e300}) {
    EXPECT_EQ(RaisedBy([&] { PartsOf(date); }), kOverflow) << date;
  }
  for (const Stamp stamp :
       {990101'000000, 100000101'000000, 20240001'000000, 20241301'000000, 20240100'000000, 19000229'000000,
        20240101'240000, 20240101'006000, 20240101'000060}) {
    EXPECT_EQ(RaisedBy([&] { DateFromParts(PartsIn(stamp)); }), kInvalidProcedureCall) << stamp;
  }
}

TEST(DateReader, ReadsTheFormsOfADateAndOfATime) {
  // clang-format off
  const std::pair<std::u16string_view, Stamp> rows[] = {
      {u"05/03/2024", 20240305'000000}, {u"5-3.24", 20240305'000000}, {u" 5  3  999 ", 9990305'000000},
      {u"31/12/29", 20291231'000000}, {u"1/1/30", 19300101'000000}, {u"5 / 3 /2024", 20240305'000000},
      {u"29/02/2024", 20240229'000000}, {u"1/1/4", 20040101'000000}, {u"2024-3-05", 20240305'000000},
      {u"5 de MARÇO de 2024", 20240305'000000}, {u"5 março DE 24", 20240305'000000},
      {u"31-dez. 1899", 18991231'000000}, {u"03/2024", 20240301'000000}, {u"3/24", 20240301'000000},
      {u"Fevereiro de 2023", 20230201'000000}, {u"12/03", 20031201'000000}, {u"12/03/", 20240312'000000},
      {u"12 03 10:30", 20031201'103000}, {u"29/2/ 7 : 5", 20240229'070500}, {u"12/03/T7:30", 20240312'073000},
      {u"0:00", 18991230'000000}, {u"1/1/1850 23:59:59", 18500101'235959},
      {u"2024-12-25T07:30:15", 20241225'073015}, {u" 7: ", 18991230'070000}, {u"7:5:9", 18991230'070509}};
  // clang-format on
  for (const auto& [text, stamp] : rows) {
    EXPECT_EQ(PartsOf(CDate(text, Regional(), kNow)), PartsIn(stamp)) << PrintToString(text);
  }
}

void ExpectRefused(std::u16string_view text) {
  Date date = -1;
  EXPECT_TRUE(!ReadDate(text, Regional(), kNow, date) && date == -1) << PrintToString(text.substr(0, 40));
}

TEST(DateReader, RefusesEveryOtherTextAndLeavesTheDateAlone) {
  // clang-format off
  for (const std::u16string_view text : {
      u"", u"  ", u"5", u"2024", u"março", u"5 março", u"01/3", u"25/12", u"2024/03", u"3 de 2024",
      u"02/13/2024", u"31/02/2024", u"29/02/1900", u"31/04/2024", u"0/1/2024", u"1/0/2024", u"1/1/99999",
      u"1/1/0099", u"1/1/000", u"012/1/2024", u"2024/03/", u"2024-25-12", u"03/", u"12//", u"//2024",
      u"/03/2024", u"12//2024", u"12/03//", u"1/2/3/4", u"5 de 3 de 2024", u"5de março de 2024",
      u"5 mar de T7:30", u"5 marc 2024", u"5 marco 2024", u":30", u"7", u"7::30", u"7:30:", u"7:030",
      u"24:00", u"7:60", u"7:30:60", u"7:30 12/03/2024", u"12/03/7:30", u"12/03/2024 7", u"12/03/2024T",
      u"12/03/2024t7:30", u"12/03/2024x", u"12/03/2024\t", u"١٢/03/2024", u"\xD800/03/2024",
      u"12/03/2024\xDC00"})
    ExpectRefused(text);
  // clang-format on
  ExpectRefused(std::u16string_view(u"12/03/2024\0", 11));
  for (const char16_t c : u"1M/ :") ExpectRefused(u"12/03/" + std::u16string(1'000'000, c) + u"x");
  EXPECT_EQ(RaisedBy([] { CDate(u"31/02/2024", Regional(), kNow); }), kTypeMismatch);
}

TEST(DateReader, TakesShortYearsFromTheRegionAndTheMissingOneFromNow) {
  Regional regional;
  regional.lastTwoDigitYear = 1999;
  EXPECT_EQ(Year(CDate(u"1/1/00", regional, kNow)), 1900);
  for (const std::int32_t last : {50, -2147483647 - 1, 2147483647}) {
    regional.lastTwoDigitYear = last;
    EXPECT_FALSE(IsDate(u"1/1/51", regional, kNow)) << last;
  }
  EXPECT_FALSE(IsDate(u"29/02/", Regional(), DateFromParts(PartsIn(20230101'000000))));
  EXPECT_FALSE(IsDate(u"12/03/", Regional(), 1e300));
}

}  // namespace
}  // namespace gabarito
