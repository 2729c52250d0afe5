// What the tests of several folders expect in the same way.
#ifndef GABARITO_TESTS_PLATFORM_EXPECT_H
#define GABARITO_TESTS_PLATFORM_EXPECT_H

#include <gtest/gtest.h>

#include <functional>
#include <initializer_list>
#include <utility>

#include "gabarito/platform/erro.h"

// The number of the error that a step raises; 0 when it raises none.
template <class Step>
std::int32_t RaisedBy(Step step) {
  try {
    step();
  } catch (const gabarito::Erro& erro) {
    return erro.Number();
  }
  return 0;
}

// Each of the steps raises the error.
inline void ExpectRaised(std::int32_t number, std::initializer_list<std::function<void()>> steps) {
  for (const auto& step : steps) EXPECT_EQ(RaisedBy(step), number) << "step " << &step - steps.begin();
}

// Each row is what a call gave and what it has to give.
template <class Given, class Wanted = Given>
void ExpectEach(std::initializer_list<std::pair<Given, Wanted>> rows) {
  for (const auto& row : rows) EXPECT_EQ(row.first, row.second) << "row " << &row - rows.begin();
}

#endif  // GABARITO_TESTS_PLATFORM_EXPECT_H
