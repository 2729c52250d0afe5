// The resources of the component that a host runtime shows: the toolbox picture here, the version record in
// gabarito/control/versao.h, the string table in gabarito/combo/municipios.h, the published members in
// gabarito/control/interface.h.
#ifndef SHELL_RESOURCES_H
#define SHELL_RESOURCES_H

#include <cstdint>
#include <span>

namespace gabarito {

inline constexpr std::int32_t kToolboxPicture = 30000;

// The picture with this number as the bytes of a BMP file, 24 bits a pixel; they live as long as the process.
// Raises 5 for a number that has none.
std::span<const std::uint8_t> LoadResPicture(std::int32_t id);

}  // namespace gabarito

#endif  // SHELL_RESOURCES_H
