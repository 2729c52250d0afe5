// Free text, letters, e-mail addresses, telephone numbers and postal codes: load and exit.
#ifndef GABARITO_VALUE_TEXTO_E_CONTATO_H
#define GABARITO_VALUE_TEXTO_E_CONTATO_H

#include <string_view>

#include "gabarito/platform/pula_erros.h"
#include "gabarito/state/campo.h"

namespace gabarito {

// gbNenhuma, gbAlfanumerico and gbEnderecoEmail: the value as it comes.
void CarregaTexto(Campo& c, std::u16string_view dado);
// Only the letters. Raises 6 on a text of more than 32,767 characters.
void CarregaLetra(Campo& c, std::u16string_view dado);
void CarregaCEP(Campo& c, std::u16string_view dado);
void CarregaTelefone(Campo& c, std::u16string_view dado);

// Skip-on-error mode, all of them. A refusal leaves mValor empty under gbCEP, which empties it first, and as
// it was under gbLetra and gbEnderecoEmail.
void SaiDoTextoEmMaiusculas(Campo& c);  // gbNenhuma and every number outside EMascaras
void SaiDoAlfanumerico(Campo& c);
void SaiDaLetra(Campo& c);
void SaiDoCEP(Campo& c);
void SaiDoTelefone(Campo& c);
void SaiDoEnderecoEmail(Campo& c);

// Whether mEntrada1 holds letters only; if not the user has been told and has the focus back.
bool PassaSoLetras(Campo& c, PulaErros& pula);

}  // namespace gabarito

#endif  // GABARITO_VALUE_TEXTO_E_CONTATO_H
