#include "gabarito/rules/documentos.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <type_traits>

#include "gabarito/platform/number.h"
#include "gabarito/rules/digitos.h"
#include "gabarito/rules/feitio.h"
#include "gabarito/rules/primitivas.h"

namespace gabarito {
namespace {

constexpr std::size_t kTamanhoDaRaiz = 8;
constexpr std::size_t kMaisDigitosDeCartao = 20;

constexpr bool EhSeparadorDeDocumento(char16_t c) { return c == u'.' || c == u'/' || c == u'-' || c == u' '; }

// Copies what is no separator; more than `limpo` holds gives a size beyond it.
template <std::size_t kMaximo>
std::size_t TiraSeparadores(std::u16string_view s, std::array<char16_t, kMaximo>& limpo) {
  std::size_t tamanho = 0;
  for (const char16_t c : s) {
    if (EhSeparadorDeDocumento(c)) continue;
    if (tamanho == kMaximo) return kMaximo + 1;
    limpo[tamanho++] = c;
  }
  return tamanho;
}

// 11 less the remainder, with 0 for what would take two digits: the same rule for a CPF and a CNPJ.
constexpr std::int32_t DigitoModulo11(std::int32_t soma) {
  const std::int32_t resto = soma % 11;
  return resto > 1 ? 11 - resto : 0;
}

bool ConfereCPF(const decltype(kFeitioDeCPF)::Pistas& pistas) {
  constexpr const auto& kF = kFeitioDeCPF;
  static constexpr auto kPrimeiro = kF.Pesos({10, 9, 8, 7, 6, 5, 4, 3, 2});
  static constexpr auto kSegundo = kF.Pesos({11, 10, 9, 8, 7, 6, 5, 4, 3, 2});
  return kF.Digito(pistas, 10) == DigitoModulo11(kF.Soma(pistas, kPrimeiro)) &&
         kF.Digito(pistas, 11) == DigitoModulo11(kF.Soma(pistas, kSegundo));
}

constexpr auto kPesosDoSegundoDoCNPJ = kFeitioDeCNPJ.Pesos({6, 5, 4, 3, 2, 9, 8, 7, 6, 5, 4, 3, 2});

// Inlined wherever it is called, so that the lanes stay in registers.
[[gnu::always_inline]] inline bool ConfereCNPJ(const decltype(kFeitioDeCNPJ)::Pistas& pistas) {
  constexpr const auto& kF = kFeitioDeCNPJ;
  static constexpr auto kPrimeiro = kF.Pesos({5, 4, 3, 2, 9, 8, 7, 6, 5, 4, 3, 2});
  return kF.Digito(pistas, 13) == DigitoModulo11(kF.Soma(pistas, kPrimeiro)) &&
         kF.Digito(pistas, 14) == DigitoModulo11(kF.Soma(pistas, kPesosDoSegundoDoCNPJ));
}

// Weights are above 0, so a sum of 0 is a number of zeros.
[[gnu::always_inline]] inline bool ConfereCNPJAcimaDeZero(const decltype(kFeitioDeCNPJ)::Pistas& pistas) {
  return ConfereCNPJ(pistas) && kFeitioDeCNPJ.Soma(pistas, kPesosDoSegundoDoCNPJ) > 0;
}

constexpr std::int32_t DobroDeUmDigito(std::int32_t digito) {
  const std::int32_t dobro = digito * 2;
  return dobro > 9 ? dobro - 9 : dobro;  // the sum of its two digits
}

// The root of a CNPJ ends in a digit of its own rule: the digits in odd positions count double.
bool ConfereRaizDeCNPJ(std::u16string_view raiz) {
  std::int32_t soma = ValorDoDigito(raiz.back());
  for (std::size_t i = 0; i + 1 < kTamanhoDaRaiz; ++i) {
    const std::int32_t digito = ValorDoDigito(raiz[i]);
    soma += i % 2 == 0 ? DobroDeUmDigito(digito) : digito;
  }
  return soma % 10 == 0;
}

// A text in any other form than the punctuated one.
bool ValidaCNPJSemFeitio(std::u16string_view s) {
  std::array<char16_t, kFeitioDeCNPJ.Digitos()> limpo;
  const std::size_t tamanho = TiraSeparadores(s, limpo);
  if (tamanho != kTamanhoDaRaiz && tamanho != limpo.size()) return false;
  // The value of the whole text counts, not its digits: "ABCDEFG0" and "0E123450" are not above 0.
  const std::u16string_view texto(limpo.data(), tamanho);
  if (!(Grandeza(texto) > 0)) return false;
  return tamanho == kTamanhoDaRaiz ? ConfereRaizDeCNPJ(texto) : ConfereCNPJ(kFeitioDeCNPJ.Distribui(limpo));
}

// The usual 16 digits, whose weights are known; any other count goes through ConfereLuhn.
bool ConfereCartao(const decltype(kFeitioDeCartao)::Pistas& pistas) {
  constexpr const auto& kF = kFeitioDeCartao;
  static constexpr auto kPesos = kF.Pesos({2, 1, 2, 1, 2, 1, 2, 1, 2, 1, 2, 1, 2, 1, 2, 1});
  std::int32_t soma = 0;
  for (std::size_t i = 0; i < pistas.size(); ++i) {
    const std::int16_t termo = static_cast<std::int16_t>(pistas[i] * kPesos[i]);
    soma += termo > 9 ? termo - 9 : termo;
  }
  return soma % 10 == 0;
}

bool ConfereLuhn(const std::int16_t* digitos, std::size_t quantos) {
  std::int32_t soma = 0;
  bool dobra = false;
  for (std::size_t i = quantos; i-- > 0; dobra = !dobra)
    soma += dobra ? DobroDeUmDigito(digitos[i]) : digitos[i];
  return soma % 10 == 0;
}

}  // namespace

bool ValidaCPF(std::u16string_view s) {
  decltype(kFeitioDeCPF)::Pistas pistas;
  if (kFeitioDeCPF.Le(s, pistas)) return ConfereCPF(pistas);
  // A letter is not refused: in "A0000000000" it counts as 0.
  std::array<char16_t, kFeitioDeCPF.Digitos()> limpo;
  return TiraSeparadores(s, limpo) == limpo.size() && ConfereCPF(kFeitioDeCPF.Distribui(limpo));
}

bool ValidaCNPJ(std::u16string_view s) {
  decltype(kFeitioDeCNPJ)::Pistas pistas;
  return kFeitioDeCNPJ.Le(s, pistas) ? ConfereCNPJAcimaDeZero(pistas) : ValidaCNPJSemFeitio(s);
}

bool ValidaCNPJAlfanumerico(std::u16string_view s) {
  constexpr const auto& kF = kFeitioDeCNPJAlfanumerico;
  std::remove_cvref_t<decltype(kF)>::Pistas pistas;
  // All digits have the same lanes here as there.
  if (kF.Le(s, pistas)) return ConfereCNPJAcimaDeZero(pistas);
  const auto ehLetra = [](char16_t c) { return DigitoOuMaiuscula(c) != 0 && !EhDigito(c); };
  if (std::none_of(s.begin(), s.end(), ehLetra)) return ValidaCNPJSemFeitio(s);
  std::array<char16_t, kF.Digitos()> limpo;
  if (TiraSeparadores(s, limpo) != limpo.size() || !kF.LetrasCabem(limpo)) return false;
  const auto ehDigitoOuMaiuscula = [](char16_t c) { return EhDigito(c) || EhMaiuscula(c); };
  return std::all_of(limpo.begin(), limpo.end(), ehDigitoOuMaiuscula) && ConfereCNPJ(kF.Distribui(limpo));
}

bool ValidaCartaoCredito(std::u16string_view s, const Regional& regional) {
  decltype(kFeitioDeCartao)::Pistas pistas;
  if (kFeitioDeCartao.Le(s, pistas)) return ConfereCartao(pistas);

  // "R$ 1,8" is a number too: what is no digit is judged by IsNumeric and then left out.
  std::array<std::int16_t, kMaisDigitosDeCartao> digitos;
  std::array<char16_t, 64> limpo;
  std::size_t quantos = 0;
  std::size_t tamanho = 0;
  for (const char16_t c : s) {
    if (c == u'-' || c == u' ') continue;
    if (EhDigito(c)) {
      if (quantos == digitos.size()) return false;
      digitos[quantos++] = ValorDoDigito(c);
    }
    if (tamanho < limpo.size()) limpo[tamanho] = c;
    ++tamanho;
  }
  // Up to 20 bare digits are always a number, and no digits at all (" - ") never one.
  const bool soDigitos = quantos == tamanho;
  if (soDigitos && quantos == 0) return false;
  if (!soDigitos) {
    const bool numerico = tamanho <= limpo.size()
                              ? IsNumeric(std::u16string_view(limpo.data(), tamanho), regional)
                              : IsNumeric(Substitui(Substitui(s, u"-", u""), u" ", u""), regional);
    if (!numerico) return false;
  }
  return ConfereLuhn(digitos.data(), quantos);
}

}  // namespace gabarito
