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

// A double holds this many decimal digits without loss.
constexpr std::size_t kDigitosExatos = 15;

std::u16string Separador(const Kernel32& kernel32, std::int32_t item) {
  std::array<char, 10> buffer;
  buffer.fill('a');
  const std::int32_t escritos = kernel32.GetLocaleInfoA(kLocaleUserDefault, item, buffer);
  std::u16string separador;
  // The count includes the terminating zero; a host that counts more than it was given is cut.
  for (std::int32_t i = 0; i + 1 < std::min<std::int32_t>(escritos, buffer.size() + 1); ++i) {
    separador += Chr(static_cast<unsigned char>(buffer[static_cast<std::size_t>(i)]));
  }
  return separador;
}

struct Separadores {
  std::u16string decimal;
  std::u16string milhar;
};

bool Contem(std::u16string_view texto, std::u16string_view procurado) { return InStr(texto, procurado) > 0; }

// Digits and separators only, so that cleaning would change nothing and needs no copy.
bool EstaLimpo(std::u16string_view valor, const Separadores& sep) {
  return std::all_of(valor.begin(), valor.end(), [&](char16_t c) {
    return EhDigito(c) || sep.decimal.find(c) != sep.decimal.npos || sep.milhar.find(c) != sep.milhar.npos;
  });
}

// Positions are 16-bit: a separator further out is an overflow.
std::int32_t PosicaoDoSeparador(std::u16string_view valor, std::u16string_view separador) {
  const std::int32_t posicao = InStr(valor, separador);
  if (posicao > static_cast<std::int32_t>(kMaiorTextoPercorrido)) throw Erro(kOverflow);
  return posicao;
}

// `fracao` without any separator. The first copy is made only where there is something to remove.
std::u16string_view TiraSeparadores(std::u16string_view fracao, const Separadores& sep,
                                    std::u16string& guarda) {
  for (const std::u16string* separador : {&sep.decimal, &sep.milhar}) {
    if (separador->empty() || !Contem(fracao, *separador)) continue;
    guarda = Substitui(fracao, *separador, u"");
    fracao = guarda;
  }
  return fracao;
}

// Up to 15 digits the decimal arithmetic of Arredonda is exact, so the third digit decides alone and the
// text needs no conversion. Marks that could read as anything but a mark take the long way.
bool PrecisaDeArredonda(std::u16string_view fracao, const Separadores& sep, const Regional& regional) {
  return fracao.size() > kDigitosExatos || !std::all_of(fracao.begin(), fracao.end(), EhDigito) ||
         sep.decimal != regional.decimal || regional.decimal == regional.thousands ||
         (regional.decimal != u"," && regional.decimal != u".");
}

std::u16string CentavosPelaTerceiraCasa(std::u16string_view fracao) {
  std::int32_t centavos = 10 * ValorDoDigito(fracao[0]) + ValorDoDigito(fracao[1]);
  if (fracao.size() > 2 && fracao[2] >= u'5') ++centavos;
  centavos %= 100;  // a whole unit is not carried
  return {static_cast<char16_t>(u'0' + centavos / 10), static_cast<char16_t>(u'0' + centavos % 10)};
}

// A result without decimals, 0 or a whole unit, gives "00".
std::u16string CentavosPeloNumero(std::u16string_view fracao, const Separadores& sep,
                                  const Regional& regional, CacheDeArredonda& cache) {
  const std::u16string texto = u"0" + sep.decimal + std::u16string(fracao);
  const double arredondado = Arredonda(cache, ToDouble(texto, regional), kCasasDeMoeda);
  const std::u16string resultado = NumberToText(arredondado, regional.decimal);
  const std::int32_t marca = InStr(resultado, regional.decimal);
  std::u16string centavos(marca > 0 ? Mid(resultado, marca + 1, kCasasDeMoeda) : std::u16string_view());
  centavos.resize(kCasasDeMoeda, u'0');
  return centavos;
}

// The two decimals of an amount.
std::u16string Centavos(std::u16string_view fracao, const Separadores& sep, const Regional& regional,
                        CacheDeArredonda& cache) {
  if (Grandeza(fracao) == 0) return u"00";
  if (fracao.size() == 1) return {fracao[0], u'0'};
  if (!PrecisaDeArredonda(fracao, sep, regional)) return CentavosPelaTerceiraCasa(fracao);
  return CentavosPeloNumero(fracao, sep, regional, cache);
}

}  // namespace

std::u16string SeparadorDecimal(const Kernel32& kernel32) { return Separador(kernel32, kLocaleDecimal); }

std::u16string SeparadorDeMilhar(const Kernel32& kernel32) { return Separador(kernel32, kLocaleThousands); }

std::u16string FormataComoReal(std::u16string_view valor, FormaDeNumero forma, const Kernel32& kernel32,
                               const Regional& regional, CacheDeArredonda& cache) {
  PulaErros pula;
  Separadores sep;
  pula([&] { sep.decimal = SeparadorDecimal(kernel32); });
  pula([&] { sep.milhar = SeparadorDeMilhar(kernel32); });

  // The pieces are views of `valor` until a step changes them; what it makes is kept beside them.
  std::u16string limpo;
  if (!EstaLimpo(valor, sep)) {
    pula([&] {
      limpo = SoCaracteres(valor, u"0123456789" + sep.decimal + sep.milhar);
      valor = limpo;
    });
  }

  std::int32_t posicao = 0;
  pula([&] { posicao = PosicaoDoSeparador(valor, sep.decimal); });
  if (posicao == 0 && forma == FormaDeNumero::kVersao) {
    pula([&] { posicao = PosicaoDoSeparador(valor, sep.milhar); });
  }

  std::u16string_view inteira = valor;
  std::u16string_view fracao;
  if (posicao > 0) {
    fracao = Mid(valor, posicao + 1);
    inteira = Left(valor, posicao - 1);
    if (Grandeza(inteira) < 1) inteira = u"0";
  }

  std::u16string fracaoLimpa;
  fracao = TiraSeparadores(fracao, sep, fracaoLimpa);

  std::u16string agrupada;
  if (Contem(inteira, sep.milhar)) {
    agrupada = Substitui(inteira, sep.milhar, u"");
    pula([&] { agrupada = FormatNumber(agrupada, u"#,#", regional); });
    inteira = agrupada;
  }

  std::u16string centavos;
  if (forma == FormaDeNumero::kMoeda && !(inteira.empty() && fracao.empty())) {
    pula([&] {
      centavos = Centavos(fracao, sep, regional, cache);
      fracao = centavos;
    });
  }

  std::u16string resultado;
  const std::u16string& juncao = forma == FormaDeNumero::kVersao ? sep.milhar : sep.decimal;
  resultado.reserve(inteira.size() + juncao.size() + fracao.size());
  resultado.append(inteira);
  if (!fracao.empty()) resultado.append(juncao).append(fracao);
  return resultado;
}

}  // namespace gabarito
