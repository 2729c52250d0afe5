// What an entry does by itself with keys and characters: for a host whose models are the entries themselves,
// for the masked box, which only its engine may change, and for an entry of a host's own beside the fields.
#ifndef HOSTS_KIT_OWN_ENTRY_H
#define HOSTS_KIT_OWN_ENTRY_H

#include <string>

#include "hosts/kit/input_model.h"
#include "hosts/kit/text_line.h"

namespace gabarito {
class MaskedEdit;
}

namespace gabarito::kit {

// Characters of the clipboard and of correction, as keys with Ctrl type them.
inline constexpr char16_t kCopy = 3;
inline constexpr char16_t kBackspace = 8;
inline constexpr char16_t kPaste = 22;
inline constexpr char16_t kCut = 24;

// The part of a text that a single-line entry takes from the clipboard: up to its first line break.
std::u16string_view FirstLine(std::u16string_view text);

// Takes the selection away, or else one character before or behind the caret.
void Backspace(TextLine& line);
void Delete(TextLine& line);

// Backspace, copy, cut and paste; a character from 32 up is inserted unless the line is full; others do
// nothing. `limit` is the longest text, 0 for none.
void TypeInto(TextLine& line, char16_t character, std::int32_t limit, std::u16string& clipboard);

// Delete, arrows, Home and End, with Shift to select from `anchor`, which is kept between calls; other keys
// do nothing.
void KeyInto(TextLine& line, std::int32_t& anchor, std::int16_t vk, std::int16_t shift);
void KeyInto(MaskedEdit& line, std::int32_t& anchor, std::int16_t vk, std::int16_t shift);

// The character that a key with Ctrl stands for when an entry carries the clipboard out at key-down: kCopy,
// kPaste or kCut, or 0 for any other key.
char16_t ClipboardKey(std::int16_t vk, std::int16_t shift);

// What the entry of a child does with a key that has gone down, after the event, with what the handler has
// left in `vk` and `shift`. False when the key is used up and its character must not arrive.
bool ActOnKeyDown(InputModel& child, std::int16_t vk, std::int16_t shift, std::u16string& clipboard);

// What it does with what KeyPress has given. A character that fits nowhere in the masked box beeps.
void ActOnCharacter(InputModel& child, char16_t character, std::u16string& clipboard);

}  // namespace gabarito::kit

#endif  // HOSTS_KIT_OWN_ENTRY_H
