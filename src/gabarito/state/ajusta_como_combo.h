// The layout of a list alone: Combo1 across the field.
#ifndef GABARITO_STATE_AJUSTA_COMO_COMBO_H
#define GABARITO_STATE_AJUSTA_COMO_COMBO_H

#include "gabarito/state/campo.h"

namespace gabarito {

// Hides the other children and shows Combo1 at the top left, as wide as the surface. The list and
// mSegmentos are the caller's. Skip-on-error mode.
void AjustaComoCombo(Campo& c);

}  // namespace gabarito

#endif  // GABARITO_STATE_AJUSTA_COMO_COMBO_H
