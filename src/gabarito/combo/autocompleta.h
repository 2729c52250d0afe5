// What happens while the user works in Combo1: type-ahead, settling on leaving, tool tip.
#ifndef GABARITO_COMBO_AUTOCOMPLETA_H
#define GABARITO_COMBO_AUTOCOMPLETA_H

#include "gabarito/state/campo.h"

namespace gabarito {

// Opens the list; an open one stays open. Skip-on-error mode.
void AbreListaDoCombo(ComboBox& cbo);

// Lets the text grow only along the entries of the list. Returns the character that goes on to the edit
// part, or 0: every change of the text is made here. With limitarALista a character that leaves the list is
// refused. A run-time error ends it with `KeyAscii` unchanged, as if there were no type-ahead.
std::int16_t AutoCompleteComboBox(ComboBox& cbo, std::int16_t KeyAscii, bool limitarALista);

// The tool tip shows the chosen entry. No mode of its own.
void Combo1_Click(Campo& c);

void Combo1_KeyPress(Campo& c, std::int16_t& KeyAscii);

// Delete cuts the text at the caret and leaves KeyCode 0; every key raises KeyUp. Skip-on-error mode.
void Combo1_KeyUp(Campo& c, std::int16_t& KeyCode, std::int16_t& Shift);

// Settles what the user leaves behind: an entry of the list, or nothing. Skip-on-error mode.
void Combo1_LostFocus(Campo& c);

}  // namespace gabarito

#endif  // GABARITO_COMBO_AUTOCOMPLETA_H
