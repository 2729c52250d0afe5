#include "gabarito/keyboard/filtro.h"

#include "gabarito/keyinject/send_input.h"
#include "gabarito/platform/pula_erros.h"
#include "gabarito/platform/text.h"
#include "gabarito/rules/primitivas.h"

namespace gabarito {
namespace {

void Envia(Campo& c, PulaErros& pula, std::u16string_view teclas) {
  pula([&] { SendKeyString(*c.InputQueue, *c.Kernel32, *c.Dialogs, teclas, true); });
}

// Counts are 16-bit: one beyond 32,767 is a read that fails, which leaves 0. It is not thrown, for it would
// be thrown again at each key of a long text.
std::int16_t Contagem(std::int32_t lida) {
  constexpr std::int32_t kMaior = kMaiorTextoPercorrido;
  return lida > kMaior ? std::int16_t{0} : static_cast<std::int16_t>(lida);
}

// The text that the box would hold with the key at its end, whatever the caret.
struct Candidato {
  std::u16string_view texto;   // what the box holds
  std::u16string_view antes;   // what it holds in front of the key
  bool substituiTudo = false;  // the key replaces the whole text
  bool cheia = false;          // the box holds as much as its limit allows
};

// Piece by piece: what a read that fails leaves out keeps its first value. So a text that the box does not
// give, or one too long to count, leaves the key to be judged by itself.
void LeCandidato(const TextBox& txt, std::int16_t selecao, Candidato& candidato) {
  const std::u16string_view texto = txt.Text();
  if (texto.size() > kMaiorTextoPercorrido) return;
  const std::int32_t tamanho = Len(texto);
  candidato.texto = texto;
  candidato.substituiTudo = selecao == tamanho && tamanho > 0;
  if (candidato.substituiTudo) return;
  candidato.antes = texto;
  candidato.cheia = tamanho == txt.MaxLength();
}

// A letter of a CNPJ passes as its capital, all else as the rule of the kind says.
Desfecho JulgaTecla(const Campo& c, const RegraDeTecla& regra, std::int16_t Index, const Candidato& candidato,
                    std::int16_t inicio, std::int16_t& KeyAscii) {
  const char16_t caractere = Chr(KeyAscii);
  if (c.mCNPJAlfanumerico) {
    if (const char16_t letra = LetraNoLugar(regra, Left(candidato.texto, inicio), caractere); letra != 0) {
      KeyAscii = static_cast<std::int16_t>(letra);
      return Desfecho::kPassa;
    }
  }
  return Julga(regra, Index, candidato.antes, caractere);
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
  std::int16_t inicio = 0;
  std::int16_t selecao = 0;
  pula([&] { inicio = Contagem(txt.SelStart()); });
  pula([&] { selecao = Contagem(txt.SelLength()); });
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

  Candidato candidato;
  pula([&] { LeCandidato(txt, selecao, candidato); });
  Desfecho desfecho = Desfecho::kPassa;
  pula([&] { desfecho = JulgaTecla(c, regra, Index, candidato, inicio, KeyAscii); });
  if (candidato.cheia) pula([&] { c.Dialogs->Beep(); });
  if (desfecho == Desfecho::kRejeita) {
    pula([&] { c.Dialogs->Beep(); });
    KeyAscii = 0;
    return;
  }
  if (desfecho == Desfecho::kSalta) {
    Salta(c, pula, Index, KeyAscii);
    return;
  }
  // Read anew, so that a read that failed above does not keep the focus in a segment that is now full. The
  // Tab is queued: it comes behind this key, which lands in the segment first.
  const auto enche = [&] {
    if (Index == c.mSegmentos - 1) return false;
    const std::int32_t n = Len(txt.Text()) + 1;
    return n <= std::int32_t{kMaiorTextoPercorrido} && n == txt.MaxLength();
  };
  if (!candidato.substituiTudo && pula.Se(enche)) Envia(c, pula, u"{TAB}");
}

void KeyPressDaCaixa(Campo& c, const RegraDeTecla& regra, TextBox& txt, TextBox& gemea, std::int16_t Index,
                     std::int16_t& KeyAscii) {
  EntradaKeyPress(c, regra, txt, Index, KeyAscii);
  gemea.TextOf(txt);
}

}  // namespace gabarito
