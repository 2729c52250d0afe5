// Hours and minutes in two boxes with " : " between them.
#ifndef GABARITO_LAYOUTS_HORA_H
#define GABARITO_LAYOUTS_HORA_H

#include "gabarito/state/campo.h"

namespace gabarito {

// The boxes keep what they hold. mSegmentos becomes 2. Skip-on-error mode.
void AjustaComoHora(Campo& c);

}  // namespace gabarito

#endif  // GABARITO_LAYOUTS_HORA_H
