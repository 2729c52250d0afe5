// What keys do that are not judged as characters.
#ifndef GABARITO_KEYBOARD_NAVEGACAO_H
#define GABARITO_KEYBOARD_NAVEGACAO_H

#include "gabarito/state/campo.h"

namespace gabarito {

// A key goes down in a text box: marks editing keys for the filter and raises KeyUp with both arguments,
// which hold afterwards what the program left in them. Skip-on-error mode.
void EntradaKeyDown(Campo& c, std::int16_t& KeyCode, std::int16_t& Shift);

// Enter in the masked box moves on as Tab does, whatever TrataEnterComoTab says, and raises KeyUp. Other
// keys are the box's own. Skip-on-error mode.
void MaskEdBox1_KeyPress(Campo& c, std::int16_t& KeyAscii);

}  // namespace gabarito

#endif  // GABARITO_KEYBOARD_NAVEGACAO_H
