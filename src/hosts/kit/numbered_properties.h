// The properties of the field by number, for a host that reaches them across a language border.
#ifndef HOSTS_KIT_NUMBERED_PROPERTIES_H
#define HOSTS_KIT_NUMBERED_PROPERTIES_H

#include <cstdint>
#include <string>
#include <string_view>

#include "gabarito/control/gabarito.h"

namespace gabarito::kit {

// The same numbers stand in web/src/properties.ts.
enum class Property : std::int32_t {
  kMask,
  kMaskText,
  kMaxLength,
  kComboItens,
  kEnabled,
  kText,
  kUsarFundoPastel,
  kPreencherDatasInvalidasComDataDeHoje,
  kAppearance,
  kTrataEnterComoTab,
  kComboListIndex,
  kComboListCount,
  kCNPJAlfanumerico,
};

// A number or a boolean in `number`, a text in `text`; the words of ComboItens are joined by U+0000. Raises
// what the property raises, and 438 for one that cannot be set.
void SetProperty(Gabarito& field, Property property, std::int32_t number, std::u16string_view text);

// The value as a text; numbers in decimal, booleans 0 or 1. Text runs the check.
std::u16string GetProperty(Gabarito& field, Property property);

}  // namespace gabarito::kit

#endif  // HOSTS_KIT_NUMBERED_PROPERTIES_H
