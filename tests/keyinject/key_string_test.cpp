#include "gabarito/keyinject/key_string.h"

#include <gtest/gtest.h>

#include <sstream>

#include "gabarito/keyinject/send_input.h"
#include "recording_user32.h"

namespace gabarito {
namespace {

struct Row {
  std::u16string_view text;
  std::string_view records;
};

void ExpectRecords(std::span<const Row> rows, const memory::KeyboardLayout& layout, bool capsLock) {
  SystemVersion system;
  RecordingDialogs dialogs;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    RecordingUser32 user32(layout, capsLock);
    SendKeyString(user32, system, dialogs, rows[i].text, true);
    EXPECT_EQ(user32.Sent(), rows[i].records) << "row " << i;
    EXPECT_EQ(user32.calls, rows[i].records.empty() ? 0 : 1) << "row " << i;
  }
}

TEST(KeyString, ElementsBecomeRecordsInOrder) {
  const Row rows[] = {
      {u"{TAB}", "+9 -9:F"},
      {u"+{TAB}", "+16 +9 -9:F -16"},
      {u"{tAb}", "+9 -9:F"},
      {u"a~", "+65 -65:1E +13 -13:1C"},
      {u"%{F4}", "+18 +115 -115:3E -18"},
      {u"^(ab)", "+17 +65 -65:1E +66 -66:30 -17"},
      {u"^a b", "+17 +65 -65:1E -17 +32 -32:39 +66 -66:30"},
      {u"+^a", "+16 +17 +65 -65:1E -17 -16"},
      {u"(a~+)", "+65 -65:1E +13 -13:1C +16 +187 -187:D -16"},
      {u"(({)", "+16 +57 -57:A -16 +16 +221 -221:1B -16"},
      {u"/?", "+193 -193:73 +16 +193 -193:73 -16"},
      // Shift held by the string is not pressed again, Ctrl is.
      {u"+A", "+16 +65 -65:1E -16"},
      {u"+aA", "+16 +65 -65:1E -16 +16 +65 -65:1E -16"},
      {u"\u00B2", "+17 +18 +50 -50:3 -17 -18"},
      {u"^\u00B2", "+17 +17 +18 +50 -50:3 -17 -18 -17"},
  };
  ExpectRecords(rows, memory::Abnt2(), false);
}

TEST(KeyString, BracesNameAKeyOrItsCharacterAndACount) {
  const Row rows[] = {
      {u"{LEFT 3}", "+37x -37:4B +37x -37:4B +37x -37:4B"},
      {u"{+}", "+16 +187 -187:D -16"},
      {u"{}}", "+16 +220 -220:2B -16"},
      {u"{{}", "+16 +221 -221:1B -16"},
      {u"{} 2}", "+16 +220 -220:2B -16 +16 +220 -220:2B -16"},
      {u"{ }", "+32 -32:39"},
      {u"{ 2}", "+32 -32:39 +32 -32:39"},
      {u"{abc 2}", "+65 -65:1E +65 -65:1E"},
      {u"{F17}", "+16 +70 -70:21 -16"},
      {u"{\u00B9}", "+17 +18 +49 -49:2 -17 -18"},
      {u"{a 0}", "+65 -65:1E"},
      {u"{a x}", "+65 -65:1E"},
      {u"{a -70000}", "+65 -65:1E"},
      {u"{a  3}", "+65 -65:1E"},
      {u"{a 2 9}", "+65 -65:1E +65 -65:1E"},
      {u"{a 1.5}", "+65 -65:1E +65 -65:1E"},
      {u"{a 2.5}", "+65 -65:1E +65 -65:1E"},
  };
  ExpectRecords(rows, memory::Abnt2(), false);
}

TEST(KeyString, CharactersWithoutAKeyGoOutInUnicode) {
  const Row rows[] = {
      {u"\u20AC", "+U20AC -U20AC"},
      {u"\uFFFD", "+UFFFD -UFFFD"},
      {u"+\u00F1", "+16 +UF1 -UF1 -16"},
      {u"(\u00B4)", "+UB4 -UB4"},
      {u"\u0085", "+U85 -U85"},  // no character of the code page, and so
                                 // no question mark
      {u"{^ 2}", "+U5E -U5E +U5E -U5E"},
      {u"{\u0142}", "+U142 -U142"},
  };
  ExpectRecords(rows, memory::Abnt2(), false);
}

TEST(KeyString, WhatCannotBeReadIsDropped) {
  const Row rows[] = {
      {u"", ""},
      {u"(", ""},
      {u"(({{((", ""},
      {u"(abc", "+65 -65:1E +66 -66:30 +67 -67:2E"},
      {u"()", "+16 +48 -48:B -16"},
      {u"+(a", "+16 -16 +65 -65:1E"},
      {u"ab{", "+65 -65:1E +66 -66:30"},
      {u"{}", "+16 +220 -220:2B -16"},
      {u"{+a", "+16 +65 -65:1E -16"},
      {u"((a)b)", "+16 +57 -57:A -16 +65 -65:1E +66 -66:30 +16 +48 -48:B -16"},
      {u"{(a)}}", "+16 +57 -57:A -16 +16 +220 -220:2B -16"},
      // A modifier with nothing behind it.
      {u"+", "+16 -16"},
      {u"a^%", "+65 -65:1E +17 +18 -18 -17"},
  };
  ExpectRecords(rows, memory::Abnt2(), false);
}

TEST(KeyString, CapsLockTurnsOverTheShiftOfLettersOutsideBraces) {
  const Row rows[] = {
      {u"aA", "+16 +65 -65:1E -16 +65 -65:1E"},
      {u"(zZ)", "+16 +90 -90:2C -16 +90 -90:2C"},
      {u"1!", "+49 -49:2 +16 +49 -49:2 -16"},
      {u"\u00E7", "+186 -186:27"},
      {u"[", "+221 -221:1B"},
      {u"{a}", "+65 -65:1E"},
  };
  ExpectRecords(rows, memory::Abnt2(), true);
  const Row us[] = {{u"{^}`", "+16 +54 -54:7 -16 +192 -192:29"}, {u"\u00E7", "+UE7 -UE7"}};
  ExpectRecords(us, memory::Us(), true);
}

TEST(KeyString, EveryNameHasItsKeyAndItsExtendedFlag) {
  std::istringstream names(
      "8 BACKSPACE 8 BS 8 BKSP 9 TAB 13 ENTER 19 PAUSE 19x BREAK 20 CAPSLOCK 27 ESC 33x PGUP 34x PGDN 35x "
      "END "
      "36x HOME 37x LEFT 38x UP 39x RIGHT 40x DOWN 41 SELECT 42x PRINT 44x PRTSC 44x PRTSCN 44x PRINTSCRN "
      "44x PRINTSCREEN 45x INS 45x INSERT 46x DELETE 46x DEL 47 HELP 112 F1 113 F2 114 F3 115 F4 116 F5 117 "
      "F6 "
      "118 F7 119 F8 120 F9 121 F10 122 F11 123 F12 124 F13 125 F14 126 F15 127 F16 144x NUMLOCK 145 "
      "SCROLLLOCK");
  SystemVersion system;
  RecordingDialogs dialogs;
  std::string press, name;
  int count = 0;
  for (; names >> press >> name; ++count) {
    RecordingUser32 user32;
    SendKeyString(user32, system, dialogs, u"{" + std::u16string(name.begin(), name.end()) + u"}", true);
    EXPECT_EQ(user32.Sent().substr(0, press.size() + 3), "+" + press + " -") << name;
  }
  EXPECT_EQ(count, 46);
}

TEST(SplitText, CutsAtEachDelimiterUpToTheLimit) {
  const struct {
    std::u16string_view text, delimiter;
    std::int32_t limit;
    Comparison comparison;
    std::u16string_view parts;  // each followed by "|"
  } rows[] = {
      {u"a b c", u" ", -1, Comparison::kOrdinal, u"a|b|c|"},
      {u" a  ", u" ", -1, Comparison::kOrdinal, u"|a|||"},
      {u"", u" ", -1, Comparison::kOrdinal, u"|"},
      {u"a b c", u" ", 2, Comparison::kOrdinal, u"a|b c|"},
      {u"a b c", u" ", 1, Comparison::kOrdinal, u"a b c|"},
      {u"a b c", u" ", 0, Comparison::kOrdinal, u""},
      {u"a b", u"", -1, Comparison::kOrdinal, u"a b|"},
      {u"1x2X3", u"X", -1, Comparison::kOrdinal, u"1x2|3|"},
      {u"1xy2XY3", u"xY", -1, Comparison::kIgnoreCase, u"1|2|3|"},
  };
  for (const auto& row : rows) {
    std::vector<std::u16string_view> parts;
    SplitText(row.text, row.delimiter, row.limit, row.comparison, parts);
    std::u16string joined;
    for (const auto part : parts) joined.append(part).append(u"|");
    EXPECT_EQ(joined, row.parts) << "row " << &row - rows;
  }
}

}  // namespace
}  // namespace gabarito
