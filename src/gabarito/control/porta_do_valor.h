// The value door: the write of Text, and the exit check that a read of Text runs.
#ifndef GABARITO_CONTROL_PORTA_DO_VALOR_H
#define GABARITO_CONTROL_PORTA_DO_VALOR_H

#include <string_view>

#include "gabarito/state/campo.h"

namespace gabarito {

// Distributes `dado` over the active children by mMask, without validating and without touching mValor. A
// failure ends in a message box and does not reach the caller. `dado` may be a view of a child's text.
void EscreveText(Campo& c, std::u16string_view dado);

// The one validator and the only writer of mValor: takes the pastel back, then normalises, judges and stores
// by mMask. Can show message boxes, move the focus and rewrite the boxes. Skip-on-error mode.
void UserControl_ExitFocus(Campo& c);

}  // namespace gabarito

#endif  // GABARITO_CONTROL_PORTA_DO_VALOR_H
