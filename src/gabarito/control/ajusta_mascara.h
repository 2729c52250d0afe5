// The one entry to all layouts, and the binding of the active boxes.
#ifndef GABARITO_CONTROL_AJUSTA_MASCARA_H
#define GABARITO_CONTROL_AJUSTA_MASCARA_H

#include "gabarito/state/campo.h"

namespace gabarito {

// Works the whole arrangement of the children out again from mMask and keeps the surface at least as high as
// Combo1. Skip-on-error mode: what a layout raises ends here. Nests inside itself where a change of the
// height raises Resize.
void AjustaMascara(Campo& c);

// Hides the boxes of both looks, gives the labels the ambient colour, points mEntrada1 to mEntrada3 at the
// array of mAppearance and brings the surface to the height of one line. Skip-on-error mode.
void AplicaAparencia(Campo& c);

}  // namespace gabarito

#endif  // GABARITO_CONTROL_AJUSTA_MASCARA_H
