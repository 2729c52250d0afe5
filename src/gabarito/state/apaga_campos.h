// The one way to empty a field.
#ifndef GABARITO_STATE_APAGA_CAMPOS_H
#define GABARITO_STATE_APAGA_CAMPOS_H

#include "gabarito/state/campo.h"

namespace gabarito {

// Empties all text boxes of both looks, the captions of the separators and the list, and releases the words
// of ComboItens. MaskEdBox1 and mValor stay. The same for all kinds; skip-on-error mode.
void ApagaCampos(Campo& c);

}  // namespace gabarito

#endif  // GABARITO_STATE_APAGA_CAMPOS_H
