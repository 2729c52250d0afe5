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
#include "gabarito/rules/texto.h"

namespace gabarito {
namespace {

constexpr std::int32_t kCasasDeMoeda = 2;
using DoisDigitos = std::array<char16_t, kCasasDeMoeda>;

// A double holds this many decimal digits without loss.
constexpr std::size_t kDigitosExatos = 15;

// A separator as the system gives it; a plain array, for each call reads two of them.
struct Separador {
  std::array<char16_t, 10> caracteres;
  std::size_t tamanho = 0;

  std::u16string_view Texto() const { return {caracteres.data(), tamanho}; }
  operator std::u16string_view() const { return Texto(); }

  // One character that is no digit, as in every usual region.
  bool EhMarca() const { return tamanho == 1 && !EhDigito(caracteres[0]); }
};

struct Separadores {
  Separador decimal;
  Separador milhar;
};

// Filled in place: a copy of characters just written would wait for the writes.
void LeSeparador(const Kernel32& kernel32, std::int32_t item, Separador& separador) {
  std::array<char, 10> buffer;
  buffer.fill('a');
  const std::int32_t escritos = kernel32.GetLocaleInfoA(kLocaleUserDefault, item, buffer);
  // The count includes the terminating zero; a host that counts more than it was given is cut.
  if (escritos > 0) separador.tamanho = std::min(static_cast<std::size_t>(escritos) - 1, buffer.size());
  for (std::size_t i = 0; i < separador.tamanho; ++i) {
    separador.caracteres[i] = Chr(static_cast<unsigned char>(buffer[i]));
  }
}

// Positions are 16-bit: a separator further out is an overflow.
std::int32_t PosicaoDoSeparador(std::u16string_view valor, std::u16string_view separador) {
  const std::int32_t posicao = InStr(valor, separador);
  if (posicao > static_cast<std::int32_t>(kMaiorTextoPercorrido)) throw Erro(kOverflow);
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
  if (!sep.decimal.EhMarca() || !sep.milhar.EhMarca() || valor.size() > kMaiorTextoPercorrido) return false;
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
void PartePorPassos(std::u16string_view valor, FormaDeNumero forma, const Separadores& sep,
                    const Regional& regional, PulaErros& pula, Pecas& pecas) {
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
  if (InStr(inteira, sep.milhar) > 0) {
    inteira = Substitui(inteira, sep.milhar, u"");
    pula([&] { inteira = FormatNumber(inteira, u"#,#", regional); });
  }
  pecas.copia = inteira + fracao;
  pecas.inteira = std::u16string_view(pecas.copia).substr(0, inteira.size());
  pecas.fracao = std::u16string_view(pecas.copia).substr(inteira.size());
}

// Up to 15 digits the decimal arithmetic of Arredonda is exact, so the third digit decides alone and the
// text needs no conversion. Marks that could read as anything but a mark take the long way.
bool BastaATerceiraCasa(std::u16string_view fracao, std::u16string_view decimal, const Regional& regional) {
  return fracao.size() <= kDigitosExatos && (decimal == u"," || decimal == u".") &&
         decimal == regional.decimal && decimal != regional.thousands &&
         DigitosNoComeco(fracao) == fracao.size();
}

DoisDigitos CentavosPelaTerceiraCasa(std::u16string_view fracao) {
  const auto seguinte = [](char16_t digito) { return static_cast<char16_t>(digito + 1); };
  if (fracao.size() == 2 || fracao[2] < u'5') return {fracao[0], fracao[1]};
  if (fracao[1] < u'9') return {fracao[0], seguinte(fracao[1])};
  if (fracao[0] < u'9') return {seguinte(fracao[0]), u'0'};
  return {u'0', u'0'};  // a whole unit is not carried
}

// A result without decimals, 0 or a whole unit, gives "00".
DoisDigitos CentavosPeloNumero(std::u16string_view fracao, std::u16string_view decimal,
                               const Regional& regional, CacheDeArredonda& cache) {
  std::u16string texto = u"0";
  texto.append(decimal).append(fracao);
  const double arredondado = Arredonda(cache, ToDouble(texto, regional), kCasasDeMoeda);
  const std::u16string resultado = NumberToText(arredondado, regional.decimal);
  const std::int32_t marca = InStr(resultado, regional.decimal);
  DoisDigitos centavos = {u'0', u'0'};
  if (marca > 0) std::ranges::copy(Mid(resultado, marca + 1, kCasasDeMoeda), centavos.begin());
  return centavos;
}

DoisDigitos Centavos(std::u16string_view fracao, std::u16string_view decimal, const Regional& regional,
                     CacheDeArredonda& cache) {
  if (Grandeza(fracao) == 0) return {u'0', u'0'};
  if (fracao.size() == 1) return {fracao[0], u'0'};
  if (BastaATerceiraCasa(fracao, decimal, regional)) return CentavosPelaTerceiraCasa(fracao);
  return CentavosPeloNumero(fracao, decimal, regional, cache);
}

}  // namespace

std::u16string SeparadorDecimal(const Kernel32& kernel32) {
  Separador separador;
  LeSeparador(kernel32, kLocaleDecimal, separador);
  return std::u16string(separador.Texto());
}

std::u16string SeparadorDeMilhar(const Kernel32& kernel32) {
  Separador separador;
  LeSeparador(kernel32, kLocaleThousands, separador);
  return std::u16string(separador.Texto());
}

std::u16string FormataComoReal(std::u16string_view valor, FormaDeNumero forma, const Kernel32& kernel32,
                               const Regional& regional, CacheDeArredonda& cache) {
  PulaErros pula;
  Separadores sep;
  pula([&] { LeSeparador(kernel32, kLocaleDecimal, sep.decimal); });
  pula([&] { LeSeparador(kernel32, kLocaleThousands, sep.milhar); });

  Pecas pecas;
  if (!ParteSimples(valor, sep, pecas)) PartePorPassos(valor, forma, sep, regional, pula, pecas);

  DoisDigitos centavos;
  if (forma == FormaDeNumero::kMoeda && !(pecas.inteira.empty() && pecas.fracao.empty())) {
    pula([&] {
      centavos = Centavos(pecas.fracao, sep.decimal, regional, cache);
      pecas.fracao = std::u16string_view(centavos.data(), centavos.size());
    });
  }

  const Separador& juncao = forma == FormaDeNumero::kVersao ? sep.milhar : sep.decimal;
  if (pecas.fracao.empty()) return std::u16string(pecas.inteira);
  const std::size_t tamanho = pecas.inteira.size() + juncao.tamanho + pecas.fracao.size();
  std::u16string resultado(tamanho, u'0');
  std::size_t i = 0;
  for (const char16_t c : pecas.inteira) resultado[i++] = c;
  for (const char16_t c : juncao.Texto()) resultado[i++] = c;
  for (const char16_t c : pecas.fracao) resultado[i++] = c;
  return resultado;
}

}  // namespace gabarito
