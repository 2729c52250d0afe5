// Month and year in two boxes with " / " between them.
#ifndef GABARITO_LAYOUTS_MES_ANO_H
#define GABARITO_LAYOUTS_MES_ANO_H

#include "gabarito/state/campo.h"

namespace gabarito {

// Empties both boxes at each run; mEntrada3 is left alone. mSegmentos becomes 2. Skip-on-error mode.
void AjustaComoMesAno(Campo& c);

}  // namespace gabarito

#endif  // GABARITO_LAYOUTS_MES_ANO_H
