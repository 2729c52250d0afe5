// Typing for the user: puts the keys that a text describes into the system's input queue.
#ifndef GABARITO_KEYINJECT_SEND_INPUT_H
#define GABARITO_KEYINJECT_SEND_INPUT_H

#include <string_view>

#include "gabarito/platform/dialogs.h"
#include "gabarito/platform/input_queue.h"
#include "gabarito/platform/kernel32.h"

namespace gabarito {

// Sends the keys of `text` (the language is told in key_string.h) with one call of InputQueue::SendInput, and
// returns before any of them is delivered: a key that the handler in progress lets through comes first. A
// text without keys makes no call. On a system without SendInput (platform 1, version below 4.10) the text
// goes to Dialogs::SendKeys instead; `wait` counts only there.
//
// Raises 9 when one element (a count of several hundred, a long group, a long row of modifiers) makes more
// records than are free: about 500, less what the text before it has used of them. Raises 6 for a count
// above 32,767. No event is sent then, and the next call starts clean.
//
// Any thread; state is kept for each. Not to be called from inside InputQueue's own methods. Linear in the
// length of the text and its counts; after the first call of a thread a short text allocates nothing.
void SendKeyString(InputQueue& queue, Kernel32& kernel32, Dialogs& dialogs, std::u16string_view text,
                   bool wait);

}  // namespace gabarito

#endif  // GABARITO_KEYINJECT_SEND_INPUT_H
