// The about box.
#ifndef GABARITO_CONTROL_SOBRE_H
#define GABARITO_CONTROL_SOBRE_H

#include "gabarito/state/campo.h"

namespace gabarito {

// One message box of six lines. Skip-on-error mode.
void MostraSobre(Campo& c);

}  // namespace gabarito

#endif  // GABARITO_CONTROL_SOBRE_H
