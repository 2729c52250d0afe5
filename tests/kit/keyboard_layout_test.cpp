#include "hosts/kit/keyboard_layout.h"

#include <gtest/gtest.h>

#include "gabarito/platform/text.h"

namespace gabarito::kit {
namespace {

TEST(KeyboardLayout, TheStrokeOfACharacterTypesThatCharacter) {
  for (const KeyboardLayout* layout : {&Abnt2(), &Us()}) {
    int typed = 0;
    for (int code = 0; code < 256; ++code) {
      const std::int16_t key = layout->VkKeyScan(static_cast<std::uint8_t>(code));
      if (key == -1) continue;
      ++typed;
      const auto shift = static_cast<std::int16_t>(key >> 8);
      EXPECT_EQ(layout->CharacterOf(key & 255, shift, false), Chr(code)) << code;
      EXPECT_NE(layout->ScanCode(key & 255), 0) << code;
    }
    // US: 1 to 127 but 30 and 31. ABNT2: 31 and 12 signs of the upper half more, and ^ ~ ` are dead.
    EXPECT_EQ(typed, layout == &Us() ? 125 : 125 + 1 + 12 - 3);
  }
}

TEST(KeyboardLayout, CharactersAreFoundOnTheirKeys) {
  const std::tuple<const KeyboardLayout&, std::u16string_view, std::vector<int>> rows[] = {
      {Abnt2(),
       u"/?[];'\",\u00E7\u00C7\u00A7\u00BA^~`\u00B4\u00A8\u00E3\u20AC",
       {0x0C1, 0x1C1, 0x0DD, 0x0DC, 0x0BF, 0x0C0, 0x1C0, 0x0BC, 0x0BA, 0x1BA, 0x6BB, 0x6DC, -1, -1, -1, -1,
        -1, -1, -1}},
      {Us(),
       u"/^~*+\u00E7Z\x01\b\t\n\r\x1B",
       {0x0BF, 0x136, 0x1C0, 0x138, 0x1BB, -1, 0x15A, 0x241, 0x008, 0x009, 0x20D, 0x00D, 0x01B}}};
  for (const auto& [layout, characters, keys] : rows) {
    std::vector<int> found;
    for (const char16_t c : characters) found.push_back(layout.VkKeyScan(Asc(c)));
    EXPECT_EQ(found, keys);
  }
  EXPECT_EQ(Abnt2().StrokeFor(u'\u20A2'), (KeyStroke{'C', 6}));
  for (const char16_t none : u"\u20AC\u0100") EXPECT_EQ(Abnt2().StrokeFor(none), std::nullopt);
}

TEST(KeyboardLayout, AKeyTypesByItsShiftStateAndCapsLock) {
  // What a key types, "_" for nothing, in the shift states below and with Caps Lock plain and with Shift.
  constexpr std::int16_t kShifts[] = {0, 1, 2, 3, 4, 6, 7, 0, 1};
  // clang-format off
  const std::pair<std::int16_t, std::u16string_view> rows[] = {
      {'Q', u"qQ\x11\x11_/_Qq"}, {0xBA, u"\u00E7\u00C7\x1D____\u00C7\u00E7"}, {'1', u"1!___\u00B9_1!"},
      {'6', u"6____\u00AC_6_"}, {0xDE, u"_________"}, {0xDD, u"[{\x1B__\u00AA_[{"}, {13, u"\r\r\n____\r\r"},
      {96, u"0______0_"}, {107, u"++_____++"}, {110, u",,_____,,"}, {0xC2, u".._____.."}, {37, u"_________"},
      {-1, u"_________"}, {256, u"_________"}};
  // clang-format on
  for (const auto& [vk, characters] : rows) {
    std::u16string typed;
    for (std::size_t i = 0; i < std::size(kShifts); ++i) {
      const char16_t character = Abnt2().CharacterOf(vk, kShifts[i], i >= 7);
      typed += character == 0 ? u'_' : character;
    }
    EXPECT_EQ(typed, characters) << "key " << vk;
  }
  EXPECT_EQ(Us().CharacterOf(110, 0, false), u'.');
  EXPECT_EQ(Abnt2().ScanCode(-1) + Abnt2().ScanCode(256) + Us().ScanCode(0xC1), 0);
}

}  // namespace
}  // namespace gabarito::kit
