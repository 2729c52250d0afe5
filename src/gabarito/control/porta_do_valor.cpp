#include "gabarito/control/porta_do_valor.h"

#include <string>

#include "gabarito/control/especie.h"
#include "gabarito/platform/number.h"
#include "gabarito/platform/pula_erros.h"

namespace gabarito {
namespace {

void ContaErro(Campo& c, const Erro& erro) {
  std::u16string texto = u"Erro " + NumberToText(erro.Number()) + u" (" + erro.Description() +
                         u") em Gabarito::Text\r\nMáscara: " + NumberToText(c.mMask);
  c.Dialogs->MsgBox(texto, kMsgInformation, {});
}

}  // namespace

void EscreveText(Campo& c, std::u16string_view dado) {
  const std::u16string copia(dado);  // `dado` may be what a child shows, which the first step takes away
  try {
    c.mEntrada1->Text(u"");
    c.mEntrada2->Text(u"");
    c.mEntrada3->Text(u"");
    const Especie& especie = EspecieDe(c.mMask);
    especie.carrega(c, copia);
    const auto avisa = [&] { c.UserControl->PropertyChanged(u"Text"); };
    if (especie.fim == FimDaEscrita::kPula) {
      PulaErros pula;
      pula(avisa);
    } else {
      avisa();
    }
  } catch (const Erro& erro) {
    ContaErro(c, erro);
  }
}

void UserControl_ExitFocus(Campo& c) {
  PulaErros pula;
  if (pula.Se([&] { return c.mEntrada1->Enabled(); })) {
    for (std::size_t i = 0; i < 3; ++i) {
      pula([&] { c.txt_entrada[i]->BackColor(kWindowBackground); });
      pula([&] { c.txt_entrada3D[i]->BackColor(kWindowBackground); });
    }
    pula([&] { c.MaskEdBox1->BackColor(kWindowBackground); });
  }
  pula([&] { EspecieDe(c.mMask).sai(c); });
}

}  // namespace gabarito
