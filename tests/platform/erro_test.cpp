#include "gabarito/platform/erro.h"

#include <gtest/gtest.h>

#include <new>

#include "gabarito/platform/pula_erros.h"

namespace gabarito {
namespace {

TEST(PulaErros, SkipsTheFailingStepAndKeepsItsNumberReadable) {
  PulaErros pula;
  int ran = 0;
  EXPECT_TRUE(pula([&] { ++ran; }));
  EXPECT_EQ(pula.Number(), 0);
  EXPECT_FALSE(pula([&] { throw Erro(kInvalidPropertyValue); }));
  EXPECT_TRUE(pula([&] { ++ran; }));
  EXPECT_EQ(ran, 2);
  EXPECT_EQ(pula.Number(), kInvalidPropertyValue);
}

TEST(PulaErros, AConditionThatFailsSkipsItsWholeIfAndAFaultThatIsNoRunTimeErrorPasses) {
  PulaErros pula;
  EXPECT_FALSE(pula.Se([]() -> bool { throw Erro(kObjectNotSet); }));
  EXPECT_EQ(pula.Number(), kObjectNotSet);
  EXPECT_TRUE(pula.Se([] { return true; }));
  EXPECT_THROW(pula([] { throw std::bad_alloc(); }), std::bad_alloc);
}

TEST(Erro, DescribesItsNumberInPortuguese) {
  EXPECT_EQ(Erro(kOverflow).Description(), u"Estouro");
  EXPECT_EQ(Erro(12345).Description(), u"Erro de aplicativo ou de objeto");
}

}  // namespace
}  // namespace gabarito
