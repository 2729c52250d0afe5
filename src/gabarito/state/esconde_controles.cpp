#include "gabarito/state/esconde_controles.h"

namespace gabarito {

void EscondeControles(Campo& c) {
  for (std::size_t i = 0; i < 3; ++i) {
    c.lbl_controle[i]->Visible(false);
    c.txt_entrada[i]->Visible(false);
    c.txt_entrada3D[i]->Visible(false);
  }
  c.MaskEdBox1->Visible(false);
  c.Combo1->Visible(false);
}

}  // namespace gabarito
