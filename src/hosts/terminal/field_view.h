// Draws one field in one row of a screen, and the open list of a combo box over others.
#ifndef HOSTS_TERMINAL_FIELD_VIEW_H
#define HOSTS_TERMINAL_FIELD_VIEW_H

#include "hosts/terminal/form_view.h"

namespace gabarito::terminal {

// The surface begins at `at`. Boxes of the 3D look stand between two upright lines, flat ones on a line below
// them; each shows the part of its text around the caret. The child with the focus gives the screen its
// caret.
void DrawField(Screen& screen, Point at, memory::Form& form, kit::FieldParts& parts);

// Rows [first, end) of a screen.
struct Rows {
  int first, end;
};

// The list of `combo`, which belongs to a field at `at`: below it or, if that gives less room, above it,
// within `rows`, scrolled so that the selected entry is on show.
void DrawList(Screen& screen, Point at, Rows rows, kit::ComboModel& combo);

}  // namespace gabarito::terminal

#endif  // HOSTS_TERMINAL_FIELD_VIEW_H
