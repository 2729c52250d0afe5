// The key names of the key-string language: what may stand between braces, as in {TAB} or {F5}.
#ifndef GABARITO_KEYINJECT_KEY_NAMES_H
#define GABARITO_KEYINJECT_KEY_NAMES_H

#include <cstdint>
#include <string_view>

namespace gabarito {

// The virtual key of one of the 46 names, in capitals, small letters or mixed; 0 for any other text.
// No allocation.
std::int16_t KeyNameToVk(std::u16string_view name);

// Whether the press of that key carries the extended flag, which tells, say, the arrows from those of the
// numeric keypad; false for any other text. PAUSE and BREAK share a virtual key and differ in this alone.
bool IsExtendedKeyName(std::u16string_view name);

}  // namespace gabarito

#endif  // GABARITO_KEYINJECT_KEY_NAMES_H
