// The list kinds, city and state, and the mask of the author's own: load and exit.
#ifndef GABARITO_VALUE_LISTAS_H
#define GABARITO_VALUE_LISTAS_H

#include <string_view>

#include "gabarito/state/campo.h"

namespace gabarito {

// gbEstado and gbCidadeEstadoPopulado: the entry that equals the value without regard to case.
void CarregaDaLista(Campo& c, std::u16string_view dado);
// The same without regard to accents either.
void CarregaListaNoCombo(Campo& c, std::u16string_view dado);
void CarregaCidadeEstado(Campo& c, std::u16string_view dado);
// Skip-on-error mode: a text that does not fit the mask goes through the selection of the masked box.
void CarregaDefUsr(Campo& c, std::u16string_view dado);

// Skip-on-error mode, all of them.
void SaiDaLista(Campo& c);
void SaiDaCidadeEstado(Campo& c);
void SaiDoDefUsr(Campo& c);

}  // namespace gabarito

#endif  // GABARITO_VALUE_LISTAS_H
