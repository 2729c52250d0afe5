// What the user hears of a bad entry.
#ifndef GABARITO_STATE_MENSAGENS_H
#define GABARITO_STATE_MENSAGENS_H

#include <string_view>

#include "gabarito/platform/pula_erros.h"
#include "gabarito/state/campo.h"

namespace gabarito {

inline constexpr std::u16string_view kEntradaInvalida = u"Entrada inválida";

// The message box of a refusal, with the title kEntradaInvalida. `pula` is the mode of the calling exit.
void Recusa(Campo& c, PulaErros& pula, std::u16string_view mensagem);

// The refusal followed by the focus on the box at fault; a box that cannot take the focus leaves it where
// it is.
void RecusaEVolta(Campo& c, PulaErros& pula, std::u16string_view mensagem, const Referencia<TextBox>& caixa);

}  // namespace gabarito

#endif  // GABARITO_STATE_MENSAGENS_H
