// The document checks, the formatters and the money form, each beside its floor: straight-line code over
// plain arrays that does the same work on the same text and nothing else. The ratio is what counts.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <string>

#include "gabarito/rules/documentos.h"
#include "gabarito/rules/formatadores.h"
#include "gabarito/rules/moeda.h"
#include "gabarito/rules/primitivas.h"

namespace gabarito {
namespace {

constexpr std::size_t kTamanhoDeCaixa = 32;

// A text as a box holds it, out of the optimiser's sight.
struct Caixa {
  explicit Caixa(std::u16string_view texto) : tamanho(texto.size()) {
    std::copy(texto.begin(), texto.end(), caracteres.begin());
  }
  std::u16string_view Texto() {
    benchmark::DoNotOptimize(caracteres);
    benchmark::DoNotOptimize(tamanho);
    return {caracteres.data(), tamanho};
  }
  std::array<char16_t, kTamanhoDeCaixa> caracteres{};
  std::size_t tamanho;
};

// Runs a routine on the text of a box until the measurement is done.
template <auto kRotina>
void Mede(benchmark::State& state, std::u16string_view texto) {
  Caixa caixa(texto);
  for (auto _ : state) {
    auto resultado = kRotina(caixa.Texto());
    benchmark::DoNotOptimize(resultado);
  }
}

// Where the digits stand in the punctuated forms, and what parts them.
constexpr std::array<std::size_t, 11> kLugaresDoCPF = {0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13};
constexpr std::array<std::size_t, 14> kLugaresDoCNPJ = {0, 1, 3, 4, 5, 7, 8, 9, 11, 12, 13, 14, 16, 17};
constexpr std::array<std::size_t, 16> kLugaresDoCartao = {0,  1,  2,  3,  5,  6,  7,  8,
                                                          10, 11, 12, 13, 15, 16, 17, 18};

// The floors of the checks know where each digit stands and look at nothing else.
template <std::size_t kQuantos>
std::array<int, kQuantos> Digitos(std::u16string_view texto,
                                  const std::array<std::size_t, kQuantos>& lugares) {
  std::array<int, kQuantos> digitos;
  for (std::size_t i = 0; i < kQuantos; ++i) digitos[i] = texto[lugares[i]] - u'0';
  return digitos;
}

template <std::size_t kPesos, std::size_t kQuantos>
int DigitoDeControle(const std::array<int, kQuantos>& digitos, const std::array<int, kPesos>& pesos) {
  int soma = 0;
  for (std::size_t i = 0; i < kPesos; ++i) soma += digitos[i] * pesos[i];
  const int resto = soma % 11;
  return resto < 2 ? 0 : 11 - resto;
}

bool PisoDoCPF(std::u16string_view texto) {
  const auto digitos = Digitos(texto, kLugaresDoCPF);
  return digitos[9] == DigitoDeControle<9>(digitos, {10, 9, 8, 7, 6, 5, 4, 3, 2}) &&
         digitos[10] == DigitoDeControle<10>(digitos, {11, 10, 9, 8, 7, 6, 5, 4, 3, 2});
}

bool PisoDoCNPJ(std::u16string_view texto) {
  const auto digitos = Digitos(texto, kLugaresDoCNPJ);
  return digitos[12] == DigitoDeControle<12>(digitos, {5, 4, 3, 2, 9, 8, 7, 6, 5, 4, 3, 2}) &&
         digitos[13] == DigitoDeControle<13>(digitos, {6, 5, 4, 3, 2, 9, 8, 7, 6, 5, 4, 3, 2});
}

bool PisoDoCartao(std::u16string_view texto) {
  const auto digitos = Digitos(texto, kLugaresDoCartao);
  int soma = 0;
  for (std::size_t i = 0; i < digitos.size(); i += 2) {
    const int dobro = digitos[i] * 2;
    soma += (dobro > 9 ? dobro - 9 : dobro) + digitos[i + 1];
  }
  return soma % 10 == 0;
}

// The floors of the formatters take bare digits, write into an array and allocate nothing.
template <std::size_t kQuantos>
std::array<char16_t, 19> Pontua(std::u16string_view texto, std::u16string_view modelo,
                                const std::array<std::size_t, kQuantos>& lugares) {
  std::array<char16_t, 19> saida;
  std::copy(modelo.begin(), modelo.end(), saida.begin());
  for (std::size_t i = 0; i < kQuantos; ++i) saida[lugares[i]] = texto[i];
  return saida;
}

auto PisoDePontuarCPF(std::u16string_view s) { return Pontua(s, u"000.000.000-00", kLugaresDoCPF); }
auto PisoDePontuarCNPJ(std::u16string_view s) { return Pontua(s, u"00.000.000/0000-00", kLugaresDoCNPJ); }
auto PisoDePontuarCartao(std::u16string_view s) {
  return Pontua(s, u"0000 0000 0000 0000", kLugaresDoCartao);
}

class Brasil : public Kernel32 {
 public:
  std::int32_t GetLocaleInfoA(std::int32_t, std::int32_t item, std::span<char> buffer) const override {
    std::memcpy(buffer.data(), item == kLocaleDecimal ? "," : ".", 2);
    return 2;
  }
  void GetVersionExA(OSVERSIONINFO&) const override {}
};

const Brasil kKernel32;
const Regional kRegional;

std::array<char16_t, kTamanhoDeCaixa> PisoDaMoeda(std::u16string_view texto) {
  const Kernel32& kernel32 = kKernel32;
  benchmark::DoNotOptimize(&kernel32);
  std::array<char, 10> decimal, milhar;
  kernel32.GetLocaleInfoA(kLocaleUserDefault, kLocaleDecimal, decimal);
  kernel32.GetLocaleInfoA(kLocaleUserDefault, kLocaleThousands, milhar);
  std::array<char16_t, kTamanhoDeCaixa> saida;
  std::array<int, 3> casas{};
  std::size_t n = 0;
  std::size_t quantasCasas = 0;
  bool fracao = false;
  for (const char16_t c : texto) {
    if (c == static_cast<char16_t>(decimal[0])) {
      fracao = true;
    } else if (c >= u'0' && c <= u'9') {
      if (!fracao) {
        saida[n++] = c;
      } else if (quantasCasas < 3) {
        casas[quantasCasas++] = c - u'0';
      }
    } else if (c == static_cast<char16_t>(milhar[0]) && !fracao) {
      saida[n++] = c;
    }
  }
  const int centavos = (casas[0] * 10 + casas[1] + (casas[2] > 4)) % 100;
  saida[n++] = static_cast<char16_t>(decimal[0]);
  saida[n++] = static_cast<char16_t>(u'0' + centavos / 10);
  saida[n++] = static_cast<char16_t>(u'0' + centavos % 10);
  saida[n] = 0;
  return saida;
}

// The floors of the CNPJ with letters are the routines of the one without, on digits.
bool ValidaDigitosDoCNPJ(std::u16string_view) {
  static Caixa caixa(u"11.222.333/0001-81");
  return ValidaCNPJ(caixa.Texto());
}
std::u16string PontuaDigitosDoCNPJ(std::u16string_view) {
  static Caixa caixa(u"11222333000181");
  return FormataComoCNPJ(caixa.Texto());
}

bool ValidaCartao(std::u16string_view s) { return ValidaCartaoCredito(s, kRegional); }

template <FormaDeNumero kForma>
std::u16string Formata(std::u16string_view s) {
  static CacheDeArredonda cache;
  return FormataComoReal(s, kForma, kKernel32, cache);
}

const struct {
  const char* nome;
  std::u16string_view texto;
  void (*rotina)(benchmark::State&, std::u16string_view);
  void (*piso)(benchmark::State&, std::u16string_view);
} kLinhas[] = {
    {"BM_ValidaCPF", u"111.444.777-35", Mede<ValidaCPF>, Mede<PisoDoCPF>},
    {"BM_ValidaCNPJ", u"11.222.333/0001-81", Mede<ValidaCNPJ>, Mede<PisoDoCNPJ>},
    // Both beside the digits: letters may cost half as much again.
    {"BM_ValidaCNPJAlfanumerico", u"12.ABC.345/01DE-35", Mede<ValidaCNPJAlfanumerico>,
     Mede<ValidaDigitosDoCNPJ>},
    {"BM_FormataComoCNPJAlfanumerico", u"12ABC34501DE35", Mede<FormataComoCNPJAlfanumerico>,
     Mede<PontuaDigitosDoCNPJ>},
    {"BM_ValidaCartaoCredito", u"4111 1111 1111 1111", Mede<ValidaCartao>, Mede<PisoDoCartao>},
    {"BM_FormataComoCPF", u"11144477735", Mede<FormataComoCPF>, Mede<PisoDePontuarCPF>},
    {"BM_FormataComoCNPJ", u"11222333000181", Mede<FormataComoCNPJ>, Mede<PisoDePontuarCNPJ>},
    {"BM_FormataComoCartao", u"4111111111111111", Mede<FormataComoCartao>, Mede<PisoDePontuarCartao>},
    {"BM_FormataComoReal", u"1234567,891", Mede<Formata<FormaDeNumero::kMoeda>>, Mede<PisoDaMoeda>},
};

const bool kRegistradas = [] {
  for (const auto& linha : kLinhas) {
    const std::string nome = linha.nome;
    benchmark::RegisterBenchmark(nome.c_str(), linha.rotina, linha.texto);
    benchmark::RegisterBenchmark((nome + "_floor").c_str(), linha.piso, linha.texto);
  }
  return true;
}();

}  // namespace
}  // namespace gabarito
