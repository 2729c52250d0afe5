// The 27 states and the two layouts that list them.
#ifndef GABARITO_COMBO_ESTADOS_H
#define GABARITO_COMBO_ESTADOS_H

#include "gabarito/state/campo.h"

namespace gabarito {

// Empties Combo1 and fills it with the 27 codes, in the order of the table. Skip-on-error mode.
void PreencheEstados(Campo& c);

// Combo1 across the field with the states. mSegmentos becomes 0. Skip-on-error mode.
void AjustaComoEstado(Campo& c);

// A box for the city, "/" and a narrow Combo1 with the states. The city box takes three characters fewer
// than mMaxLength and keeps its text. mSegmentos becomes 2. Skip-on-error mode.
void AjustaComoCidadeEstado(Campo& c);

}  // namespace gabarito

#endif  // GABARITO_COMBO_ESTADOS_H
