#include "gabarito/layouts/data.h"

#include "gabarito/platform/pula_erros.h"
#include "gabarito/state/completa.h"
#include "gabarito/state/esconde_controles.h"

namespace gabarito {

void AjustaComoData(Campo& c) {
  Label& barra1 = *c.lbl_controle[1];
  Label& barra2 = *c.lbl_controle[2];
  PulaErros pula;
  pula([&] { EscondeControles(c); });

  pula([&] { c.mEntrada1->MaxLength(2); });
  pula([&] { c.mEntrada1->Text(u""); });
  pula([&] { c.mEntrada1->Move(0, 0, 310, c.Combo1->Height()); });

  pula([&] { barra1.Caption(u" / "); });
  pula([&] { barra1.AutoSize(true); });
  pula([&] {
    barra1.Move(c.mEntrada1->Left() + c.mEntrada1->Width(), c.mEntrada1->Top() + 45, barra1.Width(),
                c.mEntrada1->Height());
  });

  pula([&] { c.mEntrada2->MaxLength(2); });
  pula([&] { c.mEntrada2->Text(u""); });
  pula([&] {
    c.mEntrada2->Move(barra1.Left() + barra1.Width(), c.mEntrada1->Top(), c.mEntrada1->Width(),
                      c.mEntrada1->Height());
  });

  pula([&] { barra2.Caption(u" / "); });
  pula([&] { barra2.AutoSize(true); });
  pula([&] {
    barra2.Move(c.mEntrada2->Left() + c.mEntrada2->Width(), barra1.Top(), barra2.Width(),
                c.mEntrada1->Height());
  });

  pula([&] { c.mEntrada3->MaxLength(4); });
  pula([&] { c.mEntrada3->Text(u""); });
  pula([&] {
    c.mEntrada3->Move(barra2.Left() + barra2.Width(), c.mEntrada1->Top(), 510, c.mEntrada1->Height());
  });

  pula([&] { c.mEntrada1->Visible(true); });
  pula([&] { barra1.Visible(true); });
  pula([&] { c.mEntrada2->Visible(true); });
  pula([&] { barra2.Visible(true); });
  pula([&] { c.mEntrada3->Visible(true); });
  c.mSegmentos = 3;
  if (c.mMask == gbDataAtual) pula([&] { CompletaData(c, c.Agora(), false); });
}

}  // namespace gabarito
