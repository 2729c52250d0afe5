// Dates, months and times: load and exit. The date reader alone decides what is a date.
#ifndef GABARITO_VALUE_DATAS_H
#define GABARITO_VALUE_DATAS_H

#include <string_view>

#include "gabarito/state/campo.h"

namespace gabarito {

// A text that does not read as a date or time leaves the boxes empty.
void CarregaData(Campo& c, std::u16string_view dado);  // gbData and gbDataAtual
void CarregaMesAno(Campo& c, std::u16string_view dado);
void CarregaHora(Campo& c, std::u16string_view dado);

// Skip-on-error mode, all of them. Each but that of gbDataAtual empties mValor first, passes empty boxes, and
// writes back in full form what the reader made of the boxes. After a refusal the boxes show the present, or
// under gbData are emptied with the focus back, as mPreencherDatasInvalidasComDataDeHoje says.
void SaiDaData(Campo& c);
void SaiDaDataAtual(Campo& c);
void SaiDoMesAno(Campo& c);
void SaiDaHora(Campo& c);

}  // namespace gabarito

#endif  // GABARITO_VALUE_DATAS_H
