#include "gabarito/platform/format.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "raised.h"

namespace gabarito {
namespace {

using View = std::u16string_view;

const Regional kBrazil;

TEST(FormatNumber, FillsWithZerosOrGroupsByThousands) {
  const struct {
    double value;
    View pattern, text;
  } rows[] = {{5, u"00", u"05"},    {123, u"00", u"123"}, {2.5, u"00", u"03"},   {-2.5, u"00", u"-03"},
              {-0.4, u"00", u"00"}, {0.4, u"#,#", u""},   {999, u"#,#", u"999"}, {-1e3, u"#,#", u"-1.000"}};
  for (const auto& row : rows)
    EXPECT_EQ(FormatNumber(row.value, row.pattern, kBrazil), row.text) << row.value;
  EXPECT_EQ(FormatNumber(250, u"0000000000", kBrazil), u"0000000250");
  EXPECT_EQ(FormatNumber(12345678901234567, u"#,#", kBrazil), u"12.345.678.901.234.600");
}

TEST(FormatNumber, ReadsATextOrGivesItBackUnchanged) {
  EXPECT_EQ(FormatNumber(u"1.234,5", u"#,#", kBrazil), u"1.235");
  EXPECT_EQ(FormatNumber(u"000", u"#,#", kBrazil), u"");
  EXPECT_EQ(FormatNumber(u"abc", u"00", kBrazil), u"abc");
  EXPECT_EQ(FormatNumber(u"1E400", u"#,#", kBrazil), u"1E400");
}

TEST(FormatNumber, RefusesAnotherPatternAndWhatIsNotFinite) {
  for (const View pattern : {u"", u"0.00", u"#", u"hh"}) {
    EXPECT_EQ(RaisedBy([&] { FormatNumber(1, pattern, kBrazil); }), kInvalidProcedureCall);
    EXPECT_EQ(RaisedBy([&] { FormatNumber(u"abc", pattern, kBrazil); }), kInvalidProcedureCall);
  }
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  EXPECT_EQ(RaisedBy([] { FormatNumber(kInfinity, u"00", kBrazil); }), kOverflow);
}

TEST(FormatDate, WritesEachPieceWithLeadingZeros) {
  const Date date = DateFromParts({203, 3, 5, 7, 9, 30});
  EXPECT_EQ(FormatDate(date, u"DD/MM/YYYY"), u"05/03/0203");
  EXPECT_EQ(FormatDate(date, u"hh:nn"), u"07:09");
  EXPECT_EQ(FormatDate(date, u"nn"), u"09");
  EXPECT_EQ(RaisedBy([&] { FormatDate(date, u"D/M"); }), kInvalidProcedureCall);
  EXPECT_EQ(RaisedBy([] { FormatDate(1e9, u"DD/MM/YYYY"); }), kOverflow);
}

TEST(FormatDate, ReadsATextOrGivesItBackUnchanged) {
  EXPECT_EQ(FormatDate(u"5/3/2024", u"DD/MM/YYYY", kBrazil, 0), u"05/03/2024");
  EXPECT_EQ(FormatDate(u"9:5", u"hh:nn", kBrazil, 0), u"09:05");
  EXPECT_EQ(FormatDate(u"31/02/2024", u"DD/MM/YYYY", kBrazil, 0), u"31/02/2024");
  EXPECT_EQ(RaisedBy([] { FormatDate(u"abc", u"0000", kBrazil, 0); }), kInvalidProcedureCall);
}

}  // namespace
}  // namespace gabarito
