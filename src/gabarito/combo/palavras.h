// The word list of gbListaNoCombo: the property ComboItens and the layout that shows it.
#ifndef GABARITO_COMBO_PALAVRAS_H
#define GABARITO_COMBO_PALAVRAS_H

#include "gabarito/platform/variant.h"
#include "gabarito/state/campo.h"

namespace gabarito {

// Number of the error of a layout without words: 0x800403E8.
inline constexpr std::int32_t kErroSemItens = kObjectErrorBase + 1000;

// Replaces the words by the elements of a one-dimensional array, as they are; Combo1 is not touched. Any
// other value, and an array whose bounds do not fit in 16 bits, leaves a new empty collection. Reports
// PropertyChanged "ComboItens". Skip-on-error mode.
void GuardaComboItens(Campo& c, const Variant& itens);

// The words as an array of texts with lower bound 0, or Empty when there is none. An element without a
// text form stays an empty text. Skip-on-error mode.
Variant LeComboItens(const Campo& c);

// Combo1 across the field with the words. mSegmentos becomes 0. No mode of its own: raises kErroSemItens
// before ComboItens is set, and what an element without a text form raises; the words before it stay
// listed, mSegmentos stays as it was.
void AjustaComoListaDePalavrasNoCombo(Campo& c);

}  // namespace gabarito

#endif  // GABARITO_COMBO_PALAVRAS_H
