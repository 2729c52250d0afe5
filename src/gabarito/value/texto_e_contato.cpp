#include "gabarito/value/texto_e_contato.h"

#include <limits>
#include <string>

#include "gabarito/platform/number.h"
#include "gabarito/platform/text.h"
#include "gabarito/rules/primitivas.h"
#include "gabarito/state/mensagens.h"

namespace gabarito {
namespace {

constexpr std::u16string_view kCaracteresDeTelefone = u"ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789#*+-)( ";
constexpr std::u16string_view kFimDeTelefone = u"######";
constexpr std::int32_t kMenorEmail = 6;

// The number without blanks but for one in front of "(" and one behind ")".
std::u16string EspacaTelefone(std::u16string_view texto) {
  std::u16string s = SoCaracteres(texto, kCaracteresDeTelefone);
  s = Substitui(s, u" ", u"");
  s = Substitui(s, u"(", u" (");
  s = Substitui(s, u")", u") ");
  return std::u16string(Trim(s));
}

// Length of a text as a counter of 16 bits; raises 6 beyond it.
std::int16_t Tamanho16(std::u16string_view texto) {
  if (texto.size() > std::numeric_limits<std::int16_t>::max()) Fail(kOverflow);
  return static_cast<std::int16_t>(texto.size());
}

}  // namespace

void CarregaTexto(Campo& c, std::u16string_view dado) { c.mEntrada1->Text(dado); }

void CarregaLetra(Campo& c, std::u16string_view dado) {
  const std::int16_t n = Tamanho16(dado);
  std::u16string letras;
  for (std::int32_t i = 1; i <= n; ++i) {
    const std::u16string_view caractere = Mid(dado, i, 1);
    if (EhLetra(caractere)) letras += caractere;
  }
  c.mEntrada1->Text(letras);
}

void CarregaCEP(Campo& c, std::u16string_view dado) {
  const std::u16string semPontos = Substitui(dado, u".", u"");
  const std::u16string_view cep = Trim(semPontos);
  if (cep.empty()) return;
  const std::int32_t p = ToInt16(InStr(cep, u"-"));
  if (p != 0) {
    c.mEntrada1->Text(Left(cep, p - 1));
    c.mEntrada2->Text(Mid(cep, p + 1));
  } else {
    c.mEntrada1->Text(cep);
  }
}

void CarregaTelefone(Campo& c, std::u16string_view dado) { c.mEntrada1->Text(EspacaTelefone(dado)); }

void SaiDoTextoEmMaiusculas(Campo& c) {
  PulaErros pula;
  pula([&] { c.mEntrada1->Text(UCase(c.mEntrada1->Text())); });
  pula([&] { c.mValor = c.mEntrada1->Text(); });
}

void SaiDoAlfanumerico(Campo& c) {
  PulaErros pula;
  pula([&] { c.mValor = c.mEntrada1->Text(); });
}

bool PassaSoLetras(Campo& c, PulaErros& pula) {
  // A text too long for the counter leaves the loop out, and with it the check.
  std::int16_t n = 0;
  pula([&] { n = Tamanho16(c.mEntrada1->Text()); });
  for (std::int32_t i = 1; i <= n; ++i) {
    if (pula.Se([&] { return !EhLetra(Mid(c.mEntrada1->Text(), i, 1)); })) {
      RecusaEVolta(c, pula, u"Caractere inválido.", c.mEntrada1);
      return false;
    }
  }
  return true;
}

void SaiDaLetra(Campo& c) {
  PulaErros pula;
  if (!PassaSoLetras(c, pula)) return;
  pula([&] { c.mValor = c.mEntrada1->Text(); });
}

void SaiDoCEP(Campo& c) {
  PulaErros pula;
  c.mValor.clear();
  pula([&] { c.mEntrada1->Text(Trim(c.mEntrada1->Text())); });
  pula([&] { c.mEntrada2->Text(Trim(c.mEntrada2->Text())); });
  if (pula.Se([&] { return c.mEntrada1->Text().empty() && c.mEntrada2->Text().empty(); })) return;
  pula([&] { c.mEntrada1->Text(SoDigitos(c.mEntrada1->Text())); });
  pula([&] { c.mEntrada2->Text(SoDigitos(c.mEntrada2->Text())); });
  constexpr std::u16string_view kInvalido = u"O CEP informado é inválido.";
  if (pula.Se([&] { return Len(c.mEntrada1->Text()) != 5; })) {
    RecusaEVolta(c, pula, kInvalido, c.mEntrada1);
    return;
  }
  if (pula.Se([&] { return Len(c.mEntrada2->Text()) > 0 && Len(c.mEntrada2->Text()) != 3; })) {
    RecusaEVolta(c, pula, kInvalido, c.mEntrada2);
    return;
  }
  if (pula.Se([&] { return !c.mEntrada1->Text().empty() && !c.mEntrada2->Text().empty(); })) {
    pula([&] {
      std::u16string cep(c.mEntrada1->Text());
      c.mValor = cep.append(u"-").append(c.mEntrada2->Text());
    });
  } else {
    pula([&] { c.mValor = c.mEntrada1->Text(); });
  }
}

void SaiDoTelefone(Campo& c) {
  PulaErros pula;
  std::u16string s;
  pula([&] { s = EspacaTelefone(c.mEntrada1->Text()); });
  if (pula.Se([&] { return Like(Right(s, 6), kFimDeTelefone); })) {
    pula([&] {
      std::u16string comHifen(Mid(s, 1, Len(s) - 4));
      comHifen.append(u"-").append(Right(s, 4));
      s = comHifen;
    });
  }
  pula([&] { c.mEntrada1->Text(UCase(s)); });
  pula([&] { c.mValor = c.mEntrada1->Text(); });
}

void SaiDoEnderecoEmail(Campo& c) {
  PulaErros pula;
  if (pula.Se([&] { return c.mEntrada1->Text().empty(); })) {
    c.mValor.clear();
    return;
  }
  if (pula.Se([&] {
        const std::u16string_view texto = c.mEntrada1->Text();
        return Len(texto) < kMenorEmail || InStr(texto, u"@") == 0;
      })) {
    std::int32_t resposta = 0;
    pula([&] {
      resposta = c.Dialogs->MsgBox(
          u"Este endereço de email não parece ser válido.\r\n\r\nDeseja utilizá-lo mesmo assim?",
          kMsgQuestion, u"Endereço de email");
    });
    if (resposta != kAnswerYes) {
      pula([&] { c.mEntrada1->SetFocus(); });
      return;
    }
  }
  pula([&] { c.mValor = c.mEntrada1->Text(); });
}

}  // namespace gabarito
