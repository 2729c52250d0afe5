// The state behind the public class, for the two faces of the field.
#ifndef GABARITO_CONTROL_ESTADO_H
#define GABARITO_CONTROL_ESTADO_H

#include "gabarito/control/gabarito.h"
#include "gabarito/state/campo.h"

namespace gabarito {

struct Gabarito::Estado final : Campo {
  using Campo::Campo;
};

}  // namespace gabarito

#endif  // GABARITO_CONTROL_ESTADO_H
