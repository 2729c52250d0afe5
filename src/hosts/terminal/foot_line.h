// The keys that work now, in one line.
#ifndef HOSTS_TERMINAL_FOOT_LINE_H
#define HOSTS_TERMINAL_FOOT_LINE_H

#include <string>

#include "hosts/terminal/form_model.h"

namespace gabarito::terminal {

// Names only keys that do what they are said to do where the focus is. What `width` cells do not hold is left
// out, the least needed first.
std::u32string FootLine(FormModel& model, int width);

// The page of F1: the field with the focus, then all keys.
std::u32string HelpText(FormModel& model);

}  // namespace gabarito::terminal

#endif  // HOSTS_TERMINAL_FOOT_LINE_H
