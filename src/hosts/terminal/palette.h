// The colours of the field in those of a terminal.
#ifndef HOSTS_TERMINAL_PALETTE_H
#define HOSTS_TERMINAL_PALETTE_H

#include "gabarito/platform/color.h"

namespace gabarito::terminal {

// The index of the colour that a terminal of 256, 16 or 8 colours has for `color`. System colours have fixed
// shades: the window background is white, the face of buttons light grey, and on 8 colours, where both would
// be one, the window background is cyan.
int TerminalColor(Color color, int colors);

// Whether light text reads better on it.
bool IsDark(Color color);

}  // namespace gabarito::terminal

#endif  // HOSTS_TERMINAL_PALETTE_H
