// The keys that work now, in one line.
#ifndef HOSTS_TERMINAL_FOOT_LINE_H
#define HOSTS_TERMINAL_FOOT_LINE_H

#include <string>

#include "hosts/terminal/form_model.h"
#include "hosts/terminal/grid.h"
#include "hosts/terminal/message_box.h"

namespace gabarito::terminal {

// The last row of a screen. Names only keys that do what they are said to do where the focus is, or in the
// box that lies over the form. What the row does not hold is left out, the least needed first.
void DrawFoot(Grid& grid, FormModel& model);
void DrawFoot(Grid& grid, const MessageBox& box);

// The page of F1: the field with the focus, then all keys.
std::u32string HelpText(FormModel& model);

}  // namespace gabarito::terminal

#endif  // HOSTS_TERMINAL_FOOT_LINE_H
