#include "gabarito/layouts/hora.h"

#include "gabarito/platform/pula_erros.h"
#include "gabarito/state/esconde_controles.h"

namespace gabarito {

void AjustaComoHora(Campo& c) {
  Label& doisPontos = *c.lbl_controle[1];
  PulaErros pula;
  pula([&] { EscondeControles(c); });

  pula([&] { c.mEntrada1->MaxLength(2); });
  pula([&] { c.mEntrada1->Move(0, 0, 310, c.Combo1->Height()); });

  pula([&] { doisPontos.Caption(u" : "); });
  pula([&] { doisPontos.AutoSize(true); });
  pula([&] {
    doisPontos.Move(c.mEntrada1->Left() + c.mEntrada1->Width(), c.mEntrada1->Top() + 35, doisPontos.Width(),
                    c.mEntrada1->Height());
  });

  pula([&] { c.mEntrada2->MaxLength(2); });
  pula([&] {
    c.mEntrada2->Move(doisPontos.Left() + doisPontos.Width(), c.mEntrada1->Top(), c.mEntrada1->Width(),
                      c.mEntrada1->Height());
  });

  pula([&] { c.mEntrada1->Visible(true); });
  pula([&] { doisPontos.Visible(true); });
  pula([&] { c.mEntrada2->Visible(true); });
  c.mSegmentos = 2;
}

}  // namespace gabarito
