// The layout of gbCidadeEstadoPopulado: every municipality of the country in one list.
#ifndef GABARITO_COMBO_CIDADES_H
#define GABARITO_COMBO_CIDADES_H

#include "gabarito/state/campo.h"

namespace gabarito {

// Combo1 across the field, filled anew with all lines of the city table under a painting lock.
// mSegmentos becomes 0. Skip-on-error mode.
void AjustaComoCidadeEstadoPopulado(Campo& c);

}  // namespace gabarito

#endif  // GABARITO_COMBO_CIDADES_H
