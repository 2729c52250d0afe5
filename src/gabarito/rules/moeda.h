// The text form of real numbers, money and versions.
#ifndef GABARITO_RULES_MOEDA_H
#define GABARITO_RULES_MOEDA_H

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "gabarito/platform/kernel32.h"
#include "gabarito/rules/arredonda.h"

namespace gabarito {

// A separator as the system gives it: at most 9 characters, none when it gives none.
struct Separador {
  std::array<char16_t, 10> caracteres;
  std::size_t tamanho = 0;

  std::u16string_view Texto() const { return {caracteres.data(), tamanho}; }
  operator std::u16string_view() const { return Texto(); }
};

// The user's decimal mark and thousands separator, asked of the system on each call. A number is not parted,
// grouped or regrouped at one that is empty.
Separador SeparadorDecimal(const Kernel32& kernel32);
Separador SeparadorDeMilhar(const Kernel32& kernel32);

enum class FormaDeNumero {
  kReal,    // as many decimals as were typed
  kMoeda,   // two decimals
  kVersao,  // two pieces joined by the thousands separator, whatever parted them
};

// `valor` as digits and the system's separators, in the form asked for. Signs and all other characters fall
// out, so a text without a digit gives the empty text. The integer part is grouped by thousands only when
// `valor` groups it. Decimals beyond the second of an amount are rounded away by Arredonda; the integer
// part never takes part in it: "12,999" becomes "12,00".
//
// Raises nothing: a step that fails is skipped. So a text of more than 32767 characters keeps what should
// have fallen out, and it has no fraction if its decimal mark stands beyond that position.
std::u16string FormataComoReal(std::u16string_view valor, FormaDeNumero forma, const Kernel32& kernel32,
                               CacheDeArredonda& cache);

}  // namespace gabarito

#endif  // GABARITO_RULES_MOEDA_H
