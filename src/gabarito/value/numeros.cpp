#include "gabarito/value/numeros.h"

#include "gabarito/platform/format.h"
#include "gabarito/platform/number.h"
#include "gabarito/platform/pula_erros.h"
#include "gabarito/platform/text.h"
#include "gabarito/rules/moeda.h"
#include "gabarito/rules/primitivas.h"

namespace gabarito {
namespace {

// Fills an end of an interval that is not empty to ten digits.
void CompletaLimite(Campo& c, const Referencia<TextBox>& caixa) {
  if (caixa->Text().empty()) return;
  caixa->Text(FormatNumber(Val(caixa->Text()), u"0000000000", *c.Regional));
}

FormaDeNumero FormaDe(std::int32_t mascara) {
  if (mascara == gbMoeda) return FormaDeNumero::kMoeda;
  if (mascara == gbVersao) return FormaDeNumero::kVersao;
  return FormaDeNumero::kReal;
}

}  // namespace

std::u16string FormataComoReal(Campo& c, std::u16string_view valor) {
  return FormataComoReal(valor, FormaDe(c.mMask), *c.Kernel32, c.arredonda);
}

void CarregaInteiro(Campo& c, std::u16string_view dado) { c.mEntrada1->Text(SoDigitos(dado)); }

void CarregaReal(Campo& c, std::u16string_view dado) { c.mEntrada1->Text(FormataComoReal(c, dado)); }

void CarregaIntervaloNumerico(Campo& c, std::u16string_view dado) {
  const std::int32_t achado = InStr(dado, u"#");
  const std::int16_t p = ToInt16(achado == 0 ? 1 : achado);
  c.mEntrada1->Text(Left(dado, p - 1));
  c.mEntrada2->Text(Mid(dado, std::int32_t{p} + 1));
}

void SaiDoInteiro(Campo& c) {
  PulaErros pula;
  if (pula.Se([&] { return !c.mEntrada1->Text().empty(); })) {
    // With the point whatever the region: Val reads no other mark, and "1,2E+16" would be a 1 the next time.
    pula([&] { c.mEntrada1->Text(NumberToText(Val(c.mEntrada1->Text()))); });
  }
  pula([&] { c.mValor = c.mEntrada1->Text(); });
}

void SaiDoReal(Campo& c) {
  PulaErros pula;
  pula([&] { c.mEntrada1->Text(FormataComoReal(c, c.mEntrada1->Text())); });
  pula([&] { c.mValor = c.mEntrada1->Text(); });
}

void SaiDoIntervaloNumerico(Campo& c) {
  PulaErros pula;
  pula([&] { CompletaLimite(c, c.mEntrada1); });
  pula([&] { CompletaLimite(c, c.mEntrada2); });
  pula([&] {
    std::u16string intervalo(c.mEntrada1->Text());
    intervalo.append(u"#").append(c.mEntrada2->Text());
    c.mValor = intervalo;
  });
}

}  // namespace gabarito
