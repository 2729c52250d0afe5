// Stored properties as JSON and back.
#ifndef SCRIPT_BAG_JSON_H
#define SCRIPT_BAG_JSON_H

#include <string_view>

#include "hosts/kit/memory_bag.h"
#include "script/properties.h"

namespace gabarito::script {

// The stored keys in the order of writing. A font is an object with Name and Size, and Bold and Italic where
// they are on.
Json ToJson(const kit::MemoryBag& bag);

// UsageError, telling what is wrong, for a text that is no JSON object of texts, numbers, booleans, nulls and
// fonts.
kit::MemoryBag BagFromJson(std::string_view json);

}  // namespace gabarito::script

#endif  // SCRIPT_BAG_JSON_H
