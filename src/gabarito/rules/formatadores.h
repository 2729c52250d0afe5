// The punctuation of document numbers.
#ifndef GABARITO_RULES_FORMATADORES_H
#define GABARITO_RULES_FORMATADORES_H

#include <string>
#include <string_view>

namespace gabarito {

// The digits of `s` as NNN.NNN.NNN-NN when they are exactly 11, otherwise the digits alone. Raises 6 on a
// text of more than 32767 characters.
std::u16string FormataComoCPF(std::u16string_view s);

// The digits of `s` as NN.NNN.NNN/NNNN-NN when they are exactly 14, otherwise the digits alone (a root of
// eight digits stays bare). Raises 6 on a text of more than 32767 characters.
std::u16string FormataComoCNPJ(std::u16string_view s);

// The same with letters: the digits and ASCII letters of `s`, these as capitals, in that form when they are
// twelve of either and two digits, otherwise bare.
std::u16string FormataComoCNPJAlfanumerico(std::u16string_view s);

// The first 16 characters of `s` that are no blanks, in groups of four parted by blanks. The three blanks
// are always there, whatever the length: the empty text gives three. Hyphens and letters stay.
std::u16string FormataComoCartao(std::u16string_view s);

}  // namespace gabarito

#endif  // GABARITO_RULES_FORMATADORES_H
