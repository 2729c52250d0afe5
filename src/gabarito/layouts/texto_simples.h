// One text box across the field.
#ifndef GABARITO_LAYOUTS_TEXTO_SIMPLES_H
#define GABARITO_LAYOUTS_TEXTO_SIMPLES_H

#include "gabarito/state/campo.h"

namespace gabarito {

// Shows mEntrada1 alone, as wide as the surface and one line high; it keeps its text. `n` is a fixed length
// limit in characters, 0 stands for mMaxLength. mSegmentos becomes 1. Skip-on-error mode.
void AjustaComoTextoSimples(Campo& c, std::int16_t n);

}  // namespace gabarito

#endif  // GABARITO_LAYOUTS_TEXTO_SIMPLES_H
