// A property bag that is kept in memory and goes to JSON and back.
#ifndef HOSTS_MEMORY_MEMORY_BAG_H
#define HOSTS_MEMORY_MEMORY_BAG_H

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "gabarito/platform/user_control.h"

namespace gabarito::memory {

class MemoryBag final : public PropertyBag {
 public:
  Variant ReadProperty(std::u16string_view key, const Variant& absent) const override;
  // Storing a key again replaces its value in its place.
  void WriteProperty(std::u16string_view key, const Variant& value, const Variant& absent) override;

  // The stored keys in the order of writing, on one line without blanks. A font is an object with Name and
  // Size, and Bold and Italic where they are on.
  std::string ToJson() const;

  // Throws std::invalid_argument, telling what is wrong, for a text that is no JSON object of texts, numbers,
  // booleans, nulls and fonts.
  static MemoryBag FromJson(std::string_view json);

 private:
  std::vector<std::pair<std::u16string, Variant>> values_;
};

}  // namespace gabarito::memory

#endif  // HOSTS_MEMORY_MEMORY_BAG_H
