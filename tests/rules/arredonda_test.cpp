#include "gabarito/rules/arredonda.h"

#include <gtest/gtest.h>

#include <limits>

#include "gabarito/platform/number.h"
#include "tabela.h"

namespace gabarito {
namespace {

TEST(Arredonda, JudgesByTheOneDigitBehindTheLastPlace) {
  for (const auto& c : Linhas(u"1.005=2=1.01|2.675=2=2.68|-1.005=2=-1.01|1.2349=2=1.23|1.2351=2=1.24|2.5=0=3|"
                              u"-2.5=0=-3|0.49999=0=0|0=2=0|1250=-2=1300|1249=-2=1200|0.999=2=1")) {
    CacheDeArredonda cache;
    EXPECT_EQ(Arredonda(cache, Val(c[0]), ToInt32(Val(c[1]))), Val(c[2])) << testing::PrintToString(c);
  }
}

TEST(Arredonda, AnswersTheLastPairFromItsCacheAndNoOther) {
  CacheDeArredonda cache;
  EXPECT_EQ(Arredonda(cache, 1.005, 2), 1.01);
  cache.ultimoResultado = 7;  // shows whether the rounding runs again
  EXPECT_EQ(Arredonda(cache, 0, 2), 0);
  EXPECT_EQ(Arredonda(cache, 1.005, 2), 7);
  EXPECT_EQ(Arredonda(cache, 1.005, 0), 1);
  EXPECT_EQ(Arredonda(cache, 1.005, 2), 1.01);
}

TEST(Arredonda, OverflowsBeyondTheDecimalTypeAndOnNoNumber) {
  CacheDeArredonda cache;
  for (const auto& c : Linhas(u"7e26=2=0|8e26=2=6|-8e26=2=6|1=400=6|1=-400=6|1e300=0=0")) {
    const auto arredonda = [&] { Arredonda(cache, Val(c[0]), ToInt32(Val(c[1]))); };
    EXPECT_EQ(NumeroDoErro(arredonda), Val(c[2])) << testing::PrintToString(c);
  }
  EXPECT_EQ(NumeroDoErro([&] { Arredonda(cache, std::numeric_limits<double>::infinity(), 0); }), kOverflow);
}

}  // namespace
}  // namespace gabarito
