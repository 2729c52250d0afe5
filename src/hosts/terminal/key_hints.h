// Why a key did nothing, in a few words for a person.
#ifndef HOSTS_TERMINAL_KEY_HINTS_H
#define HOSTS_TERMINAL_KEY_HINTS_H

#include <string_view>

#include "gabarito/control/gabarito.h"
#include "hosts/terminal/entries.h"

namespace gabarito::terminal {

// For a key that an entry of `field` has refused by a sound. Judges nothing: the field has done that, and
// these are the words for it.
std::u16string_view WhyRefused(const Gabarito& field, const Piece& entry, char16_t character);

// For a key that left a list where it was.
inline constexpr std::u16string_view kNotInList = u"não está na lista";

}  // namespace gabarito::terminal

#endif  // HOSTS_TERMINAL_KEY_HINTS_H
