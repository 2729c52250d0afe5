// What hosts for people do beyond the field, where FormModel::comfort is on: three lines of the key protocol.
//
// A person types 5/3/24 as it is written: a separator that the field refuses leads on to the child behind it.
// A text that is pasted goes through all boxes. A step back that the field sends stays inside the field.
#ifndef HOSTS_KIT_COMFORT_H
#define HOSTS_KIT_COMFORT_H

#include <string_view>

#include "hosts/kit/input_model.h"
#include "hosts/kit/keyboard.h"

namespace gabarito::kit {

class FormModel;

// What a typed separator does in a box.
struct SeparatorStep {
  // It is the separator shown right behind the box, which holds text and no selection: this is the child
  // behind it.
  Focusable* to = nullptr;
  // It is the separator in front of the box, which is empty: a full box has stepped over it by itself
  // already.
  bool passed = false;
};

// Without effect. Both members stay empty for a character that is no separator here.
SeparatorStep StepOver(InputModel& child, char16_t character);

// For a text about to be pasted or dropped into `child`. True when it has been taken over: the child belongs
// to a field that shows several, and the text is longer than the room left in it, so it is typed instead, one
// character after another (Keyboard::PressLater), control characters left out.
bool TypeThrough(InputModel& child, std::u16string_view text);

// For a Tab of the queue. True when it has been carried out: a step back that the field has sent goes to the
// child in front of the one with the focus, or nowhere from the first one.
bool StepBackInside(FormModel& form, const KeyEvent& event);

}  // namespace gabarito::kit

#endif  // HOSTS_KIT_COMFORT_H
