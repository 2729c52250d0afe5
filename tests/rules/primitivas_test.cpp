#include "gabarito/rules/primitivas.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

#include "../platform/expect.h"
#include "gabarito/platform/number.h"
#include "gabarito/rules/arredonda.h"
#include "gabarito/rules/moeda.h"
#include "hosts/kit/regional_kernel.h"

namespace gabarito {
namespace {

using testing::PrintToString;

using View = std::u16string_view;

// clang-format off
TEST(Substitui, ReplacesWhatItFindsAndNeverSearchesWhatItBroughtIn) {
  constexpr Comparison kOrdinal = Comparison::kOrdinal, kAnyCase = Comparison::kIgnoreCase;
  const struct {
    const char* name;
    View text, sought, news, result;
    std::int32_t from, count;
    Comparison by;
  } rows[] = {
      {"all of them", u"aXbXc", u"X", u"", u"abc", 1, -1, kOrdinal},
      {"one of them", u"aXbXc", u"X", u"", u"abXc", 1, 1, kOrdinal},
      {"0 is all", u"aXa", u"X", u"y", u"aya", 1, 0, kOrdinal},
      {"what comes in is not searched", u"aaa", u"a", u"aa", u"aaaaaa", 1, -1, kOrdinal},
      {"nor does it join what follows", u"aaaa", u"aaa", u"a", u"aa", 1, -1, kOrdinal},
      {"nothing sought", u"abc", u"", u"z", u"abc", 1, -1, kOrdinal},
      {"in an empty text", u"", u"a", u"z", u"", 1, -1, kOrdinal},
      {"what stands before the start stays", u"xaxa", u"x", u"y", u"xaya", 2, -1, kOrdinal},
      {"a start behind the end", u"xaxa", u"x", u"y", u"xaxa", 9, -1, kOrdinal},
      {"a start below 1", u"xaxa", u"x", u"y", u"xaxa", 0, -1, kOrdinal},
      {"case counts", u"aAa", u"A", u"b", u"aba", 1, -1, kOrdinal},
      {"unless it does not", u"aAa", u"A", u"b", u"bbb", 1, -1, kAnyCase},
      {"letters with an accent too", u"aÃa", u"ã", u"-", u"a-a", 1, -1, kAnyCase},
      {"into another case", u"aAa", u"a", u"A", u"AAA", 1, -1, kAnyCase},
      {"into itself", u"aAa", u"A", u"A", u"aAa", 1, -1, kAnyCase},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(Substitui(row.text, row.sought, row.news, row.from, row.count, row.by), row.result) << row.name;
  }
}

TEST(SoCaracteres, KeepsTheSetInAnyCaseAndTheTextAsItStands) {
  const struct { View text, set, kept; } rows[] = {
      {u"a1-b2", u"0123456789", u"12"}, {u"ab", u"B", u"b"}, {u"AB", u"b", u"B"},
      {u"çÇñ", u"Ç", u"çÇ"}, {u"ÿŸy", u"ÿ", u"ÿŸ"}, {u"abc", u"", u""},
  };
  for (const auto& row : rows) EXPECT_EQ(SoCaracteres(row.text, row.set), row.kept);
  EXPECT_EQ(SoDigitos(u"٣1²-2"), u"12");
}

TEST(PfTiraAcentoDeFrase, GivesPlainCapitalsOfTheSameLength) {
  const struct { const char* name; View text, plain; } rows[] = {
      {"nothing", u"", u""},
      {"an accent and an apostrophe", u"São João d'Ávila", u"SAO JOAO D AVILA"},
      {"a sign of the code page", u"1º andar", u"1  ANDAR"},
      {"letters of no Portuguese word", u"ñýæøßþð×÷", u"ÑÝÆØßÞÐ×÷"},
      {"all that lose something", u"áàãâäåéèêëíìîïóòõôöúùûüç", u"AAAAAAEEEEIIIIOOOOOUUUUC"},
      {"quotes and codes from 127 to 191", u"a\"b`c\u007Fd\u00A0e\u00BFf", u"A B C D E F"},
      {"128 to 159 in the code page", u"\u2019\u20ACšœÿ", u"     "},
      {"not in the code page", u"\u4E00~?", u"\u4E00~?"},
  };
  for (const auto& row : rows) EXPECT_EQ(pfTiraAcentoDeFrase(row.text), row.plain) << row.name;
}
// clang-format on

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
  for (const View c : {u"a", u"Z", u"ã", u"À", u"Ö", u"ø", u"ß", u"Þ", u" ", u"*", u"'", u"\"", u"A1", u"yz"})
    EXPECT_TRUE(EhLetra(c)) << PrintToString(c);
  for (const View c : {u"", u"1", u"-", u"@", u"[", u"`", u"{", u"×", u"÷", u"ÿ", u"Ā", u"|", u"  ", u"za",
                       u"ÖA", u"ßa", u"1A", u"\u4E00"})
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

// clang-format off
TEST(FormataComoReal, NormalisesWhatWasTyped) {
  const struct { FormaDeNumero form; View typed, shown; } rows[] = {
      {kMoeda, u"", u""}, {kMoeda, u"abc", u""}, {kMoeda, u".", u""}, {kMoeda, u"0.000", u""},
      {kMoeda, u"5", u"5,00"}, {kMoeda, u"5,", u"5,00"}, {kMoeda, u"5,5", u"5,50"},
      {kMoeda, u"5,50", u"5,50"},
      {kMoeda, u"5,05", u"5,05"}, {kMoeda, u",5", u"0,50"}, {kMoeda, u",", u"0,00"},
      {kMoeda, u"000,1", u"0,10"},
      {kMoeda, u"-5,5", u"5,50"}, {kMoeda, u"R$ 7,5", u"7,50"}, {kMoeda, u"1,2.3,4", u"1,23"},
      // Grouped where it was typed so.
      {kMoeda, u"1234,5", u"1234,50"}, {kMoeda, u"1.234,5", u"1.234,50"}, {kMoeda, u"0.000,00", u"0,00"},
      {kMoeda, u"12.34567,8", u"1.234.567,80"},
      // Rounded in the decimals alone; 15 digits enter the rounding: 0,445, 1 and 0 in the last three.
      {kMoeda, u"12,345", u"12,35"}, {kMoeda, u"12,344", u"12,34"}, {kMoeda, u"1,005", u"1,01"},
      {kMoeda, u"12,001", u"12,00"}, {kMoeda, u"12,999", u"12,00"},
      {kMoeda, u"1,4449999999999999999999", u"1,45"}, {kMoeda, u"1,9999999999999999999", u"1,00"},
      {kMoeda, u"1,0000000000000000001", u"1,00"},
      {kReal, u"1,500", u"1,500"}, {kReal, u"7,", u"7"}, {kReal, u",5", u"0,5"}, {kReal, u"12", u"12"},
      {kReal, u"x", u""}, {kReal, u"0.000", u""}, {kReal, u"1234.5", u"12.345"}, {kReal, u"0.9,1", u"0,1"},
      {kVersao, u"1.2.3", u"1.23"}, {kVersao, u"1,5", u"1.5"}, {kVersao, u"3", u"3"}, {kVersao, u"x", u""},
      {kVersao, u"1.234,5", u"1.234.5"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(Formata(row.typed, row.form), row.shown) << PrintToString(row.typed);
  }
}
// clang-format on

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
  const auto milhar = [](View marca) {
    return std::u16string(SeparadorDeMilhar(Sistema(u",", marca)).Texto());
  };
  EXPECT_EQ(SeparadorDecimal(Sistema(u",", u".")).Texto(), u",");
  ExpectEach<std::u16string>(
      {{milhar(u"\u2019"), u"\u2019"}, {milhar(u"123456789"), u"123456789"}, {milhar(u"1234567890"), u""}});
}

TEST(Arredonda, JudgesByTheOneDigitBehindTheLastPlace) {
  const struct {
    double value;
    std::int32_t places;
    double rounded;
  } rows[] = {{1.005, 2, 1.01},  {2.675, 2, 2.68}, {-1.005, 2, -1.01}, {1.2349, 2, 1.23},
              {1.2351, 2, 1.24}, {2.5, 0, 3},      {-2.5, 0, -3},      {0.49999, 0, 0},
              {0, 2, 0},         {1250, -2, 1300}, {1249, -2, 1200},   {0.999, 2, 1}};
  for (const auto& row : rows) {
    CacheDeArredonda cache;
    EXPECT_EQ(Arredonda(cache, row.value, row.places), row.rounded) << row.value << ", " << row.places;
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
  const struct {
    double value;
    std::int32_t places, error;
  } rows[] = {{7e26, 2, 0}, {8e26, 2, 6}, {-8e26, 2, 6}, {1, 400, 6}, {1, -400, 6}, {1e300, 0, 0}};
  for (const auto& row : rows) {
    EXPECT_EQ(RaisedBy([&] { Arredonda(cache, row.value, row.places); }), row.error) << row.value;
  }
  EXPECT_EQ(RaisedBy([&] { Arredonda(cache, std::numeric_limits<double>::infinity(), 0); }), kOverflow);
}

}  // namespace
}  // namespace gabarito
