// The key filter: every character typed into a text box passes here before the box inserts it.
#ifndef GABARITO_KEYBOARD_FILTRO_H
#define GABARITO_KEYBOARD_FILTRO_H

#include "gabarito/keyboard/regra_de_tecla.h"
#include "gabarito/state/campo.h"

namespace gabarito {

// Lets the key through, rejects it with a Beep and KeyAscii 0, or jumps to the next box; a segment that the
// key fills sends a Tab behind it, Backspace at the start of a box sends Shift+Tab. `txt` is the box that
// received the key, `Index` its 0-based index, `KeyAscii` its code page 1252 code. Raises KeyUp for Enter
// turned into Tab and for a jump. Skip-on-error mode; no allocation for a key that passes.
void EntradaKeyPress(Campo& c, const RegraDeTecla& regra, TextBox& txt, std::int16_t Index,
                     std::int16_t& KeyAscii);

// The KeyPress of the box with `Index` of one look: the filter, then the box of the other look with the same
// index takes the text as it stood before the key.
void KeyPressDaCaixa(Campo& c, const RegraDeTecla& regra, TextBox& txt, TextBox& gemea, std::int16_t Index,
                     std::int16_t& KeyAscii);

}  // namespace gabarito

#endif  // GABARITO_KEYBOARD_FILTRO_H
