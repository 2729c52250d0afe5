#include "gabarito/platform/masked_edit.h"

#include <gtest/gtest.h>

#include <string>

#include "gabarito/platform/erro.h"

namespace gabarito {
namespace {

MaskedEdit BoxOf(std::u16string_view mask, std::u16string_view text = u"") {
  MaskedEdit box;
  box.Mask(mask);
  box.Text(text);
  return box;
}

template <class Step>
bool IsRefused(Step step) {
  try {
    step();
  } catch (const Erro& erro) {
    return erro.Number() == kInvalidPropertyValue;
  }
  return false;
}

// Types `keys`; \b is Backspace, \x7F Delete, ^ a selection of everything. Gives the text with "|" at the
// caret, and "!" at the end for each refused key.
std::u16string Typed(MaskedEdit box, std::u16string_view keys) {
  std::u16string refusals;
  for (const char16_t key : keys) {
    if (key == u'\b') {
      box.Backspace();
    } else if (key == 0x7F) {
      box.Delete();
    } else if (key == u'^') {
      box.SelStart(0);
      box.SelLength(1000);
    } else if (!box.Type(key)) {
      refusals += u'!';
    }
  }
  return std::u16string(box.Text()).insert(static_cast<std::size_t>(box.SelStart()), u"|") + refusals;
}

TEST(MaskedEdit, ShowsWhatIsTypedAndWhereTheCaretGoes) {
  const struct {
    std::u16string_view mask, text, keys, shown;
  } rows[] = {
      {u"##/##", u"", u"12", u"12/|__"},
      {u"##/##", u"", u"12/", u"12/|__"},
      {u"##/##", u"", u"12/34", u"12/34|"},
      {u"##/##", u"", u"12345", u"12/34|!"},
      {u"##/##/##", u"", u"1/2/3", u"1_/2_/3|_"},
      {u"##/##", u"12/34", u"9", u"9|2/34"},
      {u"##/##", u"12/34", u"x/9", u"12/9|4!"},
      {u"##/##", u"", u"12\b", u"1|_/__"},
      {u"##/##", u"12/34", u"\b", u"|12/34"},
      {u"##/##", u"12/34", u"\x7F", u"|_2/34"},
      {u"##/##", u"12/34", u"^\x7F", u"|__/__"},
      {u"##/##", u"12/34", u"^\b", u"|__/__"},
      {u"##/##", u"12/34", u"^5", u"5|_/__"},
      {u"##/##", u"12/34", u"^x", u"|12/34!"},
      {u"##-##", u"12-34", u" _", u"__-|34"},
      {u"(11) ####", u"", u"12", u"(11) 12|__"},
      {u"(11) ####", u"", u"(11) 12", u"(11) 12|__"},
      {u"\\##1#", u"", u"#213", u"#211|!"},
      {u"9Aa?&C", u"", u"x1!", u"_x1_!|_"},
      {u">?\?<?\?&\\\?", u"", u"éaÉAŸ", u"ÉAéaÿ?|"},
      {u"&&", u"", u"\x1F\x01\xD800\xFFFF", u"\xD800\xFFFF|!!"},
      {u">", u"", u"a\b\x7F", u"|!"},
      {u"", u"", u"ab\x0D\bc", u"ac|!"},
      {u"", u"abc", u"^x\x7F\bY", u"Y|"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(Typed(BoxOf(row.mask, row.text), row.keys), row.shown)
        << testing::PrintToString(row.mask) << " typed " << testing::PrintToString(row.keys);
  }
}

TEST(MaskedEdit, SelTextEntersWhatFitsAndDropsTheRest) {
  const std::u16string longest(1'000'000, u'7');
  const struct {
    std::u16string_view mask, text;
    std::int32_t start, length;
    std::u16string_view laid, shown;
    std::int32_t caret;
  } rows[] = {
      {u"##/##", u"12/34", 0, 5, u"5-6", u"56/__", 2},
      {u"##/##", u"12/34", 1, 3, u"9", u"19/_4", 2},
      {u"##/##/####", u"", 0, 10, u"1/2/2024", u"1_/2_/2024", 10},
      {u"##1##", u"", 0, 0, u"12134", u"12134", 5},
      {u"##/##", u"12/34", 0, 5, u"", u"__/__", 0},
      {u"##/##", u"", 2, 0, u"x\n/", u"__/__", 3},
      {u"##/##", u"", 0, 5, longest, u"77/77", 5},
      {u"", u"abc", 1, 1, u"xyz\n", u"axyz\nc", 5},
  };
  for (const auto& row : rows) {
    MaskedEdit box = BoxOf(row.mask, row.text);
    box.SelStart(row.start);
    box.SelLength(row.length);
    box.SelText(row.laid);
    EXPECT_EQ(box.Text(), row.shown) << testing::PrintToString(row.mask);
    EXPECT_EQ(box.SelStart(), row.caret) << testing::PrintToString(row.shown);
    EXPECT_EQ(box.SelLength(), 0) << testing::PrintToString(row.shown);
  }
}

TEST(MaskedEdit, SelTextTakesAPieceOfTheTextItself) {
  for (const std::u16string_view mask : {u"AAAA", u""}) {
    MaskedEdit box = BoxOf(mask, u"abcd");
    box.SelStart(2);
    box.SelLength(2);
    box.SelText(box.Text());
    EXPECT_EQ(box.Text(), mask.empty() ? u"ababcd" : u"abab");
  }
}

TEST(MaskedEdit, TextTakesWhatFitsPositionByPosition) {
  EXPECT_EQ(BoxOf(u"##/>??", u" 1/_é").Text(), u"_1/_É");
  EXPECT_EQ(BoxOf(u"", std::u16string(1'000'000, 0xDC00)).Text().size(), 1'000'000u);
  MaskedEdit box = BoxOf(u"##/?9", u"12/a3");
  box.SelStart(2);
  for (const std::u16string_view bad : {u"12/a", u"12/a34", u"12-a3", u"1x/a3", u"12/13", u"12/a "}) {
    EXPECT_TRUE(IsRefused([&] { box.Text(bad); })) << testing::PrintToString(bad);
    EXPECT_EQ(box.Text(), u"12/a3") << testing::PrintToString(bad);
    EXPECT_EQ(box.SelStart(), 2) << testing::PrintToString(bad);
  }
  box.Text(u"");
  EXPECT_EQ(box.Text(), u"__/__");
}

TEST(MaskedEdit, ARefusedPatternLeavesTheOldOne) {
  MaskedEdit box = BoxOf(u"##", u"12");
  for (const std::u16string& bad : {std::u16string(65, u'#'), std::u16string(u"##\\")}) {
    EXPECT_TRUE(IsRefused([&] { box.Mask(bad); }));
    EXPECT_EQ(box.Mask(), u"##");
    EXPECT_EQ(box.Text(), u"12");
  }
  box.Mask(std::u16string(64, u'#'));
  EXPECT_EQ(box.Text(), std::u16string(64, u'_'));
}

TEST(MaskedEdit, StopsAtItsBounds) {
  MaskedEdit box = BoxOf(u"", u"abcdef");
  box.MaxLength(5);
  EXPECT_EQ(Typed(box, u"x^xabcdef"), u"xabcd|!!!");
  for (const std::int32_t bad : {-1, 65}) EXPECT_TRUE(IsRefused([&] { box.MaxLength(bad); })) << bad;
  EXPECT_TRUE(IsRefused([&] { box.SelStart(-1); }));
  EXPECT_TRUE(IsRefused([&] { box.SelLength(-1); }));
  box.SelStart(4);
  box.SelLength(2147483647);
  EXPECT_EQ(box.SelText(), u"ef");
  box.SelStart(2147483647);
  EXPECT_EQ(box.SelStart(), 6);
  EXPECT_EQ(box.SelLength(), 0);
}

}  // namespace
}  // namespace gabarito
