// What each box of a field holds, in one word, for those who cannot see the separators between them.
#ifndef HOSTS_KIT_BOX_NAMES_H
#define HOSTS_KIT_BOX_NAMES_H

#include <cstdint>
#include <string_view>

#include "hosts/kit/input_model.h"

namespace gabarito::kit {

// "dia", "mês", "ano", "hora", "cidade", "UF"... for the children of a field with several or with a list;
// empty for a box that is the whole field: it goes by the field's own label.
std::u16string_view BoxName(std::int32_t mask, InputModel& child);

}  // namespace gabarito::kit

#endif  // HOSTS_KIT_BOX_NAMES_H
