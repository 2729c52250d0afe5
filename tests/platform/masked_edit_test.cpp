#include "gabarito/platform/masked_edit.h"

#include <gtest/gtest.h>

#include <string>

#include "expect.h"

namespace gabarito {
namespace {

using testing::PrintToString;

MaskedEdit BoxOf(std::u16string_view mask, std::u16string_view text = u"") {
  MaskedEdit box;
  box.Mask(mask);
  box.Text(text);
  return box;
}

std::u16string Shown(const MaskedEdit& box) {
  return std::u16string(box.Text()).insert(static_cast<std::size_t>(box.SelStart()), u"|");
}

// Types `keys`; \b is Backspace, \x7F Delete, ^ selects everything, and what stands behind ~ is pasted. Gives
// the text with "|" at the caret, and a "!" at the end for each refused key.
std::u16string Typed(MaskedEdit box, std::u16string_view keys) {
  std::u16string refusals;
  for (; !keys.empty() && keys[0] != u'~'; keys.remove_prefix(1)) {
    if (keys[0] == u'^') {
      box.SelStart(0);
      box.SelLength(1000);
    } else if (keys[0] == u'\b') {
      box.Backspace();
    } else if (keys[0] == u'\x7F') {
      box.Delete();
    } else if (!box.Type(keys[0])) {
      refusals += u'!';
    }
  }
  if (!keys.empty()) box.SelText(keys.substr(1));
  return Shown(box) + refusals;
}

TEST(MaskedEdit, ShowsWhatIsEnteredAndWhereTheCaretGoes) {
  const std::u16string longest = u"~" + std::u16string(1'000'000, u'7');
  // clang-format off
  const struct { std::u16string_view mask, text, keys, shown; } rows[] = {
      {u"##/##", u"", u"12", u"12/|__"}, {u"##/##", u"", u"12/", u"12/|__"},
      {u"##/##", u"", u"12345", u"12/34|!"}, {u"##/##", u"12/34", u"9", u"9|2/34"},
      {u"##/##", u"12/34", u"x/9", u"12/9|4!"}, {u"##/##/##", u"", u"1/2/3", u"1_/2_/3|_"},
      {u"##/##", u"", u"12\b", u"1|_/__"}, {u"##/##", u"12/34", u"\b", u"|12/34"},
      {u"##/##", u"12/34", u"\x7F", u"|_2/34"}, {u"##/##", u"12/34", u"^\x7F", u"|__/__"},
      {u"##/##", u"12/34", u"^\b", u"|__/__"}, {u"##/##", u"12/34", u"^5", u"5|_/__"},
      {u"##/##", u"12/34", u"^x", u"|12/34!"}, {u"##-##", u"12-34", u" _", u"__-|34"},
      {u"(11) ##", u"", u"12", u"(11) 12|"}, {u"(11) ##", u"", u"(11) 12", u"(11) 12|"},
      {u"\\##1#", u"", u"#213", u"#211|!"}, {u"9Aa?&C", u"", u"x1!", u"_x1_!|_"},
      {u">?\?<?\?&\\?", u"", u"éaÉAŸ", u"ÉAéaÿ?|"}, {u"&&", u"", u"\x1F\x01\xD800\xFFFF", u"\xD800\xFFFF|!!"},
      {u">", u"", u"a\b\x7F", u"|!"}, {u"", u"", u"ab\x0D\bc", u"ac|!"}, {u"", u"abc", u"^x\x7F\bY", u"Y|"},
      {u"##/##", u"12/34", u"^~5-6", u"56|/__"}, {u"##/##/##", u"", u"~1/2/34", u"1_/2_/34|"},
      {u"##1##", u"", u"~12134", u"12134|"}, {u"##/##", u"12/34", u"^~", u"|__/__"},
      {u"##/##", u"12/34", u"56~x\n/", u"56/|34"}, {u"##/##", u"", longest, u"77/77|"},
      {u"", u"abc", u"^~xyz\n", u"xyz\n|"}};
  // clang-format on
  for (const auto& row : rows) {
    EXPECT_EQ(Typed(BoxOf(row.mask, row.text), row.keys), row.shown)
        << PrintToString(row.mask) << PrintToString(row.keys.substr(0, 40));
  }
}

TEST(MaskedEdit, SelTextTakesAPieceOfTheTextItself) {
  for (const std::u16string_view mask : {u"AAAA", u""}) {
    MaskedEdit box = BoxOf(mask, u"abcd");
    box.SelStart(2);
    box.SelText(box.Text());
    EXPECT_EQ(box.SelLength(), 0);
    EXPECT_EQ(box.Text(), mask.empty() ? u"ababcdcd" : u"abab");
  }
}

TEST(MaskedEdit, TextTakesWhatFitsPositionByPosition) {
  EXPECT_EQ(BoxOf(u"##/>?\?", u" 1/_é").Text(), u"_1/_É");
  MaskedEdit box = BoxOf(u"##/?9", u"12/a3");
  box.SelStart(2);
  for (const std::u16string_view bad : {u"12/a", u"12/a34", u"12-a3", u"1x/a3", u"12/13", u"12/a "}) {
    EXPECT_EQ(RaisedBy([&] { box.Text(bad); }), kInvalidPropertyValue) << PrintToString(bad);
    EXPECT_EQ(Shown(box), u"12|/a3") << PrintToString(bad);
  }
  box.Text(u"");
  EXPECT_EQ(Shown(box), u"|__/__");
}

TEST(MaskedEdit, ARefusedPatternLeavesTheOldOne) {
  MaskedEdit box = BoxOf(u"##", u"12");
  const auto tooLong = [&] { box.Mask(std::u16string(65, u'#')); };
  ExpectRaised(kInvalidPropertyValue, {tooLong, [&] { box.Mask(u"9\\"); }});
  EXPECT_EQ(std::u16string(box.Mask()) + Shown(box), u"##|12");
  box.Mask(std::u16string(64, u'#'));
  EXPECT_EQ(box.Text(), std::u16string(64, u'_'));
}

TEST(MaskedEdit, StopsAtItsBounds) {
  MaskedEdit box = BoxOf(u"", u"abcdef");
  box.MaxLength(5);
  EXPECT_EQ(Typed(box, u"x^xabcdef"), u"xabcd|!!!");
  ExpectRaised(380, {[&] { box.MaxLength(-1); }, [&] { box.MaxLength(65); }, [&] { box.SelStart(-1); },
                     [&] { box.SelLength(-1); }});
  box.SelStart(4);
  box.SelLength(2147483647);
  EXPECT_EQ(box.SelText(), u"ef");
  box.SelStart(2147483647);
  EXPECT_EQ(Shown(box), u"abcdef|");
}

}  // namespace
}  // namespace gabarito
