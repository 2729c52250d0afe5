// The host's ambient background reaches the separators and the surface.
#ifndef GABARITO_CONTROL_APARENCIA_H
#define GABARITO_CONTROL_APARENCIA_H

#include <string_view>

#include "gabarito/state/campo.h"

namespace gabarito {

// Follows "BackColor" alone, spelled exactly so. Without an ambient object the colours stay as they were.
// Skip-on-error mode.
void UserControl_AmbientChanged(Campo& c, std::u16string_view PropertyName);

}  // namespace gabarito

#endif  // GABARITO_CONTROL_APARENCIA_H
