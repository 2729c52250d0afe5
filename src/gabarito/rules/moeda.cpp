#include "gabarito/rules/moeda.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#include "gabarito/platform/format.h"
#include "gabarito/platform/number.h"
#include "gabarito/platform/pula_erros.h"
#include "gabarito/platform/text.h"
#include "gabarito/rules/digitos.h"
#include "gabarito/rules/primitivas.h"

namespace gabarito {
namespace {

constexpr std::int32_t kCasasDeMoeda = 2;
using DoisDigitos = std::array<char16_t, kCasasDeMoeda>;

// A double holds this many decimal digits without loss.
constexpr std::size_t kDigitosExatos = 15;

struct Separadores {
  Separador decimal;
  Separador milhar;

  // The region that these two make: what reads and writes numbers goes by the same marks.
  Regional Regiao() const {
    Regional regiao;
    regiao.decimal = decimal.Texto();
    regiao.thousands = milhar.Texto();
    return regiao;
  }
};

Separador Le(const Kernel32& kernel32, std::int32_t item) {
  std::array<char, 10> buffer;
  buffer.fill('a');
  const std::int32_t escritos = kernel32.GetLocaleInfoA(kLocaleUserDefault, item, buffer);
  Separador separador;
  // The count includes the terminating zero; a host that counts more than it was given is cut.
  if (escritos > 0) separador.tamanho = std::min(static_cast<std::size_t>(escritos) - 1, buffer.size());
  for (std::size_t i = 0; i < separador.tamanho; ++i) {
    separador.caracteres[i] = Chr(static_cast<unsigned char>(buffer[i]));
  }
  return separador;
}

// One character that is no digit, as in every usual region.
bool EhMarca(const Separador& separador) {
  return separador.tamanho == 1 && !EhDigito(separador.caracteres[0]);
}

// 0 where there is none, and for a separator that the region leaves empty. Positions are 16-bit: one further
// out is an overflow.
std::int32_t PosicaoDoSeparador(std::u16string_view valor, std::u16string_view separador) {
  if (separador.empty()) return 0;
  const std::int32_t posicao = InStr(valor, separador);
  if (posicao > static_cast<std::int32_t>(kMaiorTextoPercorrido)) Fail(kOverflow);
  return posicao;
}

// The two pieces of a number: views of its text, or of the copy that the steps made.
struct Pecas {
  std::u16string_view inteira;
  std::u16string_view fracao;
  std::u16string copia;
};

std::size_t DigitosNoComeco(std::u16string_view texto) {
  std::size_t quantos = 0;
  while (quantos < texto.size() && EhDigito(texto[quantos])) ++quantos;
  return quantos;
}

// Digits with at most one decimal mark are clean and ungrouped as they stand: one look parts them.
bool ParteSimples(std::u16string_view valor, const Separadores& sep, Pecas& pecas) {
  if (!EhMarca(sep.decimal) || !EhMarca(sep.milhar) || valor.size() > kMaiorTextoPercorrido) return false;
  const std::size_t marca = DigitosNoComeco(valor);
  pecas.inteira = valor.substr(0, marca);
  if (marca == valor.size()) return true;
  pecas.fracao = valor.substr(marca + 1);
  if (valor[marca] != sep.decimal.caracteres[0]) return false;
  if (DigitosNoComeco(pecas.fracao) != pecas.fracao.size()) return false;
  if (pecas.inteira.find_first_not_of(u'0') == pecas.inteira.npos) pecas.inteira = u"0";
  return true;
}

// The same for every text, one step after the other.
void PartePorPassos(std::u16string_view valor, FormaDeNumero forma, const Separadores& sep, PulaErros& pula,
                    Pecas& pecas) {
  std::u16string limpo(valor);
  pula([&] {
    std::u16string conjunto = u"0123456789";
    conjunto.append(sep.decimal.Texto()).append(sep.milhar.Texto());
    limpo = SoCaracteres(valor, conjunto);
  });

  std::int32_t posicao = 0;
  pula([&] { posicao = PosicaoDoSeparador(limpo, sep.decimal); });
  if (posicao == 0 && forma == FormaDeNumero::kVersao) {
    pula([&] { posicao = PosicaoDoSeparador(limpo, sep.milhar); });
  }

  std::u16string inteira = limpo;
  std::u16string fracao;
  if (posicao > 0) {
    fracao = Substitui(Substitui(Mid(limpo, posicao + 1), sep.decimal, u""), sep.milhar, u"");
    inteira = Left(limpo, posicao - 1);
    if (Val(inteira) < 1) inteira = u"0";
  }
  if (sep.milhar.tamanho > 0 && InStr(inteira, sep.milhar) > 0) {
    inteira = Substitui(inteira, sep.milhar, u"");
    pula([&] { inteira = FormatNumber(inteira, u"#,#", sep.Regiao()); });
  }
  pecas.copia = inteira + fracao;
  pecas.inteira = std::u16string_view(pecas.copia).substr(0, inteira.size());
  pecas.fracao = std::u16string_view(pecas.copia).substr(inteira.size());
}

// Up to 15 digits the decimal arithmetic of Arredonda is exact, so the third digit decides alone and the
// text needs no conversion. Marks that could read as anything but a mark take the long way.
bool BastaATerceiraCasa(std::u16string_view fracao, const Separadores& sep) {
  const std::u16string_view decimal = sep.decimal;
  return fracao.size() <= kDigitosExatos && (decimal == u"," || decimal == u".") &&
         decimal != sep.milhar.Texto() && DigitosNoComeco(fracao) == fracao.size();
}

DoisDigitos CentavosPelaTerceiraCasa(std::u16string_view fracao) {
  const auto seguinte = [](char16_t digito) { return static_cast<char16_t>(digito + 1); };
  if (fracao.size() == 2 || fracao[2] < u'5') return {fracao[0], fracao[1]};
  if (fracao[1] < u'9') return {fracao[0], seguinte(fracao[1])};
  if (fracao[0] < u'9') return {seguinte(fracao[0]), u'0'};
  return {u'0', u'0'};  // a whole unit is not carried
}

// A result without decimals, 0 or a whole unit, gives "00".
DoisDigitos CentavosPeloNumero(std::u16string_view fracao, const Separadores& sep, CacheDeArredonda& cache) {
  std::u16string texto = u"0";
  texto.append(sep.decimal.Texto()).append(fracao);
  const double arredondado = Arredonda(cache, ToDouble(texto, sep.Regiao()), kCasasDeMoeda);
  const std::u16string resultado = NumberToText(arredondado, sep.decimal);
  const std::int32_t marca = InStr(resultado, sep.decimal);
  DoisDigitos centavos = {u'0', u'0'};
  if (marca > 0) Mid(resultado, marca + 1, kCasasDeMoeda).copy(centavos.data(), centavos.size());
  return centavos;
}

DoisDigitos Centavos(std::u16string_view fracao, const Separadores& sep, CacheDeArredonda& cache) {
  if (Grandeza(fracao) == 0) return {u'0', u'0'};
  if (fracao.size() == 1) return {fracao[0], u'0'};
  if (BastaATerceiraCasa(fracao, sep)) return CentavosPelaTerceiraCasa(fracao);
  return CentavosPeloNumero(fracao, sep, cache);
}

}  // namespace

Separador SeparadorDecimal(const Kernel32& kernel32) { return Le(kernel32, kLocaleDecimal); }

Separador SeparadorDeMilhar(const Kernel32& kernel32) { return Le(kernel32, kLocaleThousands); }

std::u16string FormataComoReal(std::u16string_view valor, FormaDeNumero forma, const Kernel32& kernel32,
                               CacheDeArredonda& cache) {
  PulaErros pula;
  Separadores sep;
  pula([&] { sep.decimal = SeparadorDecimal(kernel32); });
  pula([&] { sep.milhar = SeparadorDeMilhar(kernel32); });

  Pecas pecas;
  if (!ParteSimples(valor, sep, pecas)) PartePorPassos(valor, forma, sep, pula, pecas);

  DoisDigitos centavos;
  if (forma == FormaDeNumero::kMoeda && !(pecas.inteira.empty() && pecas.fracao.empty())) {
    pula([&] {
      centavos = Centavos(pecas.fracao, sep, cache);
      pecas.fracao = std::u16string_view(centavos.data(), centavos.size());
    });
  }

  if (pecas.fracao.empty()) return std::u16string(pecas.inteira);
  const Separador& juncao = forma == FormaDeNumero::kVersao ? sep.milhar : sep.decimal;
  std::u16string resultado(pecas.inteira.size() + juncao.tamanho + pecas.fracao.size(), u'0');
  std::size_t i = 0;
  for (const char16_t c : pecas.inteira) resultado[i++] = c;
  for (const char16_t c : juncao.Texto()) resultado[i++] = c;
  for (const char16_t c : pecas.fracao) resultado[i++] = c;
  return resultado;
}

}  // namespace gabarito
