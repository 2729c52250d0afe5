#include "gabarito/control/foco.h"

#include "gabarito/platform/pula_erros.h"
#include "gabarito/platform/text.h"

namespace gabarito {
namespace {

void SelecionaTudo(PulaErros& pula, const std::array<TextBox*, 3>& caixas, std::int16_t indice) {
  pula([&] { CaixaDe(caixas, indice).SelStart(0); });
  pula([&] { CaixaDe(caixas, indice).SelLength(Len(CaixaDe(caixas, indice).Text())); });
}

}  // namespace

void UserControl_GotFocus(Campo& c) {
  PulaErros pula;
  if (pula.Se([&] { return c.Combo1->Visible(); })) {
    pula([&] { c.Combo1->SetFocus(); });
    return;
  }
  pula([&] { c.mEntrada1->SetFocus(); });
  // A hidden first box refuses the focus: this is how the masked box is found.
  if (pula.Number() != 0) pula([&] { c.MaskEdBox1->SetFocus(); });
}

void EntradaGotFocus(Campo& c, std::int16_t Index) {
  PulaErros pula;
  SelecionaTudo(pula, c.txt_entrada, Index);
  SelecionaTudo(pula, c.txt_entrada3D, Index);
  pula([&] { c.MaskEdBox1->BackColor(kWindowBackground); });
  for (std::size_t i = 0; i < 3; ++i) {
    pula([&] { c.txt_entrada[i]->BackColor(kWindowBackground); });
    pula([&] { c.txt_entrada3D[i]->BackColor(kWindowBackground); });
  }
  if (c.mUsarFundoPastel) {
    pula([&] { CaixaDe(c.txt_entrada, Index).BackColor(kPastel); });
    pula([&] { CaixaDe(c.txt_entrada3D, Index).BackColor(kPastel); });
  }
  pula([&] { c.UserControl->Refresh(); });
}

void MaskEdBox1_GotFocus(Campo& c) {
  PulaErros pula;
  pula([&] { c.MaskEdBox1->SelStart(0); });
  pula([&] { c.MaskEdBox1->SelLength(Len(c.MaskEdBox1->Text())); });
  pula([&] { c.MaskEdBox1->BackColor(kPastel); });
}

}  // namespace gabarito
