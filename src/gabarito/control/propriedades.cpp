#include "gabarito/control/propriedades.h"

#include <limits>

#include "gabarito/control/ajusta_mascara.h"
#include "gabarito/platform/pula_erros.h"

namespace gabarito {

void PoeAppearance(Campo& c, std::int32_t valor) {
  c.mAppearance = valor;
  c.UserControl->PropertyChanged(u"Appearance");
  AplicaAparencia(c);
  AjustaMascara(c);
}

void PoeBackColor(Campo& c, Color lCor) {
  PulaErros pula;
  for (std::size_t i = 0; i < 3; ++i) {
    pula([&] { c.txt_entrada[i]->BackColor(lCor); });
    pula([&] { c.txt_entrada3D[i]->BackColor(lCor); });
  }
  pula([&] { c.MaskEdBox1->BackColor(lCor); });
  pula([&] { c.Combo1->BackColor(lCor); });
  pula([&] { c.UserControl->PropertyChanged(u"BackColor"); });
}

void PoeCNPJAlfanumerico(Campo& c, bool valor) {
  c.mCNPJAlfanumerico = valor;
  c.UserControl->PropertyChanged(u"CNPJAlfanumerico");
}

void PoeComboListIndex(Campo& c, std::int16_t valor) {
  PulaErros pula;
  pula([&] { c.Combo1->ListIndex(valor); });
  pula([&] { c.UserControl->PropertyChanged(u"ComboListIndex"); });
}

void PoeEnabled(Campo& c, bool valor) {
  PulaErros pula;
  for (std::size_t i = 0; i < 3; ++i) {
    pula([&] { c.txt_entrada[i]->Enabled(valor); });
    pula([&] { c.txt_entrada3D[i]->Enabled(valor); });
  }
  pula([&] { c.MaskEdBox1->Enabled(valor); });
  pula([&] { c.Combo1->Enabled(valor); });
  pula([&] { c.UserControl->PropertyChanged(u"Enabled"); });
}

void PoeFont(Campo& c, const FontRef& sFnt) {
  c.UserControl->Font(sFnt);
  for (std::size_t i = 0; i < 3; ++i) {
    c.txt_entrada[i]->Font(c.UserControl->Font());
    c.txt_entrada3D[i]->Font(c.UserControl->Font());
    c.lbl_controle[i]->Font(c.UserControl->Font());
  }
  c.MaskEdBox1->Font(c.UserControl->Font());
  c.Combo1->Font(c.UserControl->Font());
  c.UserControl->PropertyChanged(u"Font");
}

void PoeMask(Campo& c, std::int32_t M) {
  c.mMask = M;
  c.UserControl->PropertyChanged(u"Mask");
  AjustaMascara(c);
}

void PoeMaskText(Campo& c, std::u16string_view mascara) {
  PulaErros pula;
  pula([&] { PoeMask(c, gbDefUsr); });
  pula([&] { c.MaskEdBox1->Mask(mascara); });
  pula([&] { c.UserControl->PropertyChanged(u"MaskText"); });
}

void PoeMaxLength(Campo& c, std::int16_t t) {
  if (t == std::numeric_limits<std::int16_t>::min()) Fail(kOverflow);
  c.mMaxLength = static_cast<std::int16_t>(t < 0 ? -t : t);
  c.UserControl->PropertyChanged(u"MaxLength");
  AjustaMascara(c);
}

void PoeUsarFundoPastel(Campo& c, bool valor) {
  c.mUsarFundoPastel = valor;
  c.UserControl->PropertyChanged(u"UsarFundoPastel");
  AjustaMascara(c);
}

}  // namespace gabarito
