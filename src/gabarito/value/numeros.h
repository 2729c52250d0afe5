// Integers, real numbers, money, versions and intervals: load and exit. None of them is ever refused.
#ifndef GABARITO_VALUE_NUMEROS_H
#define GABARITO_VALUE_NUMEROS_H

#include <string>
#include <string_view>

#include "gabarito/state/campo.h"

namespace gabarito {

// Only the digits. Raises 6 on a text of more than 32,767 characters.
void CarregaInteiro(Campo& c, std::u16string_view dado);
void CarregaReal(Campo& c, std::u16string_view dado);  // gbReal, gbMoeda and gbVersao
void CarregaIntervaloNumerico(Campo& c, std::u16string_view dado);

// Skip-on-error mode, all of them.
void SaiDoInteiro(Campo& c);
void SaiDoReal(Campo& c);
void SaiDoIntervaloNumerico(Campo& c);

// `valor` normalised by the region's separators and by mMask: two decimals under gbMoeda, one separator under
// gbVersao.
std::u16string FormataComoReal(Campo& c, std::u16string_view valor);

}  // namespace gabarito

#endif  // GABARITO_VALUE_NUMEROS_H
