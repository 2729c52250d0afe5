#include "gabarito/state/apaga_campos.h"

#include "gabarito/platform/pula_erros.h"

namespace gabarito {

void ApagaCampos(Campo& c) {
  PulaErros pula;
  for (std::size_t i = 0; i < 3; ++i) {
    pula([&] { c.lbl_controle[i]->Caption(u""); });
    pula([&] { c.lbl_controle[i]->Refresh(); });
    pula([&] { c.txt_entrada[i]->Text(u""); });
    pula([&] { c.txt_entrada[i]->Refresh(); });
    pula([&] { c.txt_entrada3D[i]->Text(u""); });
    pula([&] { c.txt_entrada3D[i]->Refresh(); });
  }
  pula([&] { c.Combo1->Clear(); });
  pula([&] { c.mComboItens.reset(); });
}

}  // namespace gabarito
