// The keys of a terminal as those of the form.
#ifndef HOSTS_TERMINAL_TERMINAL_KEYS_H
#define HOSTS_TERMINAL_TERMINAL_KEYS_H

#include <optional>

#include "hosts/terminal/display.h"

namespace gabarito::terminal {

// Teaches ncurses the sequences that terminals send beyond what their description says.
void DefineKeys();

// The next key, click or paste that has arrived; nothing when none has. Escape sequences that mean nothing
// here and keys with Alt are kNothing as a whole: none of their characters comes through as if it had been
// typed.
std::optional<Input> ReadInput();

}  // namespace gabarito::terminal

#endif  // HOSTS_TERMINAL_TERMINAL_KEYS_H
