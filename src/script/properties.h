// The public properties by their names, with JSON values: what the program's commands set and show.
#ifndef SCRIPT_PROPERTIES_H
#define SCRIPT_PROPERTIES_H

#include <cstdint>
#include <string>
#include <string_view>

#include "gabarito/control/gabarito.h"
#include "script/json_fwd.h"
#include "script/usage_error.h"

namespace gabarito::script {

// The value of Mask for a name ("gbCPF"), in any case and with or without "gb", or for a number. UsageError
// on any other text, with the name that was probably meant.
std::int32_t MaskFromText(std::string_view text);

// Sets a property. Numbers, booleans and texts as JSON; `Mask` a name or a number; `Font` an object with Name
// and Size; `ComboItens` an array, or {"lower":1,"items":[...]}. UsageError when the name is none, the
// property is read only, or the value is not of its type; what the setter raises passes.
void SetProperty(Gabarito& field, std::string_view name, const Json& value);

// The same with a value as a person types it: a text is taken as it stands or, if it begins with a quote, as
// one JSON string; numbers decimal or 0x...; booleans true and false; Font and ComboItens as JSON.
void SetPropertyFromText(Gabarito& field, std::string_view name, std::string_view text);

// Reads a property; Empty is null.
Json GetProperty(Gabarito& field, std::string_view name);

// Pieces that other readers of actions use too. UsageError each, naming `what`.
std::int64_t NumberFromText(std::string_view text, std::string_view what, std::int64_t least,
                            std::int64_t most);
bool BooleanFromText(std::string_view text, std::string_view what);
std::u16string TextFromText(std::string_view text);
Json JsonFromText(std::string_view text, std::string_view what);
FontRef FontFromJson(const Json& value);

// A length in twips: without a point when it is whole.
Json LengthToJson(float length);
// UsageError beyond a million inches either way, where sums of lengths would leave the numbers.
float LengthFromText(std::string_view text);

}  // namespace gabarito::script

#endif  // SCRIPT_PROPERTIES_H
