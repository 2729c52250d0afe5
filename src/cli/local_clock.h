// The wall clock of the machine as the platform's number for a moment.
#ifndef CLI_LOCAL_CLOCK_H
#define CLI_LOCAL_CLOCK_H

#include "gabarito/platform/date.h"

namespace gabarito::cli {

// The present second in local time.
Date LocalNow();

}  // namespace gabarito::cli

#endif  // CLI_LOCAL_CLOCK_H
