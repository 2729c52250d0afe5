#include "gabarito/rules/formatadores.h"

#include <gtest/gtest.h>

#include "tabela.h"

namespace gabarito {
namespace {

TEST(Formatadores, PunctuateADocumentAndLeaveAllElseBare) {
  const struct {
    std::u16string (*formata)(std::u16string_view);
    std::u16string_view casos;
  } formatadores[] = {{FormataComoCPF,
                       u"11144477735=111.444.777-35|111.444.777-35=111.444.777-35|"
                       u"x1-1.1/444777 35=111.444.777-35|111.444.777-3=1114447773|"
                       u"111.444.777-355=111444777355|="},
                      {FormataComoCNPJ,
                       u"11222333000181=11.222.333/0001-81|11.222.333/0001-81=11.222.333/0001-81|"
                       u"33.000.167=33000167"},
                      {FormataComoCartao,
                       u"4111111111111111=4111 1111 1111 1111| 41 11-1111x1111 111=4111 -111 1x11 1111|"
                       u"123456=1234 56  |=   |12345678901234567890=1234 5678 9012 3456"}};
  for (const auto& [formata, casos] : formatadores) {
    for (const auto& c : Linhas(casos)) EXPECT_EQ(formata(c[0]), c[1]) << testing::PrintToString(c[0]);
  }
}

TEST(Formatadores, OnlyThoseThatWalkTheTextOverflow) {
  const std::u16string longo(40000, u'x');
  EXPECT_EQ(NumeroDoErro([&] { FormataComoCPF(longo); }), kOverflow);
  EXPECT_EQ(NumeroDoErro([&] { FormataComoCNPJ(longo); }), kOverflow);
  EXPECT_EQ(FormataComoCartao(longo), u"xxxx xxxx xxxx xxxx");
}

}  // namespace
}  // namespace gabarito
