#include "gabarito/keyinject/key_names.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include "gabarito/platform/text.h"

namespace gabarito {
namespace {

struct KeyName {
  std::u16string_view name;
  std::int16_t vk;
  bool extended;
};

// Written in the order of the keys and sorted by name while compiling: there is nothing to fill at the first
// use, and a look-up compares with the names of one first letter.
constexpr auto kKeyNames = [] {
  std::array<KeyName, 46> names = {{
      {u"BACKSPACE", 8, false},    {u"BS", 8, false},          {u"BKSP", 8, false},
      {u"TAB", 9, false},          {u"ENTER", 13, false},      {u"PAUSE", 19, false},
      {u"BREAK", 19, true},        {u"CAPSLOCK", 20, false},   {u"ESC", 27, false},
      {u"PGUP", 33, true},         {u"PGDN", 34, true},        {u"END", 35, true},
      {u"HOME", 36, true},         {u"LEFT", 37, true},        {u"UP", 38, true},
      {u"RIGHT", 39, true},        {u"DOWN", 40, true},        {u"SELECT", 41, false},
      {u"PRINT", 42, true},        {u"PRTSC", 44, true},       {u"PRTSCN", 44, true},
      {u"PRINTSCRN", 44, true},    {u"PRINTSCREEN", 44, true}, {u"INS", 45, true},
      {u"INSERT", 45, true},       {u"DELETE", 46, true},      {u"DEL", 46, true},
      {u"HELP", 47, false},        {u"F1", 112, false},        {u"F2", 113, false},
      {u"F3", 114, false},         {u"F4", 115, false},        {u"F5", 116, false},
      {u"F6", 117, false},         {u"F7", 118, false},        {u"F8", 119, false},
      {u"F9", 120, false},         {u"F10", 121, false},       {u"F11", 122, false},
      {u"F12", 123, false},        {u"F13", 124, false},       {u"F14", 125, false},
      {u"F15", 126, false},        {u"F16", 127, false},       {u"NUMLOCK", 144, true},
      {u"SCROLLLOCK", 145, false},
  }};
  // By insertion: not every standard library can sort while compiling.
  for (std::size_t i = 1; i < names.size(); ++i) {
    for (std::size_t k = i; k > 0 && names[k].name < names[k - 1].name; --k)
      std::swap(names[k], names[k - 1]);
  }
  return names;
}();

constexpr bool HasNameTwice() {
  for (std::size_t i = 1; i < kKeyNames.size(); ++i) {
    if (kKeyNames[i].name == kKeyNames[i - 1].name) return true;
  }
  return false;
}
static_assert(!HasNameTwice());

constexpr std::size_t kLongestName = [] {
  std::size_t longest = 0;
  for (const KeyName& key : kKeyNames) longest = std::max(longest, key.name.size());
  return longest;
}();

// Where the names of each first letter begin; the last number is the end of those of Z.
constexpr auto kFirstOfLetter = [] {
  std::array<std::uint8_t, 27> first{};
  for (std::size_t letter = 0; letter < first.size(); ++letter) {
    while (first[letter] < kKeyNames.size() && kKeyNames[first[letter]].name[0] < u'A' + letter)
      ++first[letter];
  }
  return first;
}();

const KeyName* Find(std::u16string_view name) {
  if (name.empty() || name.size() > kLongestName) return nullptr;
  std::array<char16_t, kLongestName> buffer;
  for (std::size_t i = 0; i < name.size(); ++i) buffer[i] = UCase(name[i]);
  const std::u16string_view capitals(buffer.data(), name.size());
  if (buffer[0] < u'A' || buffer[0] > u'Z') return nullptr;
  const auto letter = static_cast<std::size_t>(buffer[0] - u'A');
  for (std::size_t i = kFirstOfLetter[letter]; i < kFirstOfLetter[letter + 1]; ++i) {
    if (kKeyNames[i].name == capitals) return &kKeyNames[i];
  }
  return nullptr;
}

}  // namespace

std::int16_t KeyNameToVk(std::u16string_view name) {
  const KeyName* const key = Find(name);
  return key ? key->vk : std::int16_t{0};
}

bool IsExtendedKeyName(std::u16string_view name) {
  const KeyName* const key = Find(name);
  return key && key->extended;
}

}  // namespace gabarito
