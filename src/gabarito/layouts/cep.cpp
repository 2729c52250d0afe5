#include "gabarito/layouts/cep.h"

#include "gabarito/platform/pula_erros.h"
#include "gabarito/state/esconde_controles.h"

namespace gabarito {

void AjustaComoCEP(Campo& c) {
  Label& hifen = *c.lbl_controle[1];
  PulaErros pula;
  pula([&] { EscondeControles(c); });

  pula([&] { c.mEntrada1->MaxLength(5); });
  pula([&] { c.mEntrada1->Move(0, 0, 700, c.Combo1->Height()); });

  // AutoSize stays as another layout left it: the Move gives the width in any case.
  pula([&] { hifen.Caption(u"-"); });
  pula([&] {
    hifen.Move(c.mEntrada1->Left() + c.mEntrada1->Width() + 10, c.mEntrada1->Top() + 45, 200,
               c.mEntrada1->Height());
  });

  pula([&] { c.mEntrada2->MaxLength(3); });
  pula([&] {
    c.mEntrada2->Move(hifen.Left() + hifen.Width() + 10, c.mEntrada1->Top(), 400, c.mEntrada1->Height());
  });
  pula([&] {
    if (c.UserControl->Height() < c.Combo1->Height()) c.UserControl->Height(c.Combo1->Height());
  });

  pula([&] { c.mEntrada1->Visible(true); });
  pula([&] { hifen.Visible(true); });
  pula([&] { c.mEntrada2->Visible(true); });
  c.mSegmentos = 2;
}

}  // namespace gabarito
