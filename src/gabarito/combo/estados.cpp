#include "gabarito/combo/estados.h"

#include <array>

#include "gabarito/platform/pula_erros.h"
#include "gabarito/state/ajusta_como_combo.h"
#include "gabarito/state/esconde_controles.h"

namespace gabarito {
namespace {

constexpr std::array<std::u16string_view, 27> kEstados = {
    u"MG", u"RJ", u"SP", u"ES", u"RS", u"PR", u"SC", u"MT", u"MS", u"GO", u"DF", u"RO", u"AC", u"AM",
    u"RR", u"PA", u"AP", u"TO", u"MA", u"PI", u"CE", u"RN", u"PB", u"PE", u"AL", u"SE", u"BA"};

}  // namespace

void PreencheEstados(Campo& c) {
  PulaErros pula;
  pula([&] { c.Combo1->Clear(); });
  for (const std::u16string_view sigla : kEstados) pula([&] { c.Combo1->AddItem(sigla); });
}

void AjustaComoEstado(Campo& c) {
  PulaErros pula;
  pula([&] { AjustaComoCombo(c); });
  pula([&] { PreencheEstados(c); });
  c.mSegmentos = 0;
}

void AjustaComoCidadeEstado(Campo& c) {
  Label& barra = *c.lbl_controle[1];
  PulaErros pula;
  pula([&] { EscondeControles(c); });
  pula([&] { barra.Caption(u"/"); });
  pula([&] { barra.AutoSize(true); });

  pula([&] { c.mEntrada1->Width(c.UserControl->Width() - barra.Width() - 700); });
  if (pula.Number() != 0) pula([&] { c.mEntrada1->Width(c.UserControl->Width()); });
  // Room for the "/" and the code of the state. The failure of a width that was refused still stands here,
  // so that a field too narrow for the box gets no limit either, as does an mMaxLength below 3.
  pula([&] { c.mEntrada1->MaxLength(c.mMaxLength - 3); });
  if (pula.Number() != 0) pula([&] { c.mEntrada1->MaxLength(0); });
  pula([&] { c.mEntrada1->Left(0); });
  pula([&] { c.mEntrada1->Height(c.Combo1->Height()); });
  pula([&] {
    barra.Move(c.mEntrada1->Left() + c.mEntrada1->Width() + 10, c.mEntrada1->Top() + 60, barra.Width(),
               c.Combo1->Height());
  });
  pula([&] { c.Combo1->Width(650); });
  pula([&] { c.Combo1->Move(c.UserControl->Width() - c.Combo1->Width(), 0); });
  pula([&] { PreencheEstados(c); });

  pula([&] { c.mEntrada1->Visible(true); });
  pula([&] { barra.Visible(true); });
  pula([&] { c.Combo1->Visible(true); });
  c.mSegmentos = 2;
}

}  // namespace gabarito
