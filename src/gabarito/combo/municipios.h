// The city table: the Brazilian municipalities, each with its state, by number.
#ifndef GABARITO_COMBO_MUNICIPIOS_H
#define GABARITO_COMBO_MUNICIPIOS_H

#include <cstdint>
#include <string_view>

namespace gabarito {

// Ids run from 1 to here without a gap.
inline constexpr std::int32_t kMunicipios = 5652;

// The line with number `id`: name, "/" and state code in capitals without accents (ABADIA DE GOIAS/GO), in
// the order of the names. The text lives in the program's read-only data, once in the process, and stays
// good for ever; there is no loading step. Raises 5 outside 1 to kMunicipios. No allocation.
std::u16string_view LoadResString(std::int32_t id);

}  // namespace gabarito

#endif  // GABARITO_COMBO_MUNICIPIOS_H
