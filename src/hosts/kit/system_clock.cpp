#include "hosts/kit/system_clock.h"

#include <algorithm>
#include <ctime>

namespace gabarito::kit {

Date SystemClock::Now() const {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  // A leap second, 60, has no number of its own.
  return DateFromParts({local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min,
                        std::min(local.tm_sec, 59)});
}

}  // namespace gabarito::kit
