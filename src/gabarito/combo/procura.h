// Searches in the list of Combo1. Skip-on-error mode, all of them.
#ifndef GABARITO_COMBO_PROCURA_H
#define GABARITO_COMBO_PROCURA_H

#include <string>
#include <string_view>

#include "gabarito/state/campo.h"

namespace gabarito {

// Whether an entry equals `s`; case and accents count. No allocation.
bool ExisteNoCombo(const Campo& c, std::u16string_view s);

// The first entry that begins with `s`, `s` being a pattern: ? * # [...] keep their meaning. The empty text
// when there is none, and for a text that is no valid pattern.
std::u16string ProcuraNoCombo(const Campo& c, std::u16string_view s);

// Selects the first entry that equals `s` without regard to case, accents counting; none otherwise. Raises
// Click through ListIndex, once for the clearing and once for the selection. No allocation a step.
void SelecionaNoCombo(Campo& c, std::u16string_view s);

}  // namespace gabarito

#endif  // GABARITO_COMBO_PROCURA_H
