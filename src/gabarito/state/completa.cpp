#include "gabarito/state/completa.h"

#include "gabarito/platform/format.h"
#include "gabarito/platform/number.h"
#include "gabarito/platform/pula_erros.h"

namespace gabarito {
namespace {

void Escreve(Campo& c, const Referencia<TextBox>& caixa, std::int32_t parte, std::u16string_view padrao) {
  caixa->Text(FormatNumber(parte, padrao, *c.Regional));
}

}  // namespace

void CompletaData(Campo& c, Date data, bool soMesAno) {
  PulaErros pula;
  if (!soMesAno) {
    pula([&] { Escreve(c, c.mEntrada1, Day(data), u"00"); });
    pula([&] { Escreve(c, c.mEntrada2, Month(data), u"00"); });
    pula([&] { Escreve(c, c.mEntrada3, Year(data), u"0000"); });
  } else {
    pula([&] { Escreve(c, c.mEntrada1, Month(data), u"00"); });
    pula([&] { Escreve(c, c.mEntrada2, Year(data), u"0000"); });
  }
}

void CompletaHora(Campo& c, Date hora) {
  PulaErros pula;
  std::u16string textoDaHora;
  std::u16string textoDoMinuto;
  const Date momento = hora != 0 ? hora : c.Agora();
  pula([&] { textoDaHora = NumberToText(Hour(momento)); });
  pula([&] { textoDoMinuto = NumberToText(Minute(momento)); });
  pula([&] { c.mEntrada1->Text(FormatDate(textoDaHora + u":00", u"hh", *c.Regional, momento)); });
  // The hour in front only makes the minute read as a time.
  pula([&] { c.mEntrada2->Text(FormatDate(u"05:" + textoDoMinuto, u"nn", *c.Regional, momento)); });
}

}  // namespace gabarito
