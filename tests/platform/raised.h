// The number of the error that a step raises; 0 when it raises none.
#ifndef GABARITO_TESTS_PLATFORM_RAISED_H
#define GABARITO_TESTS_PLATFORM_RAISED_H

#include "gabarito/platform/erro.h"

template <class Step>
std::int32_t RaisedBy(Step step) {
  try {
    step();
  } catch (const gabarito::Erro& erro) {
    return erro.Number();
  }
  return 0;
}

#endif  // GABARITO_TESTS_PLATFORM_RAISED_H
