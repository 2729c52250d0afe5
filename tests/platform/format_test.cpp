#include "gabarito/platform/format.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "expect.h"

namespace gabarito {
namespace {

using View = std::u16string_view;

const Regional kBrazil;

// clang-format off
TEST(FormatNumber, FillsWithZerosOrGroupsByThousands) {
  const auto format = [](double value, View pattern) { return FormatNumber(value, pattern, kBrazil); };
  ExpectEach<std::u16string>({
      {format(5, u"00"), u"05"}, {format(123, u"00"), u"123"}, {format(2.5, u"00"), u"03"},
      {format(-2.5, u"00"), u"-03"}, {format(-0.4, u"00"), u"00"}, {format(0.4, u"#,#"), u""},
      {format(999, u"#,#"), u"999"}, {format(-1e3, u"#,#"), u"-1.000"},
      {format(250, u"0000000000"), u"0000000250"},
      {format(12345678901234567, u"#,#"), u"12.345.678.901.234.600"}});
}

TEST(FormatNumber, ReadsATextOrGivesItBackUnchanged) {
  ExpectEach<std::u16string>({
      {FormatNumber(u"1.234,5", u"#,#", kBrazil), u"1.235"}, {FormatNumber(u"000", u"#,#", kBrazil), u""},
      {FormatNumber(u"abc", u"00", kBrazil), u"abc"}, {FormatNumber(u"1E400", u"#,#", kBrazil), u"1E400"}});
}

TEST(FormatDate, WritesEachPieceWithLeadingZerosOrGivesTheTextBackUnchanged) {
  const Date date = DateFromParts({203, 3, 5, 7, 9, 30});
  const auto format = [](View text, View pattern) { return FormatDate(text, pattern, kBrazil, 0); };
  ExpectEach<std::u16string>({
      {FormatDate(date, u"DD/MM/YYYY"), u"05/03/0203"}, {FormatDate(date, u"hh:nn"), u"07:09"},
      {FormatDate(date, u"nn"), u"09"}, {format(u"5/3/2024", u"DD/MM/YYYY"), u"05/03/2024"},
      {format(u"9:5", u"hh:nn"), u"09:05"}, {format(u"31/02/2024", u"DD/MM/YYYY"), u"31/02/2024"}});
}

TEST(Formats, RefuseAnotherPatternAndWhatIsOutOfRange) {
  for (const View pattern : {u"", u"0.00", u"#", u"hh"}) {
    ExpectRaised(kInvalidProcedureCall, {[&] { FormatNumber(1, pattern, kBrazil); },
                                         [&] { FormatNumber(u"abc", pattern, kBrazil); }});
  }
  ExpectRaised(kInvalidProcedureCall, {[] { FormatDate(0, u"D/M"); },
                                       [] { FormatDate(u"abc", u"0000", kBrazil, 0); }});
  ExpectRaised(kOverflow, {[] { FormatNumber(std::numeric_limits<double>::infinity(), u"00", kBrazil); },
                           [] { FormatDate(1e9, u"DD/MM/YYYY"); }});
}
// clang-format on

}  // namespace
}  // namespace gabarito
