// The system calls about region and version, answered from a Regional.
#ifndef HOSTS_KIT_REGIONAL_KERNEL_H
#define HOSTS_KIT_REGIONAL_KERNEL_H

#include "gabarito/platform/kernel32.h"
#include "gabarito/platform/regional.h"

namespace gabarito::kit {

class RegionalKernel final : public Kernel32 {
 public:
  std::int32_t GetLocaleInfoA(std::int32_t locale, std::int32_t item, std::span<char> buffer) const override;
  void GetVersionExA(OSVERSIONINFO& info) const override;

  Regional regional;
  OSVERSIONINFO version{.dwMajorVersion = 10, .dwPlatformId = 2};
};

}  // namespace gabarito::kit

#endif  // HOSTS_KIT_REGIONAL_KERNEL_H
