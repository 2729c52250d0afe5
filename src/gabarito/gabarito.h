// The field, for programs: #include <gabarito/gabarito.h>.
#ifndef GABARITO_GABARITO_H
#define GABARITO_GABARITO_H

#include "gabarito/control/gabarito.h"

#endif  // GABARITO_GABARITO_H
