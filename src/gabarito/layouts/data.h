// Day, month and year in three boxes with " / " between them.
#ifndef GABARITO_LAYOUTS_DATA_H
#define GABARITO_LAYOUTS_DATA_H

#include "gabarito/state/campo.h"

namespace gabarito {

// Empties the boxes at each run; under gbDataAtual they then show today. mSegmentos becomes 3.
// Skip-on-error mode.
void AjustaComoData(Campo& c);

}  // namespace gabarito

#endif  // GABARITO_LAYOUTS_DATA_H
