#include "hosts/kit/regional_kernel.h"

#include "gabarito/platform/text.h"

namespace gabarito::kit {

std::int32_t RegionalKernel::GetLocaleInfoA(std::int32_t locale, std::int32_t item,
                                            std::span<char> buffer) const {
  if (locale != kLocaleUserDefault) return 0;
  if (item != kLocaleDecimal && item != kLocaleThousands) return 0;
  const std::u16string& setting = item == kLocaleDecimal ? regional.decimal : regional.thousands;
  if (setting.size() + 1 > buffer.size()) return 0;
  std::size_t n = 0;
  for (const char16_t c : setting) buffer[n++] = static_cast<char>(Asc(c));
  buffer[n++] = '\0';
  return static_cast<std::int32_t>(n);
}

void RegionalKernel::GetVersionExA(OSVERSIONINFO& info) const {
  const std::int32_t size = info.dwOSVersionInfoSize;
  info = version;
  info.dwOSVersionInfoSize = size;
}

}  // namespace gabarito::kit
