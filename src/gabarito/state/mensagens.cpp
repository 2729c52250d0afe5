#include "gabarito/state/mensagens.h"

namespace gabarito {

void Recusa(Campo& c, PulaErros& pula, std::u16string_view mensagem) {
  pula([&] { c.Dialogs->MsgBox(mensagem, kMsgCritical, kEntradaInvalida); });
}

void RecusaEVolta(Campo& c, PulaErros& pula, std::u16string_view mensagem, const Referencia<TextBox>& caixa) {
  Recusa(c, pula, mensagem);
  pula([&] { caixa->SetFocus(); });
}

}  // namespace gabarito
