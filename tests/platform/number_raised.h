// For tests: the number of the run-time error that a step raises.
#ifndef GABARITO_TESTS_PLATFORM_NUMBER_RAISED_H
#define GABARITO_TESTS_PLATFORM_NUMBER_RAISED_H

#include <cstdint>

#include "gabarito/platform/erro.h"

namespace gabarito {

// 0 when `step` raises none.
template <class Step>
std::int32_t NumberRaised(Step step) {
  try {
    step();
  } catch (const Erro& erro) {
    return erro.Number();
  }
  return 0;
}

}  // namespace gabarito

#endif  // GABARITO_TESTS_PLATFORM_NUMBER_RAISED_H
