// A value of any of the types that a property bag or a list of items can hold.
#ifndef GABARITO_PLATFORM_VARIANT_H
#define GABARITO_PLATFORM_VARIANT_H

#include <cstdint>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "gabarito/platform/std_font.h"

namespace gabarito {

struct VariantArray;

struct Empty {
  friend bool operator==(Empty, Empty) = default;
};
struct Null {
  friend bool operator==(Null, Null) = default;
};

using Variant = std::variant<Empty, Null, bool, std::int32_t, double, std::u16string, FontRef,
                             std::shared_ptr<const VariantArray>>;

// An array; `dimensions` other than 1 are carried so that they can be refused.
struct VariantArray {
  std::int64_t lowerBound = 0;
  std::vector<Variant> items;
  std::int32_t dimensions = 1;

  std::int64_t UpperBound() const { return lowerBound + static_cast<std::int64_t>(items.size()) - 1; }
};

Variant MakeArray(std::vector<Variant> items, std::int64_t lowerBound = 0);

// The text form. Empty is the empty text, a boolean "True" or "False"; `decimal` is the decimal mark of the
// region. Raises 13 on a value without such a form: Null, a font, an array.
std::u16string ToText(const Variant& value, std::u16string_view decimal = u",");

// Equal type and value; fonts by name, size and style, arrays by identity.
bool SameValue(const Variant& a, const Variant& b);

}  // namespace gabarito

#endif  // GABARITO_PLATFORM_VARIANT_H
