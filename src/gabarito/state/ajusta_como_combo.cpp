#include "gabarito/state/ajusta_como_combo.h"

#include "gabarito/platform/pula_erros.h"
#include "gabarito/state/esconde_controles.h"

namespace gabarito {

void AjustaComoCombo(Campo& c) {
  PulaErros pula;
  pula([&] { EscondeControles(c); });
  pula([&] { c.Combo1->Move(0, 0, c.UserControl->Width()); });
  pula([&] { c.Combo1->Visible(true); });
}

}  // namespace gabarito
