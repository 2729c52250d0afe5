#include "gabarito/platform/text.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <utility>

#include "expect.h"

namespace gabarito {
namespace {

using View = std::u16string_view;

// clang-format off
TEST(Pieces, AreCutAtBothEndsOfTheText) {
  ExpectEach<View>({
      {Left(u"abc", 2), u"ab"}, {Right(u"abc", 2), u"bc"}, {Right(u"abc", 9), u"abc"},
      {Mid(u"abc", 2), u"bc"}, {Mid(u"abc", 3, 9), u"c"}, {Mid(u"abc", 9, 1), u""},
      {Trim(u" \ta\u00A0 "), u"\ta\u00A0"}, {Trim(u"   "), u""}});
}

TEST(Pieces, RefuseNegativeLengthsAndPositionsBelowOne) {
  ExpectRaised(kInvalidProcedureCall, {
      [] { Left(u"abc", -1); }, [] { Right(u"abc", -1); }, [] { Mid(u"abc", 0); }, [] { Mid(u"abc", 9, -1); },
      [] { String(-1, u'0'); }, [] { InStr(0, u"abc", u"a"); }});
}
// clang-format on

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
  // clang-format off
  ExpectEach<std::int32_t>({
      {InStr(u"12#34#", u"#"), 3}, {InStr(4, u"12#34#", u"#"), 6}, {InStr(u"São João", u"joão"), 0},
      {InStr(1, u"São JOÃO", u"joão", kIgnoring), 5}, {InStr(6, u"São JOÃO", u"joão", kIgnoring), 0},
      {InStr(3, u"abc", u""), 3}, {InStr(4, u"abc", u"", kIgnoring), 0}, {InStr(u"", u""), 0},
      {InStr(2'000'000'000, u"abc", u"a"), 0}});
  // clang-format on
}

TEST(CodePage, GivesEveryCodeBack) {
  for (std::int32_t code = 0; code < 256; ++code) ASSERT_EQ(Asc(Chr(code)), code);
  ExpectEach<int>({{Chr(128), u'€'}, {Chr(156), u'œ'}, {Asc(u'Ā'), 63}});
  EXPECT_EQ(Asc(0x80), 63) << "code 128 is the euro, not the control character";
  ExpectRaised(kInvalidProcedureCall, {[] { Chr(-1); }, [] { Chr(256); }});
}

TEST(Like, MatchesTheWholeTextAndRefusesWhatDiffers) {
  // clang-format off
  for (const auto& [text, pattern] : std::initializer_list<std::pair<View, View>>{
      {u"", u""}, {u"", u"*"}, {u"", u"[]"}, {u"ab", u"a[]b"}, {u"123456", u"######"}, {u"aXbXc", u"a*X?"},
      {u"ab@c.d", u"*@*.*"}, {u"b", u"[a-c]"}, {u"-", u"[-a]"}, {u"-", u"[a-]"}, {u"f", u"[e-gabfa-c]"},
      {u"d", u"[!e-gabfa-c]"}, {u"xbz", u"*[ab][]?"}, {u"x", u"[!a-c]"}, {u"[", u"[[]"}, {u"*", u"[*]"},
      {u"]", u"]"}, {u"!", u"[!]"}, {u"e", u"[a-c-e]"}, {u"mississippi", u"m*iss*i"}, {u"abab", u"*ab"}})
    EXPECT_TRUE(Like(text, pattern)) << testing::PrintToString(text) << testing::PrintToString(pattern);
  for (const auto& [text, pattern] : std::initializer_list<std::pair<View, View>>{
      {u"a", u""}, {u"", u"?"}, {u"12345", u"######"}, {u"1234567", u"######"}, {u"٣", u"#"}, {u"A", u"a"},
      {u"d", u"[a-c]"}, {u"b", u"[!a-c]"}, {u"", u"[!a]"}, {u"d", u"[a-c-e]"}, {u"d", u"[e-gabfa-c]"},
      {u"xyz", u"*[ab][]?"}, {u"abc", u"*b"}, {u"ab", u"b[]*"}, {u"mississippi", u"m*iss*s"},
      {u"!", u"[!!]"}})
    EXPECT_FALSE(Like(text, pattern)) << testing::PrintToString(text) << testing::PrintToString(pattern);
  // clang-format on
}

TEST(Like, RaisesOnAnInvalidPatternWhereverTheTextEnds) {
  for (const View pattern : {u"[", u"x*[a-", u"xy[!", u"x[]y[a", u"[z-a]", u"x[abz-a]q", u"*[a--]"}) {
    for (const View text : {u"", u"x", u"xy"})
      ExpectRaised(kInvalidPatternString, {[&] { Like(text, pattern); }});
  }
}

TEST(Like, ReadsASetOnceForAllTheTextsAndCharacters) {
  std::u16string set = u"[";
  for (char16_t c = 0x4000; set.size() < 20'000; c += 2) set += c;  // no two of them make a range
  const std::u16string text(20'000, u'\x4001');
  const auto start = std::chrono::steady_clock::now();
  EXPECT_FALSE(Like(text, u"*" + set + u"]"));
  EXPECT_TRUE(Like(text + u"\x4002", u"*" + set + u"]"));
  EXPECT_TRUE(Like(text, u"*" + set.insert(1, u"!") + u"]"));
  EXPECT_LT(std::chrono::steady_clock::now() - start,
            std::chrono::seconds(2));  // some 10^9 steps take far longer
}

TEST(Like, GivesUpAfterTheProductOfBothLengths) {
  std::u16string pattern;
  for (int i = 0; i < 30; ++i) pattern += u"*a";
  EXPECT_FALSE(Like(std::u16string(20'000, u'a'), pattern + u"b"));
  EXPECT_TRUE(Like(std::u16string(20'000, u'a'), pattern));
}

}  // namespace
}  // namespace gabarito
