// The resources of the component that a host runtime shows: the toolbox picture here, the version record in
// gabarito/control/versao.h, the string table in gabarito/combo/municipios.h, the members in
// gabarito/control/interface.h; and what a register of components keeps of it.
#ifndef SHELL_RESOURCES_H
#define SHELL_RESOURCES_H

#include <cstdint>
#include <span>

namespace gabarito {

inline constexpr std::int32_t kToolboxPicture = 30000;

// How a container is to treat the component: the miscellaneous status that its registration carries.
enum MiscStatus : std::uint32_t {
  kRecomposeOnResize = 0x1,       // its picture changes with its size: it is asked anew, not stretched
  kCantLinkInside = 0x10,         // other documents cannot link into it
  kInsideOut = 0x80,              // it is active in place without a frame of its own
  kActivateWhenVisible = 0x100,   // it is activated as soon as it is shown
  kSetClientSiteFirst = 0x20000,  // it gets its site before its stored state
};
inline constexpr std::uint32_t kRegistrationFlags =
    kRecomposeOnResize | kCantLinkInside | kInsideOut | kActivateWhenVisible | kSetClientSiteFirst;

// The picture with this number as the bytes of a BMP file, 24 bits a pixel; they live as long as the process.
// Raises 5 for a number that has none.
std::span<const std::uint8_t> LoadResPicture(std::int32_t id);

}  // namespace gabarito

#endif  // SHELL_RESOURCES_H
