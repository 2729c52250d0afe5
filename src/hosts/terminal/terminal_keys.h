// The keys of a terminal as those of the form.
#ifndef HOSTS_TERMINAL_TERMINAL_KEYS_H
#define HOSTS_TERMINAL_TERMINAL_KEYS_H

#include <optional>

#include "hosts/terminal/display.h"

namespace gabarito::terminal {

// Teaches ncurses the sequences that terminals send beyond what their description says.
void DefineKeys();

// A key code of ncurses; nothing for one that means nothing here.
std::optional<Input> InputOfKey(int code);

// A character that a key typed; nothing for NUL, which no key of the form types.
std::optional<Input> InputOfCharacter(char32_t character);

}  // namespace gabarito::terminal

#endif  // HOSTS_TERMINAL_TERMINAL_KEYS_H
