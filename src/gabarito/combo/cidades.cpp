#include "gabarito/combo/cidades.h"

#include "gabarito/combo/municipios.h"
#include "gabarito/platform/pula_erros.h"
#include "gabarito/state/esconde_controles.h"

namespace gabarito {

void AjustaComoCidadeEstadoPopulado(Campo& c) {
  PulaErros pula;
  pula([&] { EscondeControles(c); });
  pula([&] { c.Painting->LockWindowUpdate(c.Combo1->hWnd()); });
  pula([&] { c.Combo1->Width(c.UserControl->Width()); });
  pula([&] { c.Combo1->Left(0); });
  pula([&] { c.Combo1->Clear(); });
  for (std::int32_t id = 1; id <= kMunicipios; ++id) {
    pula([&] { c.Combo1->AddItem(LoadResString(id)); });
  }
  pula([&] { c.Painting->LockWindowUpdate(0); });
  pula([&] { c.Combo1->Visible(true); });
  c.mSegmentos = 0;
}

}  // namespace gabarito
