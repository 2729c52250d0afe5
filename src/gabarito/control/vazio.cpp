#include "gabarito/control/vazio.h"

#include "gabarito/platform/masked_edit.h"

namespace gabarito {
namespace {

bool SoBrancos(std::u16string_view texto) {
  return texto.find_first_not_of(u' ') == std::u16string_view::npos;
}

bool MascaradaVazia(const MaskEdBox& caixa) {
  MaskedEdit vazia;
  vazia.Mask(caixa.Mask());
  return caixa.Text() == vazia.Text();
}

}  // namespace

bool MostraVazio(const Campo& c) {
  if (c.mMask == gbDefUsr) return MascaradaVazia(*c.MaskEdBox1);
  if (c.Combo1->Visible() && !c.Combo1->Text().empty()) return false;
  const Referencia<TextBox>* const caixas[] = {&c.mEntrada1, &c.mEntrada2, &c.mEntrada3};
  for (std::int16_t i = 0; i < c.mSegmentos; ++i) {
    if (!SoBrancos((*caixas[i])->Text())) return false;
  }
  return true;
}

}  // namespace gabarito
