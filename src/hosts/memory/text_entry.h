// The keys that a plain entry understands by itself, on top of its line of text.
#ifndef HOSTS_MEMORY_TEXT_ENTRY_H
#define HOSTS_MEMORY_TEXT_ENTRY_H

#include <string>

#include "hosts/memory/edit_line.h"

namespace gabarito::memory {

// Characters of the clipboard and of correction, as keys with Ctrl type them.
inline constexpr char16_t kCopy = 3;
inline constexpr char16_t kBackspace = 8;
inline constexpr char16_t kPaste = 22;
inline constexpr char16_t kCut = 24;

// The part of a text that a single-line entry takes from the clipboard: up to its first line break.
std::u16string_view FirstLine(std::u16string_view text);

// Backspace, copy, cut and paste; a character from 32 up is inserted unless the line is full; others do
// nothing. `limit` is the longest text, 0 for none.
void TypeInto(EditLine& line, char16_t character, std::int32_t limit, std::u16string& clipboard);

// Delete, arrows, Home and End, with Shift to select from `anchor`; other keys do nothing.
void KeyInto(EditLine& line, std::int32_t& anchor, std::int16_t vk, std::int16_t shift);

// The character that a key with Ctrl stands for when an entry carries the clipboard out at key-down: kCopy,
// kPaste or kCut, or 0 for any other key.
char16_t ClipboardKey(std::int16_t vk, std::int16_t shift);

}  // namespace gabarito::memory

#endif  // HOSTS_MEMORY_TEXT_ENTRY_H
