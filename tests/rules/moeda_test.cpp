#include "gabarito/rules/moeda.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "gabarito/platform/number.h"
#include "tabela.h"

namespace gabarito {
namespace {

using enum FormaDeNumero;

struct Sistema : Kernel32 {
  Sistema(std::string decimal, std::string milhar) : marcas{std::move(decimal), std::move(milhar)} {}

  std::int32_t GetLocaleInfoA(std::int32_t, std::int32_t item, std::span<char> buffer) const override {
    const std::string& marca = marcas[item - kLocaleDecimal];
    if (marca.size() >= buffer.size()) return 0;
    std::copy_n(marca.c_str(), marca.size() + 1, buffer.begin());
    return static_cast<std::int32_t>(marca.size() + 1);
  }
  void GetVersionExA(OSVERSIONINFO&) const override {}

  std::string marcas[2];
};

std::u16string Formata(std::u16string_view valor, FormaDeNumero forma, const Sistema& sistema = {",", "."}) {
  Regional regional;
  regional.decimal = SeparadorDecimal(sistema);
  regional.thousands = SeparadorDeMilhar(sistema);
  CacheDeArredonda cache;
  return FormataComoReal(valor, forma, sistema, regional, cache);
}

TEST(FormataComoReal, NormalisesWhatWasTyped) {
  const struct {
    FormaDeNumero forma;
    std::u16string_view casos;
  } formas[] = {
      {kMoeda,
       u"5=5,00|5,=5,00|5,5=5,50|5,50=5,50|5,05=5,05|,5=0,50|1234,5=1234,50|1.234,5=1.234,50|"
       u"12,345=12,35|12,344=12,34|1,005=1,01|12,001=12,00|12,999=12,00|=|abc=|-5,5=5,50|R$ 7,5=7,50|"
       u"0.000=|.=|,=0,00|0.000,00=0,00|000,1=0,10|1,2.3,4=1,23|12.34567,8=1.234.567,80|"
       // 15 digits enter the rounding: 0,445, 1 and 0.
       u"1,4449999999999999999999=1,45|1,9999999999999999999=1,00|1,0000000000000000001=1,00"},
      {kReal, u"1,500=1,500|7,=7|,5=0,5|12=12|x=|0.000=|1234.5=12.345|0.9,1=0,1"},
      {kVersao, u"1.2.3=1.23|1,5=1.5|3=3|x=|1.234,5=1.234.5"}};
  for (const auto& [forma, casos] : formas) {
    for (const auto& c : Linhas(casos)) EXPECT_EQ(Formata(c[0], forma), c[1]) << testing::PrintToString(c[0]);
  }
}

TEST(FormataComoReal, SkipsTheStepsThatALongTextFails) {
  const std::u16string longo = std::u16string(32767, u'x') + u"1,5";
  EXPECT_EQ(Formata(longo, kMoeda), longo + u",00");
}

TEST(FormataComoReal, FollowsItsStepsUnderAnySeparators) {
  const struct {
    std::string decimal, milhar;
    std::u16string_view resultado;
  } casos[] = {
      {".", ",", u"1,234.57"}, {",", ",", u"1,23"}, {"", "", u"34"}, {",,", "..", u"1,234.567,,00"}};
  for (const auto& [decimal, milhar, resultado] : casos) {
    EXPECT_EQ(Formata(u"1,234.567", kMoeda, {decimal, milhar}), resultado) << decimal << " " << milhar;
  }
}

TEST(FormataComoReal, CentsFromTheTextAreThoseOfTheRounding) {
  std::mt19937 sorteio(7);
  for (int n = 0; n < 5000; ++n) {
    std::u16string fracao(2 + sorteio() % 14, u'0');
    for (char16_t& c : fracao) c = u"0123444455569999"[sorteio() % 16];
    CacheDeArredonda cache;
    const double unidade = Arredonda(cache, Val(u"." + fracao), 2);
    const bool inteiro = unidade == 0 || unidade == 1;
    const std::u16string centavos = inteiro ? u"00" : (NumberToText(unidade) + u"0").substr(2, 2);
    ASSERT_EQ(Formata(u"3," + fracao, kMoeda), u"3," + centavos) << testing::PrintToString(fracao);
  }
}

TEST(Separadores, AreTheSystemsOwnAndEmptyWhenItGivesNone) {
  EXPECT_EQ(SeparadorDecimal(Sistema(",", ".")), u",");
  EXPECT_EQ(SeparadorDeMilhar(Sistema(",", "\x92")), u"\u2019");
  EXPECT_EQ(SeparadorDeMilhar(Sistema(",", "123456789")), u"123456789");
  EXPECT_EQ(SeparadorDeMilhar(Sistema(",", "1234567890")), u"");
}

}  // namespace
}  // namespace gabarito
