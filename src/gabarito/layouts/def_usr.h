// The masked edit box across the field, for a mask of the author's own.
#ifndef GABARITO_LAYOUTS_DEF_USR_H
#define GABARITO_LAYOUTS_DEF_USR_H

#include "gabarito/state/campo.h"

namespace gabarito {

// Shows MaskEdBox1 alone; it keeps its text. mSegmentos stays as it was. Skip-on-error mode.
void AjustaComoDefUsr(Campo& c);

}  // namespace gabarito

#endif  // GABARITO_LAYOUTS_DEF_USR_H
