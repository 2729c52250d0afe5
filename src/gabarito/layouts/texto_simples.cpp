#include "gabarito/layouts/texto_simples.h"

#include "gabarito/platform/pula_erros.h"
#include "gabarito/state/esconde_controles.h"

namespace gabarito {

void AjustaComoTextoSimples(Campo& c, std::int16_t n) {
  PulaErros pula;
  pula([&] { EscondeControles(c); });
  pula([&] { c.mEntrada1->MaxLength(n > 0 ? n : c.mMaxLength); });
  pula([&] { c.mEntrada1->Move(0, 0, c.UserControl->Width(), c.Combo1->Height()); });
  pula([&] { c.mEntrada1->Visible(true); });
  pula([&] {
    if (c.UserControl->Height() < c.Combo1->Height()) c.UserControl->Height(c.Combo1->Height());
  });
  c.mSegmentos = 1;
}

}  // namespace gabarito
