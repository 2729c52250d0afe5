// The version record of the library.
#ifndef GABARITO_CONTROL_VERSAO_H
#define GABARITO_CONTROL_VERSAO_H

#include <cstdint>

namespace gabarito {

struct App {
  static constexpr std::int16_t Major = 5;
  static constexpr std::int16_t Minor = 1;
  static constexpr std::int16_t Revision = 3;
  static constexpr const char16_t* LegalCopyright = u"Copyright (c) 2026 Gabarito";
};

}  // namespace gabarito

#endif  // GABARITO_CONTROL_VERSAO_H
