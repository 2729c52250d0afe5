#include "gabarito/keyinject/send_input.h"

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <cstdio>
#include <string>
#include <utility>
#include <vector>

#include "../platform/allocations.h"
#include "../platform/expect.h"
#include "gabarito/keyinject/key_string.h"
#include "hosts/kit/keyboard_layout.h"
#include "hosts/kit/regional_kernel.h"

namespace gabarito {
namespace {

// A keyboard of a given layout, and a record of all that was sent.
struct RecordingQueue : InputQueue {
  std::vector<INPUT> records;  // of the last call
  int calls = 0;
  const kit::KeyboardLayout* layout = &kit::Abnt2();
  bool capsLock = false;

  // "+16" is a press and "-16" a release without a scan code; "9" is the press of a key and its release with
  // the key's scan code, "37x" the same with the extended flag, "u20AC" both halves of a Unicode character.
  // Anything else is "?".
  std::string Sent() const {
    std::string text;
    for (std::size_t i = 0; i < records.size(); ++i) {
      const INPUT& a = records[i];
      const INPUT b = i + 1 < records.size() ? records[i + 1] : INPUT{};
      const bool pair = a.wVk == b.wVk && b.dwFlags == ((a.dwFlags & kKeyUnicode) | kKeyUp);
      const bool unicode = pair && a.dwFlags == kKeyUnicode && a.wVk == 0 && a.wScan == b.wScan;
      const bool stroke = pair && a.dwFlags < 2 && a.wScan == 0 && b.wScan == layout->ScanCode(b.wVk);
      const bool single = a.wScan == 0 && (a.dwFlags & ~kKeyUp) == 0 && a.type == kInputKeyboard;
      const char* const format = unicode  ? "u%X "
                                 : stroke ? (a.dwFlags ? "%dx " : "%d ")
                                 : single ? (a.dwFlags ? "-%d " : "+%d ")
                                          : "? ";
      char word[16];
      text.append(word, std::snprintf(word, sizeof word, format, unicode ? a.wScan : a.wVk));
      i += unicode || stroke;
    }
    return text;
  }

  std::int32_t SendInput(std::span<const INPUT> events, std::int32_t size) override {
    if (size == 28) records.assign(events.begin(), events.end());
    return ++calls;
  }
  std::int16_t VkKeyScanA(std::uint8_t character) const override { return layout->VkKeyScan(character); }
  std::int32_t GetKeyboardLayout(std::int32_t) const override { return layout->handle; }
  std::int32_t MapVirtualKeyExA(std::int32_t key, std::int32_t type, std::int32_t handle) const override {
    return type == 0 && handle == layout->handle ? layout->ScanCode(key) : 0;
  }
  std::int16_t GetKeyState(std::int32_t key) const override { return key == kVkCapital && capsLock; }
};

struct RecordedSendKeys : Dialogs {
  std::u16string keys;  // of all SendKeys: the text, and "!" for one to wait for
  std::int32_t MsgBox(std::u16string_view, std::int32_t, std::optional<std::u16string_view>) override {
    return 0;
  }
  void Beep() override {}
  void SendKeys(std::u16string_view text, bool wait) override { keys.append(text).append(wait, u'!'); }
};

std::vector<std::u16string_view> Split(std::u16string_view text, std::u16string_view delimiter,
                                       int limit = -1, Comparison comparison = Comparison::kOrdinal) {
  std::vector<std::u16string_view> parts;
  SplitText(text, delimiter, limit, comparison, parts);
  return parts;
}

struct Typing : testing::Test {
  RecordingQueue queue;
  RecordedSendKeys stock;
  kit::RegionalKernel kernel;

  // The number of records, all sent in one call, or the number of the error, negative, if nothing was sent.
  int Send(std::u16string_view text, bool wait = true) {
    queue.calls = 0;
    queue.records.clear();
    try {
      SendKeyString(queue, kernel, stock, text, wait);
    } catch (const Erro& erro) {
      return queue.calls == 0 ? -erro.Number() : 0;
    }
    return queue.calls == (queue.records.empty() ? 0 : 1) ? static_cast<int>(queue.records.size()) : -1;
  }

