// The city table of a page: fetched when a field first needs it, and handed to the module once.
#ifndef HOSTS_WEB_MUNICIPIOS_H
#define HOSTS_WEB_MUNICIPIOS_H

#include <string_view>

namespace gabarito::web {

// All lines in order, each ended by a line feed. Ignored unless it has as many lines as the core has ids.
bool OwnMunicipios(std::u16string_view lines);

bool HasMunicipios();

}  // namespace gabarito::web

#endif  // HOSTS_WEB_MUNICIPIOS_H
