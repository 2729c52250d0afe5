#include "gabarito/rules/texto.h"

#include <gtest/gtest.h>

#include "gabarito/platform/number.h"
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

}  // namespace
}  // namespace gabarito