  // Rows of a key string and its records as RecordingQueue writes them.
  void ExpectRecords(std::initializer_list<std::pair<std::u16string_view, std::string>> rows) {
    for (const auto& [keys, records] : rows) {
      EXPECT_GE(Send(keys), 0) << testing::PrintToString(keys);
      EXPECT_EQ(queue.Sent(), records + (records.empty() ? "" : " ")) << testing::PrintToString(keys);
    }
  }
};

TEST_F(Typing, ElementsBecomeRecordsInOrder) {
  // clang-format off
  ExpectRecords({
      {u"{TAB}", "9"}, {u"+{TAB}", "+16 9 -16"}, {u"a~", "65 13"}, {u"%{F4}", "+18 115 -18"},
      {u"^(ab)", "+17 65 66 -17"}, {u"^a b", "+17 65 -17 32 66"}, {u"+^a", "+16 +17 65 -17 -16"},
      {u"(a~+)", "65 13 +16 187 -16"}, {u"(({)", "+16 57 -16 +16 221 -16"}, {u"/?", "193 +16 193 -16"},
      {u"+A", "+16 65 -16"}, {u"+aA", "+16 65 -16 +16 65 -16"}, {u"\u00B2", "+17 +18 50 -17 -18"},
      {u"^\u00B2", "+17 +17 +18 50 -17 -18 -17"}, {u"\x01", "+17 +18 65 -17 -18"}});
  // clang-format on
}

TEST_F(Typing, BracesHoldANameOrACharacterAndACount) {
  // clang-format off
  ExpectRecords({
      {u"{LEFT 3}", "37x 37x 37x"}, {u"{+}", "+16 187 -16"}, {u"{}}", "+16 220 -16"},
      {u"{{}", "+16 221 -16"}, {u"{ABC}", "+16 65 -16"}, {u"{} 2}", "+16 220 -16 +16 220 -16"},
      {u"{ }", "32"}, {u"{ 2}", "32 32"}, {u"{abc 2}", "65 65"}, {u"{F17}", "+16 70 -16"},
      {u"{\u00B9}", "+17 +18 49 -17 -18"}, {u"{a 0}", "65"}, {u"{a x}", "65"}, {u"{a -70000}", "65"},
      {u"{a  3}", "65"}, {u"{a 2 9}", "65 65"}, {u"{a 1.5}", "65 65"}, {u"{a 2.5}", "65 65"},
      {u"{tAb}{BackSpace}{BS}{BKSP}{ENTER}{ESC}{SELECT}{PRINT}", "9 8 8 8 13 27 41 42x"},
      {u"{PAUSE}{BREAK}{CAPSLOCK}{NUMLOCK}{SCROLLLOCK}{F1}{F2}{F9}", "19 19x 20 144x 145 112 113 120"},
      {u"{PGUP}{PGDN}{END}{HOME}{UP}{RIGHT}{DOWN}{F10}{F16}", "33x 34x 35x 36x 38x 39x 40x 121 127"},
      {u"{PRTSC}{PRTSCN}{PRINTSCRN}{PRINTSCREEN}{HELP}", "44x 44x 44x 44x 47"},
      {u"{INS}{INSERT}{DELETE}{DEL}", "45x 45x 46x 46x"}});
  // clang-format on
}

TEST_F(Typing, WhatHasNoKeyGoesOutInUnicodeAndWhatCannotBeReadIsDropped) {
  // U+0085 and U+0142 are not in the code page; as a question mark they would have a key.
  // clang-format off
  ExpectRecords({
      {u"\u20AC", "u20AC"}, {u"\uFFFD", "uFFFD"}, {u"+\u00F1", "+16 uF1 -16"}, {u"(\u00B4)", "uB4"},
      {u"{^ 2}", "u5E u5E"}, {u"\u0085", "u85"}, {u"{\u0142}", "u142"}, {u"", ""}, {u"(", ""},
      {u"(({{((", ""}, {u"(abc", "65 66 67"}, {u"()", "+16 48 -16"}, {u"+(a", "+16 -16 65"},
      {u"ab{", "65 66"}, {u"{}", "+16 220 -16"}, {u"{+a", "+16 65 -16"},
      {u"((a)b)", "+16 57 -16 65 66 +16 48 -16"}, {u"{(a)}}", "+16 57 -16 +16 220 -16"}, {u"+", "+16 -16"},
      {u"a^%", "65 +17 +18 -18 -17"}});
  // clang-format on
}

TEST_F(Typing, CapsLockTurnsOverTheShiftOfLettersOutsideBraces) {
  queue.capsLock = true;
  // clang-format off
  ExpectRecords({
      {u"aA", "+16 65 -16 65"}, {u"(zZ)", "+16 90 -16 90"}, {u"1!", "49 +16 49 -16"}, {u"\u00E7", "186"},
      {u"{a}", "65"}, {u"[@", "221 +16 50 -16"}});
  // clang-format on
}

const auto a = [](std::size_t count) { return std::u16string(count, u'a'); };

TEST_F(Typing, AllRecordsThatFitGoOutAndAnErrorSendsNothingAndLeavesNothingBehind) {
  // 486 records leave the bound as it is, 26 are free; 488 raise it by 511.
  // clang-format off
  const std::pair<std::u16string, int> rows[] = {
      {a(300), 600}, {a(100000), 200000}, {u"{a 256}", 512}, {u"{a 257}", -9}, {u"+{a 256}", -9},
      {u"(" + a(256) + u")", 512}, {u"(" + a(257) + u")", -9}, {a(243) + u"{a 13}", 512},
      {a(243) + u"{a 14}", -9}, {a(244) + u"{a 267}", 1022}, {a(244) + u"{a 268}", -9},
      {u"{a 256}{a 255}", 1022}, {u"{a 256}{a 256}", -9}, {std::u16string(256, u'+'), 512},
      {std::u16string(100000, u'+'), -9}, {u"{a 32767.4}", -9}, {u"{a 32767.5}", -6}, {u"+({{b 1e400}", -6}};
  // clang-format on
  for (const auto& [text, outcome] : rows) {
    EXPECT_EQ(Send(text), outcome) << "row " << &text - &rows[0].first;
    ExpectRecords({{u"A", "+16 65 -16"}});
  }
  EXPECT_EQ(Send({u"a", std::size_t{1} << 31}), -6);
}

TEST_F(Typing, SystemsWithoutSendInputGetTheStockSendKeys) {
  // The platform, the major and the minor version, and the records sent.
  for (const auto& row : std::initializer_list<std::array<int, 4>>{
           {1, 4, 0, 0}, {1, 4, 9, 0}, {1, 4, 10, 4}, {1, 5, 0, 4}, {1, 3, 51, 4}, {2, 4, 0, 4}}) {
    kernel.version = {148, row[1], row[2], 0, row[0]};
    EXPECT_EQ(Send(u"+{TAB}", row[2] == 9), row[3]) << testing::PrintToString(row);
  }
  EXPECT_EQ(stock.keys, u"+{TAB}+{TAB}!");
}

TEST_F(Typing, AWarmThreadAllocatesNothing) {
  const std::u16string_view text = u"{TAB}+{TAB}{PRINTSCREEN 2 x}(ab\u20AC)~{a";
  queue.records.reserve(static_cast<std::size_t>(Send(text)));
  const std::size_t before = allocations;
  Send(text);
  EXPECT_EQ(allocations, before);
}

TEST_F(Typing, LongTextsTakeLinearTime) {
  for (const auto* const pair : {u"((", u"{{", u"({", u"{)", u"(}", u"+(", u"(a)", u"{a 5}", u"{TAB}"}) {
    std::u16string text;
    while (text.size() < 300'000) text += pair;
    const auto start = std::chrono::steady_clock::now();
    Send(text);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5)) << "from " << int(pair[0]);
  }
}

TEST(SplitText, CutsAtEachDelimiterUpToTheLimit) {
  using Parts = std::vector<std::u16string_view>;
  // clang-format off
  ExpectEach<Parts>({
      {Split(u" a  b", u" "), {u"", u"a", u"", u"b"}}, {Split(u"", u" "), {u""}},
      {Split(u"a b", u""), {u"a b"}}, {Split(u"a b c", u" ", 2), {u"a", u"b c"}},
      {Split(u"a b c", u" ", 1), {u"a b c"}}, {Split(u"a b c", u" ", 0), {}},
      {Split(u"1xy2XY3xY", u"xY"), {u"1xy2XY3", u""}},
      {Split(u"1xy2XY3", u"xY", -1, Comparison::kIgnoreCase), {u"1", u"2", u"3"}}});
  // clang-format on
}

}  // namespace
}  // namespace gabarito
