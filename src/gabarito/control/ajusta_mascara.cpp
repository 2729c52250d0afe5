#include "gabarito/control/ajusta_mascara.h"

#include "gabarito/control/especie.h"
#include "gabarito/platform/pula_erros.h"

namespace gabarito {

void AjustaMascara(Campo& c) {
  PulaErros pula;
  if (!c.mEntrada1) pula([&] { AplicaAparencia(c); });
  pula([&] { EspecieDe(c.mMask).layout(c); });
  pula([&] {
    if (c.UserControl->Height() < c.Combo1->Height()) c.UserControl->Height(c.Combo1->Height());
  });
}

void AplicaAparencia(Campo& c) {
  PulaErros pula;
  pula([&] { c.MaskEdBox1->Visible(false); });
  pula([&] { c.MaskEdBox1->Appearance(c.mAppearance); });
  for (std::size_t i = 0; i < 3; ++i) {
    pula([&] { c.txt_entrada3D[i]->Visible(false); });
    pula([&] { c.txt_entrada[i]->Visible(false); });
    pula([&] { c.lbl_controle[i]->BackStyle(1); });
    pula([&] { c.lbl_controle[i]->BorderStyle(0); });
    pula([&] { c.lbl_controle[i]->BackColor(c.UserControl->Ambient().BackColor()); });
  }
  const auto& caixas = c.mAppearance == 1 ? c.txt_entrada3D : c.txt_entrada;
  c.mEntrada1 = caixas[0];
  c.mEntrada2 = caixas[1];
  c.mEntrada3 = caixas[2];
  pula([&] { c.MaskEdBox1->Height(c.mEntrada1->Height()); });
  pula([&] { c.UserControl->Height(c.Combo1->Height()); });
}

}  // namespace gabarito
