// A property bag that is kept in memory.
#ifndef HOSTS_KIT_MEMORY_BAG_H
#define HOSTS_KIT_MEMORY_BAG_H

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "gabarito/platform/user_control.h"

namespace gabarito::kit {

class MemoryBag final : public PropertyBag {
 public:
  Variant ReadProperty(std::u16string_view key, const Variant& absent) const override;
  // Storing a key again replaces its value in its place.
  void WriteProperty(std::u16string_view key, const Variant& value, const Variant& absent) override;

  // The same for a key that is not stored yet, without looking for it.
  void Append(std::u16string_view key, const Variant& value) { values_.emplace_back(key, value); }

  // The stored keys in the order of writing.
  const std::vector<std::pair<std::u16string, Variant>>& Values() const { return values_; }

 private:
  std::vector<std::pair<std::u16string, Variant>> values_;
};

}  // namespace gabarito::kit

#endif  // HOSTS_KIT_MEMORY_BAG_H
