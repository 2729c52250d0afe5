#include "hosts/kit/memory_bag.h"

namespace gabarito::kit {

Variant MemoryBag::ReadProperty(std::u16string_view key, const Variant& absent) const {
  for (const auto& [name, value] : values_) {
    if (name == key) return value;
  }
  return absent;
}

void MemoryBag::WriteProperty(std::u16string_view key, const Variant& value, const Variant& absent) {
  if (SameValue(value, absent)) return;
  Variant copy = value;
  // The live font goes on changing; the bag keeps what it was.
  if (const auto* font = std::get_if<FontRef>(&value); font != nullptr && *font != nullptr) {
    copy = std::make_shared<StdFont>(**font);
  }
  for (auto& [name, stored] : values_) {
    if (name != key) continue;
    stored = std::move(copy);
    return;
  }
  values_.emplace_back(key, std::move(copy));
}

}  // namespace gabarito::kit
