// The keys that people know from command lines, as the keys of an entry.
#ifndef HOSTS_TERMINAL_LINE_KEYS_H
#define HOSTS_TERMINAL_LINE_KEYS_H

#include "hosts/memory/form.h"

namespace gabarito::terminal {

// Ctrl+A and Ctrl+E go to the ends, Ctrl+U and Ctrl+K delete up to them, Ctrl+W deletes the word in front of
// the caret; the last three delete a selection instead when there is one. False for any other character. Each
// is played as the arrows and Delete that a person could have pressed, so that the field sees keys that it
// knows.
bool PlayLineKey(memory::Form& form, char16_t character);

// The caret goes to the start of the word in front of it, or behind the end of the one that follows.
void StepWord(memory::Form& form, bool backwards, std::int16_t shift);

}  // namespace gabarito::terminal

#endif  // HOSTS_TERMINAL_LINE_KEYS_H
