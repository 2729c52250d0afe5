#include "gabarito/value/datas.h"

#include <initializer_list>
#include <string>

#include "gabarito/platform/format.h"
#include "gabarito/platform/number.h"
#include "gabarito/platform/text.h"
#include "gabarito/state/apaga_campos.h"
#include "gabarito/state/completa.h"
#include "gabarito/state/mensagens.h"

namespace gabarito {
namespace {

constexpr std::u16string_view kDiaMesAno = u"DD/MM/YYYY";

bool CaixaVazia(const Referencia<TextBox>& caixa) { return caixa->Text().empty(); }

// The texts of the boxes with a separator between them, as they are, read from the first to the last.
std::u16string Junta(char16_t separador, std::initializer_list<Referencia<TextBox>> caixas) {
  std::u16string texto;
  for (const auto& caixa : caixas) texto.append(caixa->Text()) += separador;
  texto.pop_back();
  return texto;
}

}  // namespace

void CarregaData(Campo& c, std::u16string_view dado) {
  if (!c.EhData(dado)) return;
  const Date data = c.ComoData(dado);
  c.mEntrada1->Text(FormatNumber(Day(data), u"00", *c.Regional));
  c.mEntrada2->Text(FormatNumber(Month(data), u"00", *c.Regional));
  c.mEntrada3->Text(FormatNumber(Year(data), u"0000", *c.Regional));
}

void CarregaMesAno(Campo& c, std::u16string_view dado) {
  const std::u16string primeiroDoMes = std::u16string(u"01/").append(dado);
  if (!c.EhData(primeiroDoMes)) return;
  const Date data = c.ComoData(primeiroDoMes);
  c.mEntrada1->Text(FormatNumber(Month(data), u"00", *c.Regional));
  c.mEntrada2->Text(FormatNumber(Year(data), u"0000", *c.Regional));
}

void CarregaHora(Campo& c, std::u16string_view dado) {
  if (!c.EhData(dado)) return;
  const Date hora = c.ComoData(dado);
  c.mEntrada1->Text(NumberToText(Hour(hora)));
  c.mEntrada2->Text(NumberToText(Minute(hora)));
}

void SaiDaData(Campo& c) {
  PulaErros pula;
  c.mValor.clear();
  if (pula.Se(
          [&] { return CaixaVazia(c.mEntrada1) && CaixaVazia(c.mEntrada2) && CaixaVazia(c.mEntrada3); })) {
    return;
  }
  std::u16string s;
  pula([&] { s = Junta(u'/', {c.mEntrada1, c.mEntrada2, c.mEntrada3}); });
  if (pula.Se([&] { return c.EhData(s); })) {
    pula([&] { CompletaData(c, c.ComoData(s), false); });
    c.mValor = s;  // what stood in the boxes, not what has just been written into them
    return;
  }
  Recusa(c, pula, u"A data informada é inválida!");
  if (c.mPreencherDatasInvalidasComDataDeHoje) {
    pula([&] { CompletaData(c, c.Agora(), false); });
    return;
  }
  pula([&] { ApagaCampos(c); });
  pula([&] { c.mEntrada1->SetFocus(); });
}

void SaiDaDataAtual(Campo& c) {
  PulaErros pula;
  pula([&] { c.mValor = FormatDate(c.Agora(), kDiaMesAno); });
  pula([&] { CompletaData(c, c.Agora(), false); });
}

void SaiDoMesAno(Campo& c) {
  PulaErros pula;
  c.mValor.clear();
  if (pula.Se([&] { return CaixaVazia(c.mEntrada1) && CaixaVazia(c.mEntrada2); })) return;
  std::u16string s;
  pula([&] { s = Junta(u'/', {c.mEntrada1, c.mEntrada2}); });
  std::u16string f;
  pula([&] { f = FormatDate(u"01/" + s, kDiaMesAno, *c.Regional, c.Agora()); });
  if (pula.Se([&] { return !c.EhData(f); })) {
    Recusa(c, pula, u"O mês/ano informado é inválido!");
    pula([&] { CompletaData(c, c.Agora(), true); });
    pula([&] { c.mEntrada1->SetFocus(); });
    return;
  }
  pula([&] { CompletaData(c, c.ComoData(s), true); });
  pula([&] { c.mValor = Mid(f, 4); });  // MM/YYYY
}

void SaiDaHora(Campo& c) {
  PulaErros pula;
  c.mValor.clear();
  if (pula.Se([&] { return CaixaVazia(c.mEntrada1) && CaixaVazia(c.mEntrada2); })) return;
  std::u16string s;
  pula([&] { s = Junta(u':', {c.mEntrada1, c.mEntrada2}); });
  if (pula.Se([&] { return c.EhData(s); })) {
    pula([&] { CompletaHora(c, c.ComoData(s)); });
    pula([&] { c.mValor = FormatDate(s, u"hh:nn", *c.Regional, c.Agora()); });
    return;
  }
  Recusa(c, pula, u"A hora informada é inválida!");
  pula([&] { CompletaHora(c, 0); });
  pula([&] { c.mEntrada1->SetFocus(); });
}

}  // namespace gabarito
