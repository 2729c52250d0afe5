// The focus comes in: the surface hands it on, the box that takes it selects its text and turns pastel.
#ifndef GABARITO_CONTROL_FOCO_H
#define GABARITO_CONTROL_FOCO_H

#include "gabarito/state/campo.h"

namespace gabarito {

inline constexpr Color kPastel = RGB(255, 255, 210);

// All in skip-on-error mode.
void UserControl_GotFocus(Campo& c);
void EntradaGotFocus(Campo& c, std::int16_t Index);
void MaskEdBox1_GotFocus(Campo& c);

}  // namespace gabarito

#endif  // GABARITO_CONTROL_FOCO_H
