#include "hosts/memory/keyboard_layout.h"

#include <gtest/gtest.h>

#include <string>

#include "gabarito/platform/text.h"

namespace gabarito::memory {
namespace {

TEST(KeyboardLayout, TheStrokeOfACharacterTypesThatCharacter) {
  for (const KeyboardLayout* layout : {&Abnt2(), &Us()}) {
    int typed = 0;
    for (int code = 0; code < 256; ++code) {
      const std::int16_t key = layout->VkKeyScan(static_cast<std::uint8_t>(code));
      if (key == -1) continue;
      ++typed;
      EXPECT_EQ(layout->CharacterOf(key & 255, static_cast<std::int16_t>(key >> 8), false), Chr(code))
          << code;
      EXPECT_NE(layout->ScanCode(key & 255), 0) << code;
    }
    // US: 1 to 127 but 30 and 31. ABNT2: 31 and 12 signs of the upper half more, and ^ ~ ` are dead.
    EXPECT_EQ(typed, layout == &Us() ? 125 : 125 + 1 + 12 - 3);
  }
}

TEST(KeyboardLayout, CharactersAreFoundOnTheirKeys) {
  const struct {
    const KeyboardLayout& layout;
    int code, key;
  } rows[] = {
      {Abnt2(), '/', 0x0C1},  {Abnt2(), '?', 0x1C1},  {Abnt2(), '[', 0x0DD},  {Abnt2(), ']', 0x0DC},
      {Abnt2(), ';', 0x0BF},  {Abnt2(), '\'', 0x0C0}, {Abnt2(), '"', 0x1C0},  {Abnt2(), 0xE7, 0x0BA},
      {Abnt2(), 0xC7, 0x1BA}, {Abnt2(), 0xA7, 0x6BB}, {Abnt2(), 0xBA, 0x6DC}, {Abnt2(), ',', 0x0BC},
      {Abnt2(), '^', -1},     {Abnt2(), '~', -1},     {Abnt2(), '`', -1},     {Abnt2(), 0xB4, -1},
      {Abnt2(), 0xA8, -1},    {Abnt2(), 0xE3, -1},    {Abnt2(), 0x80, -1},    {Us(), '/', 0x0BF},
      {Us(), '^', 0x136},     {Us(), '~', 0x1C0},     {Us(), '*', 0x138},     {Us(), '+', 0x1BB},
      {Us(), 0xE7, -1},       {Us(), 'Z', 0x15A},     {Us(), 1, 0x241},       {Us(), 8, 0x008},
      {Us(), 9, 0x009},       {Us(), 10, 0x20D},      {Us(), 13, 0x00D},      {Us(), 27, 0x01B},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(row.layout.VkKeyScan(static_cast<std::uint8_t>(row.code)), row.key)
        << "character " << row.code << " row " << &row - rows;
  }
  EXPECT_EQ(Abnt2().StrokeFor(u'\u20A2'), (KeyStroke{'C', 6}));
  for (const char16_t none : u"\0\u20AC\u0100") EXPECT_EQ(Abnt2().StrokeFor(none), std::nullopt);
}

TEST(KeyboardLayout, AKeyTypesByItsShiftStateAndCapsLock) {
  const struct {
    std::int16_t vk, shift;
    bool capsLock;
    char16_t character;
  } rows[] = {
      {'A', 0, false, u'a'},  {'A', 1, false, u'A'},      {'A', 0, true, u'A'},
      {'A', 1, true, u'a'},   {'A', 2, true, 1},          {'A', 3, false, 1},
      {'A', 4, false, 0},     {'A', 6, false, 0},         {'Q', 6, true, u'/'},
      {'Q', 7, false, 0},     {0xBA, 0, true, u'\u00C7'}, {0xBA, 1, true, u'\u00E7'},
      {'1', 0, true, u'1'},   {'1', 6, false, u'\u00B9'}, {'6', 1, false, 0},
      {0xDE, 0, false, 0},    {0xDD, 3, false, 0},        {13, 0, false, 13},
      {13, 2, false, 10},     {9, 1, false, 9},           {96, 0, false, u'0'},
      {105, 0, false, u'9'},  {106, 0, false, u'*'},      {110, 0, false, u','},
      {0xC2, 0, false, u'.'}, {111, 0, true, u'/'},       {37, 0, false, 0},
      {-1, 0, false, 0},      {256, 0, false, 0},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(Abnt2().CharacterOf(row.vk, row.shift, row.capsLock), row.character) << "row " << &row - rows;
  }
  EXPECT_EQ(Us().CharacterOf(110, 0, false), u'.');
  EXPECT_EQ(Abnt2().ScanCode(-1) + Abnt2().ScanCode(256) + Us().ScanCode(0xC1), 0);
}

}  // namespace
}  // namespace gabarito::memory
