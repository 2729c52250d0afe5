// The parser of the key-string language: from a text to the calls that add records.
//
//   a           the key that types it; a character that no key types goes out as itself, in Unicode
//   ~           Enter
//   + ^ %       Shift, Ctrl, Alt held during the next element: +a, +(ab), +^a
//   (ab)        a group: each character a plain one, "~" still Enter; it cannot hold a ")"
//   {TAB}       a key by its name (key_names.h)
//   {+}         the key that types the character between the braces, also "{" and "}"
//   {LEFT 3}    either of these, three times
//
// What cannot be read is dropped: a "(" without its ")" or with nothing before it, a "{" without its "}".
// A modifier at the end of the text is pressed and released. Time is linear in the length of the text and
// in the counts.
#ifndef GABARITO_KEYINJECT_KEY_STRING_H
#define GABARITO_KEYINJECT_KEY_STRING_H

#include <cstdint>
#include <string_view>
#include <vector>

#include "gabarito/keyinject/key_records.h"
#include "gabarito/platform/text.h"

namespace gabarito {

// Reads the element behind keyPos, if there is one, and leaves keyPos on its last character. Raises 9 when
// its records pass the bound, 6 when a count is above 32,767.
void ParseNextElement(MSendInput& m);

// One for each kind of element; keyPos stands on its first character. A modifier is followed by
// ParseNextElement.
void ParseModifier(MSendInput& m, char16_t c);
void ParseGroup(MSendInput& m);
void ParseBrace(MSendInput& m);

// One character, wherever keyPos stands. Looks at Caps Lock, so that a letter comes out as it is written.
void ParsePlainChar(MSendInput& m, char16_t c);

// Cuts `texto` at each `delimitador` into `partes`, which are views of it. `limite` is the greatest number of
// parts, the last of which holds all that remains; negative for no limit, 0 gives no part at all. With an
// empty delimiter the whole text is the one part.
void SplitText(std::u16string_view texto, std::u16string_view delimitador, std::int32_t limite,
               Comparison comparacao, std::vector<std::u16string_view>& partes);

constexpr std::uint8_t HighByte(std::int16_t v) {
  return static_cast<std::uint8_t>(static_cast<std::uint16_t>(v) >> 8);
}
constexpr std::uint8_t LowByte(std::int16_t v) { return static_cast<std::uint8_t>(v); }

bool CapsLockOn(const InputQueue& queue);

}  // namespace gabarito

#endif  // GABARITO_KEYINJECT_KEY_STRING_H
