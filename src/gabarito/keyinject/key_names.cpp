#include "gabarito/keyinject/key_names.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "gabarito/platform/text.h"

namespace gabarito {
namespace {

struct KeyName {
  std::u16string_view name;
  std::int16_t vk;
  bool extended;
};

// Written in the order of the keys and sorted by name while compiling: there is nothing to fill at the first
// use, and a look-up is six comparisons.
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
  std::ranges::sort(names, {}, &KeyName::name);
  return names;
}();

static_assert(std::ranges::adjacent_find(kKeyNames, {}, &KeyName::name) == kKeyNames.end(), "a name twice");

constexpr std::size_t kLongestName =
    std::ranges::max(kKeyNames, {}, [](const KeyName& key) { return key.name.size(); }).name.size();

const KeyName* Find(std::u16string_view name) {
  if (name.size() > kLongestName) return nullptr;
  std::array<char16_t, kLongestName> buffer;
  std::ranges::transform(name, buffer.begin(), [](char16_t character) { return UCase(character); });
  const std::u16string_view capitals(buffer.data(), name.size());
  const auto found = std::ranges::lower_bound(kKeyNames, capitals, {}, &KeyName::name);
  return found != kKeyNames.end() && found->name == capitals ? &*found : nullptr;
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
