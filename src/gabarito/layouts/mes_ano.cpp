#include "gabarito/layouts/mes_ano.h"

#include "gabarito/platform/pula_erros.h"
#include "gabarito/state/esconde_controles.h"

namespace gabarito {

void AjustaComoMesAno(Campo& c) {
  Label& barra = *c.lbl_controle[1];
  PulaErros pula;
  pula([&] { EscondeControles(c); });

  pula([&] { c.mEntrada1->MaxLength(2); });
  pula([&] { c.mEntrada1->Text(u""); });
  pula([&] { c.mEntrada1->Move(0, 0, 310, c.Combo1->Height()); });

  pula([&] { barra.Caption(u" / "); });
  pula([&] { barra.AutoSize(true); });
  pula([&] {
    barra.Move(c.mEntrada1->Left() + c.mEntrada1->Width(), c.mEntrada1->Top() + 45, barra.Width(),
               c.mEntrada1->Height());
  });

  pula([&] { c.mEntrada2->Text(u""); });
  pula([&] { c.mEntrada2->MaxLength(4); });
  pula([&] {
    c.mEntrada2->Move(barra.Left() + barra.Width(), c.mEntrada1->Top(), 510, c.mEntrada1->Height());
  });

  pula([&] { c.mEntrada1->Visible(true); });
  pula([&] { barra.Visible(true); });
  pula([&] { c.mEntrada2->Visible(true); });
  c.mSegmentos = 2;
}

}  // namespace gabarito
