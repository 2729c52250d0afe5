// System calls about the region and the system's version.
#ifndef GABARITO_PLATFORM_KERNEL32_H
#define GABARITO_PLATFORM_KERNEL32_H

#include <cstdint>
#include <span>

namespace gabarito {

inline constexpr std::int32_t kLocaleUserDefault = 1024;
inline constexpr std::int32_t kLocaleDecimal = 14;
inline constexpr std::int32_t kLocaleThousands = 15;

inline constexpr std::int32_t kPlatformWindows = 1;  // its version decides whether there is SendInput

struct OSVERSIONINFO {
  std::int32_t dwOSVersionInfoSize = 148;
  std::int32_t dwMajorVersion = 0;
  std::int32_t dwMinorVersion = 0;
  std::int32_t dwBuildNumber = 0;
  std::int32_t dwPlatformId = 0;
};

class Kernel32 {
 public:
  virtual ~Kernel32() = default;

  // Writes the setting in code page 1252 with a terminating zero and returns the number of characters
  // written, the zero included; 0 when it does not fit, or for an item or locale that the host lacks.
  virtual std::int32_t GetLocaleInfoA(std::int32_t locale, std::int32_t item,
                                      std::span<char> buffer) const = 0;

  virtual void GetVersionExA(OSVERSIONINFO& info) const = 0;
};

}  // namespace gabarito

#endif  // GABARITO_PLATFORM_KERNEL32_H
