#include "gabarito/keyboard/filtro.h"

#include "gabarito/keyinject/send_input.h"
#include "gabarito/platform/pula_erros.h"
#include "gabarito/platform/text.h"

namespace gabarito {
namespace {

void Envia(Campo& c, PulaErros& pula, std::u16string_view teclas) {
  pula([&] { SendKeyString(*c.User32, *c.Kernel32, *c.Dialogs, teclas, true); });
}

// A box that is not on show refuses the focus, and the key is swallowed all the same.
void Salta(Campo& c, PulaErros& pula, std::int16_t Index, std::int16_t& KeyAscii) {
  KeyAscii = 0;
  if (Index >= c.mSegmentos) {
    pula([&] { c.Dialogs->Beep(); });
    return;
  }
  if (Index == 0) {
    pula([&] { c.mEntrada2->SetFocus(); });
  } else if (Index == 1) {
    pula([&] { c.mEntrada3->SetFocus(); });
  }
  pula([&] { c.KeyUpDeEnter(); });
}

}  // namespace

void EntradaKeyPress(Campo& c, const RegraDeTecla& regra, TextBox& txt, std::int16_t Index,
                     std::int16_t& KeyAscii) {
  PulaErros pula;
  std::int32_t inicio = 0;
  std::int32_t selecao = 0;
  pula([&] { inicio = txt.SelStart(); });
  pula([&] { selecao = txt.SelLength(); });
  if (KeyAscii == kVkBack && inicio == 0 && selecao == 0) {
    KeyAscii = 0;
    Envia(c, pula, u"+{TAB}");
    return;
  }
  if (KeyAscii == kVkReturn && c.mTrataEnterComoTab) {
    KeyAscii = 0;
    Envia(c, pula, u"{TAB}");
    pula([&] { c.KeyUpDeEnter(); });
    return;
  }
  if (c.mTeclaDeEdicao) {
    c.mTeclaDeEdicao = false;
    return;
  }

  // A text or a limit that the box does not give leaves out what compares them; the key is judged by itself.
  std::u16string_view texto;
  std::int32_t limite = -1;
  if (pula([&] { texto = txt.Text(); })) pula([&] { limite = txt.MaxLength(); });
  const std::int32_t tamanho = Len(texto);
  const bool substituiTudo = selecao == tamanho && tamanho > 0;
  Desfecho desfecho = Desfecho::kPassa;
  pula([&] { desfecho = Julga(regra, Index, substituiTudo ? std::u16string_view() : texto, Chr(KeyAscii)); });
  if (!substituiTudo && tamanho == limite) pula([&] { c.Dialogs->Beep(); });
  if (desfecho == Desfecho::kRejeita) {
    pula([&] { c.Dialogs->Beep(); });
    KeyAscii = 0;
    return;
  }
  if (desfecho == Desfecho::kSalta) {
    Salta(c, pula, Index, KeyAscii);
    return;
  }
  // The Tab is queued: it comes behind this key, which lands in the segment first.
  if (!substituiTudo && Index != c.mSegmentos - 1 && tamanho + 1 == limite) Envia(c, pula, u"{TAB}");
}

void KeyPressDaCaixa(Campo& c, const RegraDeTecla& regra, TextBox& txt, TextBox& gemea, std::int16_t Index,
                     std::int16_t& KeyAscii) {
  EntradaKeyPress(c, regra, txt, Index, KeyAscii);
  gemea.Text(txt.Text());
}

}  // namespace gabarito
