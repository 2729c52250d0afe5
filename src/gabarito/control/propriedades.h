// The setters whose side effects come in a fixed order.
#ifndef GABARITO_CONTROL_PROPRIEDADES_H
#define GABARITO_CONTROL_PROPRIEDADES_H

#include <string_view>

#include "gabarito/platform/color.h"
#include "gabarito/platform/std_font.h"
#include "gabarito/state/campo.h"

namespace gabarito {

// No setter judges its value. Each reports PropertyChanged with the name of the property: before the layout
// run where there is one, else last. PoeBackColor, PoeEnabled, PoeMaskText and PoeComboListIndex run in
// skip-on-error mode; a failure in another reaches the caller.
void PoeAppearance(Campo& c, std::int32_t valor);
void PoeBackColor(Campo& c, Color lCor);
void PoeCNPJAlfanumerico(Campo& c, bool valor);
void PoeComboListIndex(Campo& c, std::int16_t valor);
void PoeEnabled(Campo& c, bool valor);
void PoeFont(Campo& c, const FontRef& sFnt);
void PoeMask(Campo& c, std::int32_t M);
void PoeMaskText(Campo& c, std::u16string_view mascara);
// Stores the absolute value. Raises 6 on -32768, which has none.
void PoeMaxLength(Campo& c, std::int16_t t);
void PoeUsarFundoPastel(Campo& c, bool valor);

}  // namespace gabarito

#endif  // GABARITO_CONTROL_PROPRIEDADES_H
