#include "gabarito/value/listas.h"

#include <string>

#include "gabarito/combo/procura.h"
#include "gabarito/platform/number.h"
#include "gabarito/platform/pula_erros.h"
#include "gabarito/platform/text.h"
#include "gabarito/rules/primitivas.h"
#include "gabarito/value/texto_e_contato.h"

namespace gabarito {

void CarregaDaLista(Campo& c, std::u16string_view dado) { SelecionaNoCombo(c, dado); }

void CarregaListaNoCombo(Campo& c, std::u16string_view dado) {
  c.Combo1->ListIndex(-1);
  const std::int16_t quantos = c.Combo1->ListCount();
  if (quantos == 0) return;  // with nothing to compare it to, a text that is too long does not matter either
  const std::u16string procurado = pfTiraAcentoDeFrase(dado);  // which also puts it into capitals
  for (std::int16_t i = 0; i < quantos; ++i) {
    if (pfTiraAcentoDeFrase(c.Combo1->List(i)) == procurado) {
      c.Combo1->ListIndex(i);
      return;
    }
  }
}

void CarregaCidadeEstado(Campo& c, std::u16string_view dado) {
  std::int16_t p = ToInt16(InStr(dado, u"/"));
  if (p == 0) p = ToInt16(InStr(dado, u"-"));
  if (p == 0) p = 1;
  c.mEntrada1->Text(Left(dado, p - 1));
  SelecionaNoCombo(c, Mid(dado, std::int32_t{p} + 1));
}

void CarregaDefUsr(Campo& c, std::u16string_view dado) {
  PulaErros pula;
  if (pula([&] { c.MaskEdBox1->Text(dado); })) return;
  pula([&] { c.MaskEdBox1->SelStart(0); });
  pula([&] { c.MaskEdBox1->SelLength(Len(c.MaskEdBox1->Text())); });
  pula([&] { c.MaskEdBox1->SelText(dado); });
}

void SaiDaLista(Campo& c) {
  PulaErros pula;
  pula([&] { c.mValor = c.Combo1->Text(); });
}

void SaiDaCidadeEstado(Campo& c) {
  PulaErros pula;
  if (!PassaSoLetras(c, pula)) return;
  pula([&] {
    std::u16string valor(c.mEntrada1->Text());
    valor.append(u"/").append(c.Combo1->Text());
    c.mValor = valor;
  });
}

void SaiDoDefUsr(Campo& c) {
  PulaErros pula;
  std::u16string s;
  pula([&] { s = c.MaskEdBox1->Text(); });
  while (!s.empty() && s.back() == u'_') s.pop_back();
  c.mValor = s;
}

}  // namespace gabarito
