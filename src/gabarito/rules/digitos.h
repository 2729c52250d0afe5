// The ten ASCII digits in a text, and the 26 capitals where a number may hold letters; no other character
// counts as one.
#ifndef GABARITO_RULES_DIGITOS_H
#define GABARITO_RULES_DIGITOS_H

#include <cstdint>
#include <string_view>

#include "gabarito/platform/number.h"

namespace gabarito {

constexpr bool EhDigito(char16_t c) { return c >= u'0' && c <= u'9'; }

constexpr bool EhMaiuscula(char16_t c) { return c >= u'A' && c <= u'Z'; }

// The digit or the letter as a capital; 0 for every other character.
constexpr char16_t DigitoOuMaiuscula(char16_t c) {
  if (c >= u'a' && c <= u'z') return static_cast<char16_t>(c - u'a' + u'A');
  return EhDigito(c) || EhMaiuscula(c) ? c : u'\0';
}

// The value of one character taken as a digit: 0 for every character that is none.
constexpr std::int16_t ValorDoDigito(char16_t c) {
  return static_cast<std::int16_t>(EhDigito(c) ? c - u'0' : 0);
}

// How `Val(texto)` stands to 0 and to 1, for callers that ask no more: a text of digits alone gives 0 when
// its value is 0 and 1 when it is 1 or more, without being converted; any other text gives its `Val`.
inline double Grandeza(std::u16string_view texto) {
  bool algumNaoZero = false;
  for (const char16_t c : texto) {
    if (!EhDigito(c)) return Val(texto);
    algumNaoZero |= c != u'0';
  }
  return algumNaoZero ? 1 : 0;
}

}  // namespace gabarito

#endif  // GABARITO_RULES_DIGITOS_H
