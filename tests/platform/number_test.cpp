#include "gabarito/platform/number.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdio>
#include <limits>
#include <random>
#include <string>

#include "expect.h"

namespace gabarito {
namespace {

using View = std::u16string_view;
using Limits = std::numeric_limits<double>;

const Regional kBrazil;

using NumberRow = std::pair<View, double>;

// A finite double of any magnitude.
double NextValue(std::mt19937_64& random) {
  for (;;) {
    const auto value = std::bit_cast<double>(random());
    if (std::isfinite(value)) return value;
  }
}

std::u16string Printed(const char* format, double value) {
  char buffer[64];
  const int size = std::snprintf(buffer, sizeof buffer, format, value);
  return std::u16string(buffer, buffer + size);
}

// clang-format off
TEST(Val, ReadsTheLongestNumericPrefix) {
  const NumberRow rows[] = {
      {u"123", 123}, {u" 1 2\t3\n", 123}, {u"12abc", 12}, {u"1.5.2", 1.5}, {u"1,5", 1}, {u".5", .5},
      {u"-.5", -.5}, {u"+ 7", 7}, {u"1e5", 1e5}, {u"1d5", 1e5}, {u"1E-2x", .01}, {u"1e", 1}, {u"1e+", 1},
      {u"1 e 2", 100}, {u"5.", 5}, {u"&HFF", 255}, {u"&hFFFF", -1}, {u"&H10000", 65536}, {u"&O17", 15},
      {u"&17", 15}, {u"& H 1 F", 31}, {u"007", 7}, {u"1\u00A02", 1}, {View(u"1\0002", 3), 1},
      {u"&HFFFFFFFF", -1}, {u"&H123456789", 0x12345678}, {u"-1e99999999999999999999", -Limits::max()}};
  for (const auto& [text, value] : rows) EXPECT_EQ(Val(text), value) << testing::PrintToString(text);
}

TEST(Val, GivesZeroWhereThereIsNoNumber) {
  for (const View text : {u"", u" ", u"abc", u"--1", u"-", u".", u"e5", u"&", u"&H", u"&HG", u"&O8", u"-&HFF",
                          u"\u0661", u"-0", u"1e-99999999999999999999"})
    EXPECT_TRUE(Val(text) == 0 && !std::signbit(Val(text))) << testing::PrintToString(text);
}
// clang-format on

TEST(Val, RoundsOnceHoweverManyDigitsThereAre) {
  const std::u16string halfway = u"1.00000000000000011102230246251565404236316680908203125";
  EXPECT_EQ(Val(halfway), 1);
  EXPECT_EQ(Val(halfway + std::u16string(1'000'000, u'0') + u"1"), std::nextafter(1.0, 2.0));
  EXPECT_EQ(Val(std::u16string(1'000'000, u'0') + u"25"), 25);
  EXPECT_EQ(Val(u"0." + std::u16string(1'000'000, u'0') + u"25e1000001"), 2.5);
  EXPECT_EQ(Val(u"4" + std::u16string(1'000'000, u'0') + u"1e-1000001"), 4);
  std::mt19937_64 random(1);
  for (int i = 0; i < 20'000; ++i) {
    const double value = NextValue(random);
    ASSERT_EQ(Val(Printed("%.17g", value)), value);
  }
}

// clang-format off
TEST(ToDouble, ReadsANumberAsTheRegionWritesIt) {
  const NumberRow rows[] = {
      {u"1.234,5", 1234.5}, {u"R$ 5", 5}, {u"5 R$", 5}, {u"-R$ 5,5", -5.5}, {u"R$-5", -5}, {u"(5)", -5},
      {u" ( R$ 5 ) ", -5}, {u"-5", -5}, {u"5-", -5}, {u"+5", 5}, {u"1E5", 1e5}, {u"1,5d-1", .15},
      {u"&HFF", 255}, {u" &O17 ", 15}, {u",5", .5}, {u"5,", 5}, {u"1.2.3", 123}, {u"1.", 1}, {u"-0", 0},
      {u"1234567890123456789012345", 1234567890123456789012345.0}};
  for (const auto& [text, value] : rows) {
    EXPECT_TRUE(IsNumeric(text, kBrazil)) << testing::PrintToString(text);
    EXPECT_EQ(ToDouble(text, kBrazil), value) << testing::PrintToString(text);
  }
}

TEST(ToDouble, RefusesWhatIsNoNumber) {
  for (const View text : std::initializer_list<View>{
      u"", u" ", u"1,2,3", u"--1", u"5 5", u"-5-", u"(5", u"5)", u"(-5)", u"((5))", u".5", u",", u"-", u"R$",
      u"1E", u"R$ 5 R$", u"1,2.3", u"5a", u"&H", u"-&HFF", u"&H1G", u"1 E5", u"&H123456789", u"\u00A05",
      {u"5\0", 2}}) {
    EXPECT_FALSE(IsNumeric(text, kBrazil)) << testing::PrintToString(text);
    EXPECT_EQ(RaisedBy([&] { ToDouble(text, kBrazil); }), kTypeMismatch) << testing::PrintToString(text);
  }
}
// clang-format on

TEST(ToDouble, FollowsTheMarksOfTheRegion) {
  const Regional english{u".", u",", u"$", 2029}, unmarked{u"", u"", u"", 2029};
  EXPECT_EQ(ToDouble(u"$1,234.5", english), 1234.5);
  EXPECT_EQ(ToDouble(u"12", unmarked), 12);
  EXPECT_FALSE(IsNumeric(u"R$ 5", english) || IsNumeric(u"1,2", unmarked));
}

TEST(ToDouble, OverflowsBeyondADouble) {
  double value = 7;
  EXPECT_TRUE(IsNumeric(u"1E400", kBrazil));
  EXPECT_EQ(RaisedBy([] { ToDouble(u"-1E400", kBrazil); }), kOverflow);
  EXPECT_TRUE(!ReadDouble(u"1E400", kBrazil, value) && value == 7);
}

TEST(NumberToText, WritesFifteenDigitsAtMost) {
  ExpectEach<std::u16string>({{NumberToText(0.1 + 0.2, u","), u"0,3"},
                              {NumberToText(-1.5e-7, u","), u"-1,5E-07"},
                              {NumberToText(-0.0), u"0"}});
  EXPECT_EQ(RaisedBy([] { NumberToText(Limits::infinity()); }), kOverflow);
  std::mt19937_64 random(2);
  std::uniform_real_distribution<double> exponent(-6, 18);
  for (int i = 0; i < 20'000; ++i) {
    const double moderate = std::pow(10, exponent(random));
    for (const double value : {NextValue(random), moderate, std::round(moderate), std::round(moderate) / 100})
      ASSERT_EQ(NumberToText(value), Printed("%.15G", value));
  }
}

// clang-format off
TEST(DecimalProduct, IsExactInDecimals) {
  const struct { double value, factor, product; } rows[] = {
      {1.005, 100, 100.5}, {-2.675, 100, -267.5}, {.1 + .2, 10, 3}, {1e28, 7, 7e28}, {1e-28, 1e28, 1},
      {1e-300, 1e20, 0}, {1.5e-14, 1e-14, 2e-28}, {2.5e-14, 1e-14, 2e-28},
      {792281625142643, 1e14, 7.92281625142643e28}, {12345.6789012345, 98765.4321098765, 1219326311.3702106},
      {0.123456789012345, 0.123456789012345, 0.01524157875323867},
      {99999999999999.9, 99999999999999.9, 9.99999999999998e27}};
  for (const auto& row : rows) EXPECT_EQ(DecimalProduct(row.value, row.factor), row.product) << row.value;
}

TEST(DecimalProduct, OverflowsBeyondNinetySixBits) {
  for (const auto& row : std::initializer_list<std::pair<double, double>>{
      {792281625142644, 1e14}, {1e28, 1e28}, {1e29, 0}, {Limits::quiet_NaN(), 1}, {1, Limits::infinity()}})
    EXPECT_EQ(RaisedBy([&] { DecimalProduct(row.first, row.second); }), kOverflow) << row.first;
}

TEST(Integers, RoundHalfToEvenAndOverflow) {
  ExpectEach<std::int32_t>({{ToInt16(2.5), 2}, {ToInt16(-3.5), -4}, {ToInt16(32767.4), 32767},
                            {ToInt32(-2147483648.5), -2147483647 - 1}});
  ExpectRaised(kOverflow, {[] { ToInt16(32767.5); }, [] { ToInt32(2147483648.0); },
                           [] { ToInt32(Limits::quiet_NaN()); }});
}
// clang-format on

}  // namespace
}  // namespace gabarito
