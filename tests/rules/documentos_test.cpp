#include "gabarito/rules/documentos.h"

#include <gtest/gtest.h>

#include <random>

#include "../platform/allocations.h"
#include "gabarito/platform/number.h"
#include "gabarito/rules/formatadores.h"
#include "gabarito/rules/texto.h"
#include "tabela.h"

namespace gabarito {
namespace {

using testing::PrintToString;

const Regional kBrasil;

bool ValidaCartao(std::u16string_view s) { return ValidaCartaoCredito(s, kBrasil); }

// clang-format off
const struct { bool (*valida)(std::u16string_view); std::u16string_view aceitos, recusados; } kChecks[] = {
    {ValidaCPF, u"111.444.777-35|11144477735| 111 444.777/35- |11111111111|000.000.0O0-00|A0000000000",
     u"111.444.777-36|111.444.777-25|1114447773|111444777350||11144477735\t"},
    {ValidaCNPJ,
     u"11.222.333/0001-81|11222333000181|33000167|60701190|33592510|33.000.167|1E000000000064|&H00000F",
     u"11.222.333/0001-82|11.222.333/0001-71|00.000.000/0000-00|00000000|33000168|112223330001|"
     u"ABCDEFGHIJKLMN|0E00000000000|"},
    {ValidaCartao,
     u"4111 1111 1111 1111|4111111111111111|4111-1111-1111-1111|0|18|(18)|R$ 1,8|00000000000000000018|&HFF|"
     u"18----------------------------------------------------------------------------------------------",
     u"4111 1111 1111 1112|| - |4111a|000000000000000000018|1,,8|10|"
     u"18xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx"}};
// clang-format on

TEST(Documentos, PassWithRightCheckDigitsWithoutAnAllocationAndAreRefusedWithWrongOnes) {
  for (const auto& [valida, aceitos, recusados] : kChecks) {
    for (const auto& s : Divide(aceitos, u'|')) {
      const std::size_t antes = allocations;
      const bool aceito = valida(s);
      EXPECT_TRUE(aceito && allocations == antes) << PrintToString(s) << allocations - antes;
    }
    for (const auto& s : Divide(recusados, u'|')) EXPECT_FALSE(valida(s)) << PrintToString(s);
  }
}

// The rules one step after the other, over texts that are really copied.
std::u16string Sem(std::u16string s, std::u16string_view separadores) {
  for (const char16_t c : separadores) s = Substitui(s, std::u16string_view(&c, 1), u"");
  return s;
}

std::int32_t Digito(const std::u16string& s, std::int32_t i) {
  return static_cast<std::int32_t>(Val(Mid(s, i, 1)));
}

// Whether digit `n` is the check digit of those before it; weights run from 2 at the end and start again.
bool Modulo11(const std::u16string& s, std::int32_t n, std::int32_t pesos) {
  std::int32_t soma = 0;
  for (std::int32_t i = 1; i < n; ++i) soma += Digito(s, i) * ((n - 1 - i) % pesos + 2);
  return Digito(s, n) == (soma % 11 > 1 ? 11 - soma % 11 : 0);
}

bool Modulo10(const std::u16string& s) {
  std::int32_t soma = 0;
  for (std::int32_t i = Len(s), peso = 1; i >= 1; --i, peso = 3 - peso) {
    soma += Digito(s, i) * peso / 10 + Digito(s, i) * peso % 10;
  }
  return soma % 10 == 0;
}

bool CPFPorPassos(std::u16string_view texto) {
  const std::u16string s = Sem(std::u16string(texto), u"./- ");
  return Len(Trim(s)) == 11 && Modulo11(s, 10, 10) && Modulo11(s, 11, 10);
}

bool CNPJPorPassos(std::u16string_view texto) {
  const std::u16string s = Sem(std::u16string(texto), u". /-");
  if ((Len(s) != 8 && Len(s) != 14) || !(Val(s) > 0)) return false;
  return Len(s) == 8 ? Modulo10(s) : Modulo11(s, 13, 8) && Modulo11(s, 14, 8);
}

bool CartaoPorPassos(std::u16string_view texto) {
  const std::u16string s = Sem(std::u16string(texto), u"- ");
  return IsNumeric(s, kBrasil) && Len(SoDigitos(s)) <= 20 && Modulo10(SoDigitos(s));
}

TEST(Documentos, FastChecksAnswerAsTheStepsDoOnAnyText) {
  constexpr std::u16string_view kAlfabeto = u"0000011122346789.-/ ED&H,";
  std::mt19937 sorteio(20240305);
  std::size_t aceitos[3] = {};
  for (std::size_t n = 0; n < 30000; ++n) {
    const std::size_t letras = n % 3 == 0 ? kAlfabeto.size() : 16 + n % 5;
    std::u16string s(sorteio() % 24, u'0');
    for (char16_t& c : s) c = kAlfabeto[sorteio() % letras];
    ASSERT_EQ(ValidaCPF(s), CPFPorPassos(s)) << PrintToString(s);
    ASSERT_EQ(ValidaCNPJ(s), CNPJPorPassos(s)) << PrintToString(s);
    ASSERT_EQ(ValidaCartao(s), CartaoPorPassos(s)) << PrintToString(s);
    for (std::size_t i = 0; i < 3; ++i) aceitos[i] += kChecks[i].valida(s);
  }
  for (const std::size_t quantos : aceitos) EXPECT_GT(quantos, 10u);
}

// The steps where a CNPJ may hold letters: each character counts as its code less 48.
bool CNPJAlfanumericoPorPassos(std::u16string_view texto) {
  const std::u16string s = Sem(std::u16string(texto), u". /-");
  std::int32_t letras = 0;
  for (const char16_t c : s) letras += (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z');
  if (letras == 0) return CNPJPorPassos(texto);
  if (s.size() != 14) return false;
  for (std::size_t i = 0; i < 14; ++i) {
    const bool digito = s[i] >= u'0' && s[i] <= u'9';
    if (!digito && (i >= 12 || s[i] < u'A' || s[i] > u'Z')) return false;
  }
  for (const std::size_t n : {12, 13}) {
    std::int32_t soma = 0;
    for (std::size_t i = 0; i < n; ++i) soma += (s[i] - 48) * static_cast<std::int32_t>((n - 1 - i) % 8 + 2);
    if (s[n] - 48 != (soma % 11 > 1 ? 11 - soma % 11 : 0)) return false;
  }
  return true;
}

TEST(Documentos, ACNPJMayHoldLettersInItsFirstTwelvePlaces) {
  const struct {
    const char* name;
    std::u16string_view text;
    bool passes;
  } rows[] = {
      {"a published example", u"12.ABC.345/01DE-35", true},
      {"the same bare", u"12ABC34501DE35", true},
      {"letters alone", u"ZZ.ZZZ.ZZZ/ZZZZ-62", true},
      {"digits alone", u"11.222.333/0001-81", true},
      {"a root", u"33000167", true},
      {"a wrong first check digit", u"12.ABC.345/01DE-45", false},
      {"a wrong second check digit", u"12.ABC.345/01DE-36", false},
      {"zeros", u"00.000.000/0000-00", false},
      {"small letters, which the exit has made capitals", u"12.abc.345/01de-35", false},
      {"a letter for a check digit", u"12.ABC.345/01DE-3A", false},
      {"a character between digits and letters", u"12.ABC.345/01D:-35", false},
      {"a letter with an accent", u"12ABC34501DÉ35", false},
      {"a letter in a root", u"3300016A", false},
      {"too long", u"12ABC34501DE350", false},
  };
  for (const auto& row : rows) {
    const std::size_t before = allocations;
    EXPECT_EQ(ValidaCNPJAlfanumerico(row.text), row.passes) << row.name;
    EXPECT_EQ(allocations, before) << row.name;
  }
}

TEST(Documentos, WithoutALetterACNPJIsJudgedAndPunctuatedAsEver) {
  std::mt19937 sorteio(20260701);
  std::size_t aceitos = 0;
  for (std::size_t n = 0; n < 30000; ++n) {
    std::u16string s(n % 4 == 0 ? sorteio() % 20 : 14, u'0');
    for (char16_t& c : s) c = u"0123456789.-/ ,:@AZaz"[sorteio() % (n % 3 == 0 ? 10 : n % 3 == 1 ? 17 : 21)];
    // A right number now and then.
    if (n % 8 == 1) s = u"12ABC34501DE35", s[sorteio() % 14] = u"0123456789ABCDEFX:a"[sorteio() % 19];
    const bool aceito = ValidaCNPJAlfanumerico(s);
    ASSERT_EQ(aceito, CNPJAlfanumericoPorPassos(s)) << PrintToString(s);
    aceitos += aceito;
    if (s.find_first_of(u"AZaz") != s.npos || n % 8 == 1) continue;
    ASSERT_EQ(FormataComoCNPJAlfanumerico(s), FormataComoCNPJ(s)) << PrintToString(s);
  }
  EXPECT_GT(aceitos, 100u);
}

TEST(Formatadores, PunctuateADocumentAndLeaveAllElseBare) {
  // clang-format off
  const struct { std::u16string (*formata)(std::u16string_view); std::u16string_view casos; } linhas[] = {
      {FormataComoCPF, u"11144477735=111.444.777-35|111.444.777-35=111.444.777-35|111.444.777-3=1114447773|"
                       u"x1-1.1/444777 35=111.444.777-35|111.444.777-355=111444777355|="},
      {FormataComoCNPJ, u"11222333000181=11.222.333/0001-81|11.222.333/0001-81=11.222.333/0001-81|"
                        u"33.000.167=33000167|12ABC34501DE35=123450135"},
      {FormataComoCNPJAlfanumerico,
       u"12abc34501de35=12.ABC.345/01DE-35|12.ABC.345/01DE-35=12.ABC.345/01DE-35|12ABC34501DE3x=12ABC34501DE3X|"
       u"33.000.167=33000167|11222333000181=11.222.333/0001-81|12abc34501de351=12ABC34501DE351|é-1=1|="},
      {FormataComoCartao, u"4111111111111111=4111 1111 1111 1111| 41 11-1111x1111 111=4111 -111 1x11 1111|"
                          u"123456=1234 56  |=   |12345678901234567890=1234 5678 9012 3456"}};
  // clang-format on
  for (const auto& [formata, casos] : linhas) {
    for (const auto& c : Linhas(casos)) EXPECT_EQ(formata(c[0]), c[1]) << PrintToString(c[0]);
  }
}

TEST(Formatadores, OnlyThoseThatWalkTheTextOverflow) {
  const std::u16string longo(40000, u'x');
  ExpectRaised(kOverflow, {[&] { FormataComoCPF(longo); }, [&] { FormataComoCNPJ(longo); },
                           [&] { FormataComoCNPJAlfanumerico(longo); }});
  EXPECT_EQ(FormataComoCartao(longo), u"xxxx xxxx xxxx xxxx");
}

}  // namespace
}  // namespace gabarito
