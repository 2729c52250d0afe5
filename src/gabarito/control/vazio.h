// Whether the children of a field show anything of a value.
#ifndef GABARITO_CONTROL_VAZIO_H
#define GABARITO_CONTROL_VAZIO_H

#include "gabarito/state/campo.h"

namespace gabarito {

// True when the boxes of the kind in force, its list and its masked box show no more than an empty value
// leaves there: blanks (a card number's groups are parted by them) and the template of the mask count as
// nothing.
bool MostraVazio(const Campo& c);

}  // namespace gabarito

#endif  // GABARITO_CONTROL_VAZIO_H
