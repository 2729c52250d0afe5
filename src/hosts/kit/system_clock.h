// The clock of the system: local time, to the second.
#ifndef HOSTS_KIT_SYSTEM_CLOCK_H
#define HOSTS_KIT_SYSTEM_CLOCK_H

#include "gabarito/platform/clock.h"

namespace gabarito::kit {

class SystemClock final : public Clock {
 public:
  Date Now() const override;
};

}  // namespace gabarito::kit

#endif  // HOSTS_KIT_SYSTEM_CLOCK_H
