// The start of every layout: no child is on show.
#ifndef GABARITO_STATE_ESCONDE_CONTROLES_H
#define GABARITO_STATE_ESCONDE_CONTROLES_H

#include "gabarito/state/campo.h"

namespace gabarito {

// Hides all eleven children; touches no text, caption or list. Has no error mode of its own: a failure ends
// it and reaches the caller.
void EscondeControles(Campo& c);

}  // namespace gabarito

#endif  // GABARITO_STATE_ESCONDE_CONTROLES_H
