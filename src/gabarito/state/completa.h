// A date or a time written into the active boxes in full form.
#ifndef GABARITO_STATE_COMPLETA_H
#define GABARITO_STATE_COMPLETA_H

#include "gabarito/state/campo.h"

namespace gabarito {

// Day, month and year into the three boxes; with soMesAno month and year into the first two, the third
// untouched. Skip-on-error mode.
void CompletaData(Campo& c, Date data, bool soMesAno);

// Hour and minute into the first two boxes. The value 0 stands for no time given: the present time is
// written. Skip-on-error mode.
void CompletaHora(Campo& c, Date hora);

}  // namespace gabarito

#endif  // GABARITO_STATE_COMPLETA_H
