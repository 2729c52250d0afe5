#include "gabarito/platform/date.h"

#include <gtest/gtest.h>

#include <chrono>
#include <limits>
#include <string>

#include "gabarito/platform/erro.h"

namespace gabarito {
namespace {

const Date kNow = DateFromParts({2024, 3, 5, 10, 20, 30});

template <class Step>
std::int32_t NumberRaisedBy(Step step) {
  try {
    step();
  } catch (const Erro& erro) {
    return erro.Number();
  }
  return 0;
}

TEST(Calendar, AgreesWithTheStandardLibraryOnEveryDay) {
  using std::chrono::sys_days;
  using std::chrono::year_month_day;
  const sys_days dayZero =
      year_month_day(std::chrono::year(1899), std::chrono::month(12), std::chrono::day(30));
  sys_days day = year_month_day(std::chrono::year(100), std::chrono::month(1), std::chrono::day(1));
  for (year_month_day ymd = day; int(ymd.year()) < 10000; day += std::chrono::days(1), ymd = day) {
    const DateParts parts{int(ymd.year()), int(unsigned(ymd.month())), int(unsigned(ymd.day())), 0, 0, 0};
    ASSERT_EQ(DateFromParts(parts), (day - dayZero).count()) << int(ymd.year());
    ASSERT_EQ(PartsOf((day - dayZero).count()), parts) << int(ymd.year());
  }
}

TEST(Calendar, KeepsEverySecondOfADayOnBothSidesOfDayZero) {
  for (const std::int32_t year : {100, 1899, 1900, 9999}) {
    for (std::int32_t s = 0; s < 86400; ++s) {
      const DateParts parts{year, 2, 28, s / 3600, s / 60 % 60, s % 60};
      ASSERT_EQ(PartsOf(DateFromParts(parts)), parts) << year << " second " << s;
    }
  }
  EXPECT_EQ(PartsOf(-1.75), (DateParts{1899, 12, 29, 18, 0, 0}));
  EXPECT_EQ(PartsOf(-1.9999999), (DateParts{1899, 12, 30, 0, 0, 0}));
  EXPECT_EQ(PartsOf(1.9999999), (DateParts{1900, 1, 1, 0, 0, 0}));
}

TEST(Calendar, RefusesWhatLiesOutside) {
  using Limits = std::numeric_limits<double>;
  for (const Date date :
       {-657435.0, 2958466.0, 2958465.9999999, Limits::infinity(), Limits::quiet_NaN(), -1e300}) {
    EXPECT_EQ(NumberRaisedBy([&] { PartsOf(date); }), kOverflow) << date;
  }
  const DateParts rows[] = {{99, 1, 1, 0, 0, 0},    {10000, 1, 1, 0, 0, 0}, {2024, 0, 1, 0, 0, 0},
                            {2024, 13, 1, 0, 0, 0}, {2024, 1, 0, 0, 0, 0},  {1900, 2, 29, 0, 0, 0},
                            {2024, 1, 1, 24, 0, 0}, {2024, 1, 1, 0, 60, 0}, {2024, 1, 1, 0, 0, -1}};
  for (const DateParts& row : rows) {
    EXPECT_EQ(NumberRaisedBy([&] { DateFromParts(row); }), kInvalidProcedureCall)
        << row.year << '-' << row.month;
  }
}

TEST(DateReader, ReadsTheFormsOfADateAndOfATime) {
  const struct {
    std::u16string_view text;
    DateParts parts;
  } rows[] = {
      {u"05/03/2024", {2024, 3, 5, 0, 0, 0}},
      {u"5-3.24", {2024, 3, 5, 0, 0, 0}},
      {u"  5   3   999 ", {999, 3, 5, 0, 0, 0}},
      {u"5 / 3 /2024", {2024, 3, 5, 0, 0, 0}},
      {u"31/12/29", {2029, 12, 31, 0, 0, 0}},
      {u"1/1/30", {1930, 1, 1, 0, 0, 0}},
      {u"1/1/4", {2004, 1, 1, 0, 0, 0}},
      {u"29/02/2024", {2024, 2, 29, 0, 0, 0}},
      {u"2024-3-05", {2024, 3, 5, 0, 0, 0}},
      {u"2024-12-25T07:30:15", {2024, 12, 25, 7, 30, 15}},
      {u"5 de MARÇO de 2024", {2024, 3, 5, 0, 0, 0}},
      {u"5 março DE 24 7:", {2024, 3, 5, 7, 0, 0}},
      {u"31-dez. 1899", {1899, 12, 31, 0, 0, 0}},
      {u"Fevereiro de 2023", {2023, 2, 1, 0, 0, 0}},
      {u"03/2024", {2024, 3, 1, 0, 0, 0}},
      {u"3/24", {2024, 3, 1, 0, 0, 0}},
      {u"12/03", {2003, 12, 1, 0, 0, 0}},
      {u"12 03 10:30", {2003, 12, 1, 10, 30, 0}},
      {u"12/03/", {2024, 3, 12, 0, 0, 0}},
      {u"29/2/ 7 : 5", {2024, 2, 29, 7, 5, 0}},
      {u"12/03/T7:30", {2024, 3, 12, 7, 30, 0}},
      {u"1/1/1850 23:59:59", {1850, 1, 1, 23, 59, 59}},
      {u"0:00", {1899, 12, 30, 0, 0, 0}},
      {u" 7: ", {1899, 12, 30, 7, 0, 0}},
      {u"7:5:9", {1899, 12, 30, 7, 5, 9}},
  };
  for (const auto& row : rows) {
    Date date = -1;
    ASSERT_TRUE(ReadDate(row.text, Regional(), kNow, date)) << testing::PrintToString(row.text);
    EXPECT_EQ(PartsOf(date), row.parts) << testing::PrintToString(row.text);
  }
}

TEST(DateReader, RefusesEveryOtherTextAndLeavesTheDateAlone) {
  const std::u16string longest(1'000'000, u'1');
  const std::u16string rows[] = {u"",
                                 u"   ",
                                 u"5",
                                 u"2024",
                                 u"março",
                                 u"5 março",
                                 u"01/3",
                                 u"25/12",
                                 u"2024/03",
                                 u"3 de 2024",
                                 u"02/13/2024",
                                 u"31/02/2024",
                                 u"29/02/1900",
                                 u"31/04/2024",
                                 u"0/1/2024",
                                 u"1/0/2024",
                                 u"1/1/99999",
                                 u"1/1/0099",
                                 u"1/1/000",
                                 u"012/1/2024",
                                 u"2024/03/",
                                 u"2024-25-12",
                                 u"03/",
                                 u"12//",
                                 u"//2024",
                                 u"/03/2024",
                                 u"12//2024",
                                 u"12/03//",
                                 u"1/2/3/4",
                                 u"5 de 3 de 2024",
                                 u"5de março de 2024",
                                 u"5 mar de T7:30",
                                 u"5 marc 2024",
                                 u"5 marco 2024",
                                 u":30",
                                 u"7",
                                 u"7::30",
                                 u"7:30:",
                                 u"7:030",
                                 u"24:00",
                                 u"7:60",
                                 u"7:30:60",
                                 u"7:30 12/03/2024",
                                 u"12/03/7:30",
                                 u"12/03/2024 7",
                                 u"12/03/2024T",
                                 u"12/03/2024t7:30",
                                 u"12/03/2024x",
                                 u"12/03/2024\t",
                                 u"١٢/03/2024",
                                 std::u16string(u"12/03/2024\0", 11),
                                 std::u16string(1, u'\0'),
                                 std::u16string(1, 0xD800) + u"/03/2024",
                                 u"12/03/" + longest,
                                 longest,
                                 std::u16string(1'000'000, u'M'),
                                 u"1" + std::u16string(1'000'000, u' ') + u"x",
                                 std::u16string(1'000'000, u'/')};
  for (const std::u16string& row : rows) {
    Date date = -1;
    EXPECT_FALSE(ReadDate(row, Regional(), kNow, date)) << testing::PrintToString(row.substr(0, 40));
    EXPECT_EQ(date, -1) << testing::PrintToString(row.substr(0, 40));
  }
  EXPECT_EQ(NumberRaisedBy([] { CDate(u"31/02/2024", Regional(), kNow); }), kTypeMismatch);
}

TEST(DateReader, TakesShortYearsFromTheRegionAndTheMissingOneFromNow) {
  Regional regional;
  regional.lastTwoDigitYear = 1999;
  EXPECT_EQ(Year(CDate(u"1/1/00", regional, kNow)), 1900);
  for (const std::int32_t last : {50, -2147483647 - 1, 2147483647}) {
    regional.lastTwoDigitYear = last;
    EXPECT_FALSE(IsDate(u"1/1/51", regional, kNow)) << last;
  }
  EXPECT_FALSE(IsDate(u"29/02/", Regional(), DateFromParts({2023, 1, 1, 0, 0, 0})));
  EXPECT_FALSE(IsDate(u"12/03/", Regional(), 1e300));
}

}  // namespace
}  // namespace gabarito
