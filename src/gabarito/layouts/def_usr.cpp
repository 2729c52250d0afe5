#include "gabarito/layouts/def_usr.h"

#include "gabarito/platform/pula_erros.h"
#include "gabarito/state/esconde_controles.h"

namespace gabarito {

void AjustaComoDefUsr(Campo& c) {
  PulaErros pula;
  pula([&] { EscondeControles(c); });
  pula([&] { c.MaskEdBox1->MaxLength(64); });
  pula([&] { c.MaskEdBox1->Move(0, 0, c.UserControl->Width(), c.Combo1->Height()); });
  pula([&] { c.MaskEdBox1->Visible(true); });
}

}  // namespace gabarito
