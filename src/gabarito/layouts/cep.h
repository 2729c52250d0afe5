// A postal code: a box of five digits, "-" and a box of three.
#ifndef GABARITO_LAYOUTS_CEP_H
#define GABARITO_LAYOUTS_CEP_H

#include "gabarito/state/campo.h"

namespace gabarito {

// The boxes keep what they hold. mSegmentos becomes 2. Skip-on-error mode.
void AjustaComoCEP(Campo& c);

}  // namespace gabarito

#endif  // GABARITO_LAYOUTS_CEP_H
