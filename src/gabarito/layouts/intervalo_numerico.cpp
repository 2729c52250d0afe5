#include "gabarito/layouts/intervalo_numerico.h"

#include "gabarito/platform/pula_erros.h"
#include "gabarito/state/esconde_controles.h"

namespace gabarito {

void AjustaComoIntervaloNumerico(Campo& c) {
  Label& de = *c.lbl_controle[0];
  Label& a = *c.lbl_controle[1];
  PulaErros pula;
  pula([&] { EscondeControles(c); });

  pula([&] { de.Caption(u"de "); });
  pula([&] { de.AutoSize(true); });
  pula([&] { de.Move(30, c.mEntrada1->Top() + 35, de.Width(), c.mEntrada1->Height()); });
  pula([&] { a.Caption(u" a "); });
  pula([&] { a.AutoSize(true); });

  // 60 is the sum of the gaps 30, 10 and 20.
  pula([&] { c.mEntrada1->Width((c.UserControl->Width() - de.Width() - a.Width() - 60) / 2); });
  // A surface too narrow for both boxes asks for a negative width, which the box refuses.
  if (pula.Number() != 0) pula([&] { c.mEntrada1->Width(1000); });
  pula([&] { c.mEntrada1->MaxLength(10); });
  pula([&] { c.mEntrada1->Left(de.Left() + de.Width() + 10); });
  pula([&] {
    a.Move(c.mEntrada1->Left() + c.mEntrada1->Width() + 20, c.mEntrada1->Top() + 35, a.Width(),
           c.mEntrada1->Height());
  });

  pula([&] { c.mEntrada2->MaxLength(10); });
  pula([&] { c.mEntrada2->Width(c.mEntrada1->Width()); });
  pula([&] {
    c.mEntrada2->Move(c.UserControl->Width() - c.mEntrada2->Width(), c.mEntrada1->Top(), c.mEntrada2->Width(),
                      c.mEntrada1->Height());
  });

  pula([&] { de.Visible(true); });
  pula([&] { c.mEntrada1->Visible(true); });
  pula([&] { a.Visible(true); });
  pula([&] { c.mEntrada2->Visible(true); });
  c.mSegmentos = 2;
}

}  // namespace gabarito
