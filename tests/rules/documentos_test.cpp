#include "gabarito/rules/documentos.h"

#include <gtest/gtest.h>

#include <random>

#include "../platform/allocations.h"
#include "../platform/expect.h"
#include "gabarito/platform/number.h"
#include "gabarito/rules/formatadores.h"
#include "gabarito/rules/primitivas.h"

namespace gabarito {
namespace {

using testing::PrintToString;
using View = std::u16string_view;

const Regional kBrasil;

bool ValidaCartao(std::u16string_view s) { return ValidaCartaoCredito(s, kBrasil); }

constexpr bool (*kChecks[])(View) = {ValidaCPF, ValidaCNPJ, ValidaCartao};

TEST(Documentos, PassWithRightCheckDigitsWithoutAnAllocationAndAreRefusedWithWrongOnes) {
  const std::u16string manyHyphens = u"18" + std::u16string(100, u'-'),
                       manyLetters = u"18" + std::u16string(100, u'x');
  // clang-format off
  const struct { bool (*check)(View); const char* name; View text; bool passes; } rows[] = {
      {ValidaCPF, "punctuated", u"111.444.777-35", true}, {ValidaCPF, "bare", u"11144477735", true},
      {ValidaCPF, "separators anywhere", u" 111 444.777/35- ", true},
      {ValidaCPF, "one digit", u"11111111111", true},
      {ValidaCPF, "a letter counts as 0", u"000.000.0O0-00", true},
      {ValidaCPF, "also first", u"A0000000000", true},
      {ValidaCPF, "wrong second check digit", u"111.444.777-36", false},
      {ValidaCPF, "wrong first check digit", u"111.444.777-25", false},
      {ValidaCPF, "too short", u"1114447773", false}, {ValidaCPF, "too long", u"111444777350", false},
      {ValidaCPF, "nothing", u"", false}, {ValidaCPF, "a tab is no separator", u"11144477735\t", false},

      {ValidaCNPJ, "punctuated", u"11.222.333/0001-81", true}, {ValidaCNPJ, "bare", u"11222333000181", true},
      {ValidaCNPJ, "root", u"33000167", true}, {ValidaCNPJ, "root", u"60701190", true},
      {ValidaCNPJ, "root", u"33592510", true}, {ValidaCNPJ, "punctuated root", u"33.000.167", true},
      {ValidaCNPJ, "a letter counts as 0", u"1E000000000064", true},
      {ValidaCNPJ, "above 0 as hex", u"&H00000F", true},
      {ValidaCNPJ, "wrong second check digit", u"11.222.333/0001-82", false},
      {ValidaCNPJ, "wrong first check digit", u"11.222.333/0001-71", false},
      {ValidaCNPJ, "zeros", u"00.000.000/0000-00", false}, {ValidaCNPJ, "root of zeros", u"00000000", false},
      {ValidaCNPJ, "wrong root", u"33000168", false}, {ValidaCNPJ, "too short", u"112223330001", false},
      {ValidaCNPJ, "letters", u"ABCDEFGHIJKLMN", false}, {ValidaCNPJ, "not above 0", u"0E00000000000", false},
      {ValidaCNPJ, "nothing", u"", false},

      {ValidaCartao, "in groups", u"4111 1111 1111 1111", true},
      {ValidaCartao, "bare", u"4111111111111111", true},
      {ValidaCartao, "hyphens", u"4111-1111-1111-1111", true}, {ValidaCartao, "short", u"0", true},
      {ValidaCartao, "short", u"18", true}, {ValidaCartao, "as a negative number", u"(18)", true},
      {ValidaCartao, "as money", u"R$ 1,8", true}, {ValidaCartao, "20 digits", u"00000000000000000018", true},
      {ValidaCartao, "no decimal digit", u"&HFF", true}, {ValidaCartao, "many separators", manyHyphens, true},
      {ValidaCartao, "wrong check digit", u"4111 1111 1111 1112", false},
      {ValidaCartao, "wrong", u"10", false},
      {ValidaCartao, "nothing", u"", false}, {ValidaCartao, "separators alone", u" - ", false},
      {ValidaCartao, "no number", u"4111a", false}, {ValidaCartao, "two decimal marks", u"1,,8", false},
      {ValidaCartao, "21 digits", u"000000000000000000018", false},
      {ValidaCartao, "long", manyLetters, false},
  };
  // clang-format on
  for (const auto& row : rows) {
    const std::size_t before = allocations;
    const bool passes = row.check(row.text);
    if (row.passes) {
      EXPECT_EQ(allocations, before) << row.name << PrintToString(row.text);
    }
    EXPECT_EQ(passes, row.passes) << row.name << PrintToString(row.text);
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
    for (std::size_t i = 0; i < 3; ++i) aceitos[i] += kChecks[i](s);
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
  const struct { std::u16string (*format)(View); const char* name; View text, shown; } rows[] = {
      {FormataComoCPF, "bare", u"11144477735", u"111.444.777-35"},
      {FormataComoCPF, "punctuated", u"111.444.777-35", u"111.444.777-35"},
      {FormataComoCPF, "punctuated otherwise", u"x1-1.1/444777 35", u"111.444.777-35"},
      {FormataComoCPF, "too short", u"111.444.777-3", u"1114447773"},
      {FormataComoCPF, "too long", u"111.444.777-355", u"111444777355"},
      {FormataComoCPF, "nothing", u"", u""},
      {FormataComoCNPJ, "bare", u"11222333000181", u"11.222.333/0001-81"},
      {FormataComoCNPJ, "punctuated", u"11.222.333/0001-81", u"11.222.333/0001-81"},
      {FormataComoCNPJ, "a root", u"33.000.167", u"33000167"},
      {FormataComoCNPJ, "letters", u"12ABC34501DE35", u"123450135"},
      {FormataComoCNPJAlfanumerico, "small letters", u"12abc34501de35", u"12.ABC.345/01DE-35"},
      {FormataComoCNPJAlfanumerico, "punctuated", u"12.ABC.345/01DE-35", u"12.ABC.345/01DE-35"},
      {FormataComoCNPJAlfanumerico, "a letter for a check digit", u"12ABC34501DE3x", u"12ABC34501DE3X"},
      {FormataComoCNPJAlfanumerico, "too long", u"12abc34501de351", u"12ABC34501DE351"},
      {FormataComoCNPJAlfanumerico, "a root", u"33.000.167", u"33000167"},
      {FormataComoCNPJAlfanumerico, "digits", u"11222333000181", u"11.222.333/0001-81"},
      {FormataComoCNPJAlfanumerico, "an accent", u"é-1", u"1"},
      {FormataComoCNPJAlfanumerico, "nothing", u"", u""},
      {FormataComoCartao, "bare", u"4111111111111111", u"4111 1111 1111 1111"},
      {FormataComoCartao, "all but blanks", u" 41 11-1111x1111 111", u"4111 -111 1x11 1111"},
      {FormataComoCartao, "short", u"123456", u"1234 56  "}, {FormataComoCartao, "nothing", u"", u"   "},
      {FormataComoCartao, "long", u"12345678901234567890", u"1234 5678 9012 3456"},
  };
  // clang-format on
  for (const auto& row : rows) EXPECT_EQ(row.format(row.text), row.shown) << row.name;
}

TEST(Formatadores, OnlyThoseThatWalkTheTextOverflow) {
  const std::u16string longo(40000, u'x');
  ExpectRaised(kOverflow, {[&] { FormataComoCPF(longo); }, [&] { FormataComoCNPJ(longo); },
                           [&] { FormataComoCNPJAlfanumerico(longo); }});
  EXPECT_EQ(FormataComoCartao(longo), u"xxxx xxxx xxxx xxxx");
}

}  // namespace
}  // namespace gabarito
