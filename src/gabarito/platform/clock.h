// The present date and time.
#ifndef GABARITO_PLATFORM_CLOCK_H
#define GABARITO_PLATFORM_CLOCK_H

#include "gabarito/platform/date.h"

namespace gabarito {

class Clock {
 public:
  virtual ~Clock() = default;
  // Local time, to the second or finer.
  virtual Date Now() const = 0;
};

}  // namespace gabarito

#endif  // GABARITO_PLATFORM_CLOCK_H
