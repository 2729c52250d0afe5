#include "gabarito/control/aparencia.h"

#include "gabarito/platform/pula_erros.h"

namespace gabarito {

void UserControl_AmbientChanged(Campo& c, std::u16string_view PropertyName) {
  if (PropertyName != u"BackColor") return;
  PulaErros pula;
  for (std::size_t i = 0; i < 3; ++i) {
    pula([&] { c.lbl_controle[i]->BackColor(c.UserControl->Ambient().BackColor()); });
  }
  pula([&] { c.UserControl->BackColor(c.UserControl->Ambient().BackColor()); });
}

}  // namespace gabarito
