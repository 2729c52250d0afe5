// Text primitives: replacing, keeping characters of a set, stripping accents, telling letters.
//
// Pure routines over UTF-16 code units; positions are 1-based. The routines that walk a text count in a
// 16-bit integer: a text of more than 32767 characters raises 6 before the walk, where a routine
// says so.
#ifndef GABARITO_RULES_PRIMITIVAS_H
#define GABARITO_RULES_PRIMITIVAS_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "gabarito/platform/text.h"

namespace gabarito {

// The longest text that a 16-bit counter walks.
inline constexpr std::size_t kMaiorTextoPercorrido = 32767;

// `texto` with `procurado` replaced by `novo`, from position `inicio` on; what stands before `inicio` stays
// in the result. At most `quantos` replacements; 0 and every negative number mean all. What a replacement
// brings in is not searched again. An empty `procurado`, a `novo` equal to `procurado` (case counts here,
// whatever `comparacao` says) and an `inicio` below 1 give `texto` as it came. Raises nothing; linear in
// the length of `texto`.
std::u16string Substitui(std::u16string_view texto, std::u16string_view procurado, std::u16string_view novo,
                         std::int32_t inicio = 1, std::int32_t quantos = -1,
                         Comparison comparacao = Comparison::kOrdinal);

// The ASCII digits of `texto`, in their order. Raises 6 on a text too long to walk.
std::u16string SoDigitos(std::u16string_view texto);

// The characters of `texto` that occur in `conjunto`, in their order and as they stand. Case is ignored: a
// set of capitals lets small letters pass too. Raises 6 on a text too long to walk.
std::u16string SoCaracteres(std::u16string_view texto, std::u16string_view conjunto);

// `s` in upper case with the accented vowels and the cedilla of Portuguese as plain letters. Quotation marks,
// the grave accent and what the ANSI code page holds from 127 to 191 become one blank each, so the length
// stays. Other letters above 191 stay, as capitals. Raises 6 on a text too long to walk.
std::u16string pfTiraAcentoDeFrase(std::u16string_view s);

// EhLetra for what its inline part does not answer: characters beyond ASCII, and texts of no or of several
// characters, which are ordered as texts.
bool EhLetraPorExtenso(std::u16string_view c);

// Whether `c` is a letter: A to Z, the letters from A with grave to sharp s (the multiplication sign
// among them is none), in either case, and also the blank, "*", the single and the double quotation mark.
// Allocates nothing and raises nothing.
inline bool EhLetra(std::u16string_view c) {
  if (c.size() != 1 || c[0] > 127) return EhLetraPorExtenso(c);
  const char16_t minuscula = c[0] | 32;
  return (minuscula >= u'a' && minuscula <= u'z') || c[0] == u' ' || c[0] == u'\'' || c[0] == u'"' ||
         c[0] == u'*';
}

}  // namespace gabarito

#endif  // GABARITO_RULES_PRIMITIVAS_H
