// A range of two numbers: "de " box " a " box, sharing the width of the field.
#ifndef GABARITO_LAYOUTS_INTERVALO_NUMERICO_H
#define GABARITO_LAYOUTS_INTERVALO_NUMERICO_H

#include "gabarito/state/campo.h"

namespace gabarito {

// The one segmented layout that follows the width of the surface. Top and height of mEntrada1 stay as
// another layout left them. The boxes keep what they hold. mSegmentos becomes 2. Skip-on-error mode.
void AjustaComoIntervaloNumerico(Campo& c);

}  // namespace gabarito

#endif  // GABARITO_LAYOUTS_INTERVALO_NUMERICO_H
