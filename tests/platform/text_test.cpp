#include "gabarito/platform/text.h"

#include <gtest/gtest.h>

#include <string>

#include "raised.h"

namespace gabarito {
namespace {

using View = std::u16string_view;

TEST(Pieces, AreCutAtBothEndsOfTheText) {
  EXPECT_EQ(Left(u"abc", 2), u"ab");
  EXPECT_EQ(Right(u"abc", 2), u"bc");
  EXPECT_EQ(Right(u"abc", 9), u"abc");
  EXPECT_EQ(Mid(u"abc", 2), u"bc");
  EXPECT_EQ(Mid(u"abc", 3, 9), u"c");
  EXPECT_EQ(Mid(u"abc", 9, 1), u"");
  EXPECT_EQ(Trim(u" \ta\u00A0 "), u"\ta\u00A0");
  EXPECT_EQ(Trim(u"   "), u"");
}

TEST(Pieces, RefuseNegativeLengthsAndPositionsBelowOne) {
  EXPECT_EQ(RaisedBy([] { Left(u"abc", -1); }), kInvalidProcedureCall);
  EXPECT_EQ(RaisedBy([] { Right(u"abc", -1); }), kInvalidProcedureCall);
  EXPECT_EQ(RaisedBy([] { Mid(u"abc", 0); }), kInvalidProcedureCall);
  EXPECT_EQ(RaisedBy([] { Mid(u"abc", 9, -1); }), kInvalidProcedureCall);
  EXPECT_EQ(RaisedBy([] { String(-1, u'0'); }), kInvalidProcedureCall);
  EXPECT_EQ(RaisedBy([] { InStr(0, u"abc", u"a"); }), kInvalidProcedureCall);
}

TEST(UCase, MapsEverySmallLatinLetterToItsCapitalAndNothingElse) {
  constexpr View kSmall =
      u"abcdefghijklmnopqrstuvwxyzàáâãäåæçèéêëìíîïðñòóôõöøùúûüýþÿāăąćĉċčďđēĕėęěĝğġģĥħĩīĭįıĳĵķĺļľŀłńņňŋōŏőœŕŗř"
      u"śŝşšţťŧũūŭůűųŵŷźżžſ";
  constexpr View kCapital =
      u"ABCDEFGHIJKLMNOPQRSTUVWXYZÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖØÙÚÛÜÝÞŸĀĂĄĆĈĊČĎĐĒĔĖĘĚĜĞĠĢĤĦĨĪĬĮIĲĴĶĹĻĽĿŁŃŅŇŊŌŎŐŒŔŖŘ"
      u"ŚŜŞŠŢŤŦŨŪŬŮŰŲŴŶŹŻŽS";
  EXPECT_EQ(UCase(kSmall), kCapital);
  for (std::uint32_t unit = 0; unit <= 0xFFFF; ++unit) {
    const auto character = static_cast<char16_t>(unit);
    if (kSmall.find(character) == View::npos) {
      ASSERT_EQ(UCase(character), character) << std::hex << unit;
    }
  }
}

TEST(InStr, FindsTheFirstPlaceAtOrBehindTheStart) {
  constexpr Comparison kIgnoring = Comparison::kIgnoreCase;
  EXPECT_EQ(InStr(u"12#34#", u"#"), 3);
  EXPECT_EQ(InStr(4, u"12#34#", u"#"), 6);
  EXPECT_EQ(InStr(u"São João", u"joão"), 0);
  EXPECT_EQ(InStr(1, u"São JOÃO", u"joão", kIgnoring), 5);
  EXPECT_EQ(InStr(6, u"São JOÃO", u"joão", kIgnoring), 0);
  EXPECT_EQ(InStr(3, u"abc", u""), 3);
  EXPECT_EQ(InStr(4, u"abc", u"", kIgnoring), 0);
  EXPECT_EQ(InStr(u"", u""), 0);
  EXPECT_EQ(InStr(2'000'000'000, u"abc", u"a"), 0);
}

TEST(CodePage, GivesEveryCodeBack) {
  for (std::int32_t code = 0; code < 256; ++code) ASSERT_EQ(Asc(Chr(code)), code);
  EXPECT_EQ(Chr(128), u'€');
  EXPECT_EQ(Chr(156), u'œ');
  EXPECT_EQ(Asc(u'Ā'), 63);
  EXPECT_EQ(Asc(0x80), 63) << "code 128 is the euro, not the control character";
  for (const std::int32_t code : {-1, 256}) EXPECT_EQ(RaisedBy([&] { Chr(code); }), kInvalidProcedureCall);
}

// Each row is a text, a "~" and a pattern.
bool IsLike(View row) {
  const std::size_t mark = row.find(u'~');
  return Like(row.substr(0, mark), row.substr(mark + 1));
}

TEST(Like, MatchesTheWholeText) {
  for (const View row : {u"~", u"~*", u"~[]", u"ab~a[]b", u"123456~######", u"aXbXc~a*X?", u"ab@c.d~*@*.*",
                         u"b~[a-c]", u"-~[-a]", u"-~[a-]", u"x~[!a-c]", u"[~[[]", u"*~[*]", u"]~]", u"!~[!]",
                         u"e~[a-c-e]", u"mississippi~m*iss*i", u"abab~*ab"}) {
    EXPECT_TRUE(IsLike(row)) << testing::PrintToString(row);
  }
}

TEST(Like, RefusesWhatDiffers) {
  for (const View row :
       {u"a~", u"~?", u"12345~######", u"1234567~######", u"٣~#", u"A~a", u"d~[a-c]", u"b~[!a-c]", u"~[!a]",
        u"d~[a-c-e]", u"abc~*b", u"ab~b[]*", u"mississippi~m*iss*s", u"!~[!!]"}) {
    EXPECT_FALSE(IsLike(row)) << testing::PrintToString(row);
  }
}

TEST(Like, RaisesOnAnInvalidPatternWhereverTheTextEnds) {
  for (const View pattern : {u"[", u"x*[a-", u"xy[!", u"x[]y[a", u"[z-a]", u"x[abz-a]q", u"*[a--]"}) {
    for (const View text : {u"", u"x", u"xy"}) {
      EXPECT_EQ(RaisedBy([&] { Like(text, pattern); }), kInvalidPatternString)
          << testing::PrintToString(pattern);
    }
  }
}

TEST(Like, GivesUpAfterTheProductOfBothLengths) {
  std::u16string pattern;
  for (int i = 0; i < 30; ++i) pattern += u"*a";
  EXPECT_FALSE(Like(std::u16string(20'000, u'a'), pattern + u"b"));
  EXPECT_TRUE(Like(std::u16string(20'000, u'a'), pattern));
}

}  // namespace
}  // namespace gabarito
