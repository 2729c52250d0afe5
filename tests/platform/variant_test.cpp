#include "gabarito/platform/variant.h"

#include <gtest/gtest.h>

#include <new>

#include "expect.h"
#include "gabarito/platform/erro.h"
#include "gabarito/platform/pula_erros.h"

namespace gabarito {
namespace {

using View = std::u16string_view;

TEST(Variant, HasATextUnlessItsTypeHasNone) {
  // clang-format off
  const struct { Variant value; View text; } rows[] = {
      {Empty{}, u""}, {true, u"True"}, {false, u"False"}, {std::int32_t{-7}, u"-7"}, {2.5, u"2,5"},
      {u"1.234,5", u"1.234,5"}};
  // clang-format on
  for (const auto& row : rows) EXPECT_EQ(ToText(row.value), row.text);
  for (const Variant& value : {Variant(Null{}), Variant(std::make_shared<StdFont>()), MakeArray({})}) {
    ExpectRaised(kTypeMismatch, {[&] { ToText(value); }});
  }
}

TEST(Variant, IsTheSameByTypeAndValueAFontByItsLookAnArrayByIdentity) {
  const auto font = std::make_shared<StdFont>();
  const auto twin = std::make_shared<StdFont>();
  EXPECT_TRUE(SameValue(font, twin));
  twin->Bold = true;
  const Variant array = MakeArray({Empty{}}, 3);
  EXPECT_TRUE(SameValue(FontRef(), FontRef()));
  EXPECT_TRUE(SameValue(array, array));
  // clang-format off
  for (const auto& [one, other] : std::initializer_list<std::pair<Variant, Variant>>{
      {font, twin}, {font, FontRef()}, {std::int32_t{1}, 1.0}, {array, MakeArray({Empty{}}, 3)}})
    EXPECT_FALSE(SameValue(one, other)) << one.index();
  // clang-format on
}

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
