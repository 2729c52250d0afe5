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
  const struct { const char* name; std::u16string_view mask, text, keys, shown; } rows[] = {
      {"the caret runs over a literal", u"##/##", u"", u"12", u"12/|__"},
      {"a separator typed once more", u"##/##", u"", u"12/", u"12/|__"},
      {"but not a second time", u"##/##", u"", u"12//", u"12/|__!"},
      {"a separator twice goes to the next", u"##/##/##", u"", u"1//2", u"1_/__/2|_"},
      {"a digit of the frame is none", u"##1", u"", u"121", u"121|!"},
      {"a whole date with its separators", u"##/##/##", u"", u"12/34/56", u"12/34/56|"},
      {"several that the caret ran over", u"(##)-##", u"", u"(11)-2", u"(11)-2|_"},
      {"a separator over an empty place", u"##/##", u"", u"1/2", u"1_/2|_"},
      {"over each of two", u"##/##/##", u"", u"1/2/3", u"1_/2_/3|_"},
      {"a separator over a filled place", u"##/##", u"12/34", u"/9", u"9|2/34!"},
      {"over filled places that are selected", u"##/##", u"12/34", u"^/", u"__/|__"},
      {"a separator that the place takes", u"#/&#", u"", u"1/", u"1//|_"},
      {"no running ahead to a place that fits", u"A?&", u"", u"-12b-", u"1b-|!!"},
      {"nor over a literal", u"?/#", u"", u"1", u"|_/_!"},
      {"over optional places", u"9aC?", u"", u"é", u"_é|__"},
      {"up to the first required one", u"99A?", u"", u"xy", u"__xy|"},
      {"not behind it", u"99#?", u"", u"xy", u"|____!!"},
      {"over an optional place and a literal", u"9-?", u"", u"x", u"_-x|"},
      {"no place left", u"##/##", u"", u"12345", u"12/34|!"},
      {"a place replaced", u"##/##", u"12/34", u"9", u"9|2/34"},
      {"Backspace over a literal", u"##/##", u"", u"12\b", u"1|_/__"},
      {"Backspace at the start", u"##/##", u"12/34", u"\b", u"|12/34"},
      {"Delete", u"##/##", u"12/34", u"\x7F", u"|_2/34"},
      {"Delete of a selection", u"##/##", u"12/34", u"^\x7F", u"|__/__"},
      {"Backspace of a selection", u"##/##", u"12/34", u"^\b", u"|__/__"},
      {"a selection replaced", u"##/##", u"12/34", u"^5", u"5|_/__"},
      {"a selection kept from a refused key", u"##/##", u"12/34", u"^x", u"|12/34!"},
      {"blank and prompt empty a place", u"##-##", u"12-34", u" _", u"__-|34"},
      {"digits of the frame", u"(11) ##", u"", u"12", u"(11) 12|"},
      {"the frame typed too", u"(11) ##", u"", u"(11) 12", u"(11) 12|"},
      {"a literal digit ahead", u"\\##1#", u"", u"#213", u"#211|!"},
      {"capital, small, accented", u">?\?<?\?&\\?", u"", u"éaÉAŸ", u"ÉAéaÿ?|"},
      {"control characters", u"&&", u"", u"\x1F\x01\xD800\xFFFF", u"\xD800\xFFFF|!!"},
      {"a pattern without a place", u">", u"", u"a\b\x7F", u"|!"},
      {"no pattern", u"", u"", u"ab\x0D\bc", u"ac|!"},
      {"no pattern, all selected", u"", u"abc", u"^x\x7F\bY", u"Y|"},
      {"pasted over a selection", u"##/##", u"12/34", u"^~5-6", u"56|/__"},
      {"pasted separators", u"##/##/##", u"", u"~1/2/34", u"1_/2_/34|"},
      {"pasted from where the caret ran", u"##/##/##", u"", u"12~/34", u"12/34|/__"},
      {"pasted: what is refused is dropped", u"A?&", u"", u"~-12b-", u"1b-|"},
      {"the box's own text pasted", u"##1##", u"", u"~12134", u"12134|"},
      {"nothing pasted", u"##/##", u"12/34", u"^~", u"|__/__"},
      {"pasted behind a literal", u"##/##", u"12/34", u"56~x\n/", u"56/|34"},
      {"a very long paste", u"##/##", u"", longest, u"77/77|"},
      {"pasted without a pattern", u"", u"abc", u"^~xyz\n", u"xyz\n|"}};
  // clang-format on
  for (const auto& row : rows) {
    EXPECT_EQ(Typed(BoxOf(row.mask, row.text), row.keys), row.shown) << row.name;
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
