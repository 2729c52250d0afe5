// The value of a field without its check.
#ifndef HOSTS_KIT_LOOK_H
#define HOSTS_KIT_LOOK_H

#include <string>

#include "hosts/kit/field_model.h"

namespace gabarito::kit {

// What Text would give now, found out on a copy of the field: no message is shown, no focus moved, no box
// rewritten, and nothing is told to the recorder. Where the field would be refused it is what a refusal
// leaves; a question is answered by its default button. Takes some microseconds.
std::u16string ValueNow(FieldModel& field);

}  // namespace gabarito::kit

#endif  // HOSTS_KIT_LOOK_H
