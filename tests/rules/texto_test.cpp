#include "gabarito/rules/texto.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

#include "gabarito/platform/number.h"
#include "gabarito/rules/arredonda.h"
#include "gabarito/rules/moeda.h"
#include "hosts/kit/regional_kernel.h"
#include "tabela.h"

namespace gabarito {
namespace {

using testing::PrintToString;

TEST(Substitui, ReplacesWhatItFindsAndNeverSearchesWhatItBroughtIn) {
  // Text, sought, new, result, start, count.
  for (const auto& c : Linhas(u"aXbXc=X==abc=1=-1|aXbXc=X==abXc=1=1|aXa=X=y=aya=1=0|aaa=a=aa=aaaaaa=1=-1|"
                              u"aaaa=aaa=a=aa=1=-1|abc==z=abc=1=-1|=a=z==1=-1|xaxa=x=y=xaya=2=-1|"
                              u"xaxa=x=y=xaxa=9=-1|xaxa=x=y=xaxa=0=-1|aAa=A=b=aba=1=-1")) {
    const auto inicio = static_cast<std::int32_t>(Val(c[4])), quantos = static_cast<std::int32_t>(Val(c[5]));
    EXPECT_EQ(Substitui(c[0], c[1], c[2], inicio, quantos), c[3]) << PrintToString(c);
  }
  for (const auto& c : Linhas(u"aAa=A=b=bbb|aÃa=ã=-=a-a|aAa=a=A=AAA|aAa=A=A=aAa")) {
    EXPECT_EQ(Substitui(c[0], c[1], c[2], 1, -1, Comparison::kIgnoreCase), c[3]) << PrintToString(c);
  }
}

TEST(SoCaracteres, KeepsTheSetInAnyCaseAndTheTextAsItStands) {
  for (const auto& c : Linhas(u"a1-b2=0123456789=12|ab=B=b|AB=b=B|çÇñ=Ç=çÇ|ÿŸy=ÿ=ÿŸ|abc=="))
    EXPECT_EQ(SoCaracteres(c[0], c[1]), c[2]);
  EXPECT_EQ(SoDigitos(u"٣1²-2"), u"12");
}

TEST(PfTiraAcentoDeFrase, GivesPlainCapitalsOfTheSameLength) {
  for (const auto& c : Linhas(u"=|São João d'Ávila=SAO JOAO D AVILA|1º andar=1  ANDAR|ñýæøßþð×÷=ÑÝÆØßÞÐ×÷|"
                              u"áàãâäåéèêëíìîïóòõôöúùûüç=AAAAAAEEEEIIIIOOOOOUUUUC|"
                              u"a\"b`c\u007Fd\u00A0e\u00BFf=A B C D E F|"
                              u"\u2019\u20ACšœÿ=     |"  // 128 to 159 in the code page
                              u"\u4E00~?=\u4E00~?")) {   // not in the code page
    EXPECT_EQ(pfTiraAcentoDeFrase(c[0]), c[1]);
  }
}

TEST(Texto, ATextBeyondTheSixteenBitCounterOverflows) {
  for (const std::size_t tamanho : {32767, 32768}) {
    const std::u16string texto(tamanho, u'1');
    ExpectRaised(
        tamanho > 32767 ? kOverflow : 0,
        {[&] { SoDigitos(texto); }, [&] { SoCaracteres(texto, u"a"); }, [&] { pfTiraAcentoDeFrase(texto); }});
    EXPECT_EQ(RaisedBy([&] { Substitui(texto, u"1", u""); }), 0);
  }
}

TEST(EhLetra, OrdersSeveralCharactersAsAText) {
  for (const auto& c : Divide(u"a|Z|ã|À|Ö|ø|ß|Þ| |*|'|\"|A1|yz", u'|'))
    EXPECT_TRUE(EhLetra(c)) << PrintToString(c);
  for (const auto& c : Divide(u"|1|-|@|[|`|{|×|÷|ÿ|Ā|  |za|ÖA|ßa|1A|\u4E00", u'|'))
    EXPECT_FALSE(EhLetra(c)) << PrintToString(c);
}

using enum FormaDeNumero;

kit::RegionalKernel Sistema(std::u16string_view decimal, std::u16string_view milhar) {
  kit::RegionalKernel sistema;
  sistema.regional.decimal = decimal;
  sistema.regional.thousands = milhar;
  return sistema;
}

std::u16string Formata(std::u16string_view valor, FormaDeNumero forma,
                       const kit::RegionalKernel& sistema = Sistema(u",", u".")) {
  CacheDeArredonda cache;
  return FormataComoReal(valor, forma, sistema, cache);
}

TEST(FormataComoReal, NormalisesWhatWasTyped) {
  // 15 digits enter the rounding: 0,445, 1 and 0 in the last row of kMoeda.
  const std::pair<FormaDeNumero, std::u16string_view> formas[] = {
      {kMoeda,
       u"5=5,00|5,=5,00|5,5=5,50|5,50=5,50|5,05=5,05|,5=0,50|1234,5=1234,50|1.234,5=1.234,50|"
       u"12,345=12,35|12,344=12,34|1,005=1,01|12,001=12,00|12,999=12,00|=|abc=|-5,5=5,50|R$ 7,5=7,50|"
       u"0.000=|.=|,=0,00|0.000,00=0,00|000,1=0,10|1,2.3,4=1,23|12.34567,8=1.234.567,80|"
       u"1,4449999999999999999999=1,45|1,9999999999999999999=1,00|1,0000000000000000001=1,00"},
      {kReal, u"1,500=1,500|7,=7|,5=0,5|12=12|x=|0.000=|1234.5=12.345|0.9,1=0,1"},
      {kVersao, u"1.2.3=1.23|1,5=1.5|3=3|x=|1.234,5=1.234.5"}};
  for (const auto& [forma, casos] : formas) {
    for (const auto& c : Linhas(casos)) EXPECT_EQ(Formata(c[0], forma), c[1]) << PrintToString(c[0]);
  }
}

TEST(FormataComoReal, FollowsItsStepsUnderAnySeparatorsAndSkipsThoseThatALongTextFails) {
  const std::u16string longo = std::u16string(32767, u'x') + u"1,5", numero = u"1,234.567";
  ExpectEach<std::u16string>({{Formata(longo, kMoeda), longo + u",00"},
                              {Formata(numero, kMoeda, Sistema(u".", u",")), u"1,234.57"},
                              {Formata(numero, kMoeda, Sistema(u",", u",")), u"1,23"},
                              {Formata(numero, kMoeda, Sistema(u"", u"")), u"123456700"},
                              {Formata(u"0.5", kReal, Sistema(u"", u".")), u"5"},
                              {Formata(u"12,5", kVersao, Sistema(u",", u"")), u"125"},
                              {Formata(numero, kMoeda, Sistema(u",,", u"..")), u"1,234.567,,00"}});
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
    ASSERT_EQ(Formata(u"3," + fracao, kMoeda), u"3," + centavos) << PrintToString(fracao);
  }
}

TEST(Separadores, AreTheSystemsOwnAndEmptyWhenItGivesNone) {
  const auto milhar = [](std::u16string_view marca) { return SeparadorDeMilhar(Sistema(u",", marca)); };
  EXPECT_EQ(SeparadorDecimal(Sistema(u",", u".")), u",");
  ExpectEach<std::u16string>(
      {{milhar(u"\u2019"), u"\u2019"}, {milhar(u"123456789"), u"123456789"}, {milhar(u"1234567890"), u""}});
}

TEST(Arredonda, JudgesByTheOneDigitBehindTheLastPlace) {
  for (const auto& c : Linhas(u"1.005=2=1.01|2.675=2=2.68|-1.005=2=-1.01|1.2349=2=1.23|1.2351=2=1.24|2.5=0=3|"
                              u"-2.5=0=-3|0.49999=0=0|0=2=0|1250=-2=1300|1249=-2=1200|0.999=2=1")) {
    CacheDeArredonda cache;
    EXPECT_EQ(Arredonda(cache, Val(c[0]), ToInt32(Val(c[1]))), Val(c[2])) << PrintToString(c);
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
    EXPECT_EQ(RaisedBy([&] { Arredonda(cache, Val(c[0]), ToInt32(Val(c[1]))); }), Val(c[2]))
        << PrintToString(c);
  }
  EXPECT_EQ(RaisedBy([&] { Arredonda(cache, std::numeric_limits<double>::infinity(), 0); }), kOverflow);
}

}  // namespace
}  // namespace gabarito
