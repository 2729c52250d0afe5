// The punctuated form of a document number: where its digits and its separators stand.
//
// A text in this form is read in lanes, one for each character: a digit gives its value, a separator gives
// 0. Weights are laid out the same way, so a check digit is a plain sum of products over all lanes,
// without gathering the digits first.
#ifndef GABARITO_RULES_FEITIO_H
#define GABARITO_RULES_FEITIO_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

#include "gabarito/rules/digitos.h"

namespace gabarito {

template <std::size_t kTamanho>
class Feitio {
 public:
  using Pistas = std::array<std::int16_t, kTamanho>;

  // `modelo` is the form with "0" for each digit.
  consteval explicit Feitio(const char16_t (&modelo)[kTamanho + 1]) {
    for (std::size_t i = 0; i < kTamanho; ++i) {
      modelo_[i] = modelo[i];
      folga_[i] = modelo[i] == u'0' ? 9 : 0;
      if (modelo[i] == u'0') lugares_[digitos_++] = i;
    }
  }

  constexpr std::size_t Tamanho() const { return kTamanho; }
  constexpr std::size_t Digitos() const { return digitos_; }

  // Weights for the digits from the first; the digits that are left over weigh nothing.
  consteval Pistas Pesos(std::initializer_list<std::int16_t> pesos) const {
    Pistas pistas{};
    std::size_t k = 0;
    for (const std::int16_t peso : pesos) pistas[lugares_[k++]] = peso;
    return pistas;
  }

  // True when `texto` has this form exactly; `pistas` is then filled.
  bool Le(std::u16string_view texto, Pistas& pistas) const {
    if (texto.size() != kTamanho) return false;
    bool serve = true;
    // Unrolled, the lanes stay in registers; as a loop they are stored one by one and waited for.
#pragma GCC unroll 32
    for (std::size_t i = 0; i < kTamanho; ++i) {
      const char16_t resto = static_cast<char16_t>(texto[i] - modelo_[i]);
      serve &= resto <= folga_[i];
      pistas[i] = static_cast<std::int16_t>(resto);
    }
    return serve;
  }

  // The lanes of as many loose characters as the form has digits; one that is no digit counts as 0.
  Pistas Distribui(std::span<const char16_t> caracteres) const {
    Pistas pistas{};
    for (std::size_t k = 0; k < digitos_; ++k) pistas[lugares_[k]] = ValorDoDigito(caracteres[k]);
    return pistas;
  }

  // The form with these digits in it.
  std::u16string Escreve(std::span<const char16_t> caracteres) const {
    std::u16string texto(modelo_.data(), kTamanho);
    for (std::size_t k = 0; k < digitos_; ++k) texto[lugares_[k]] = caracteres[k];
    return texto;
  }

  // The value of digit `k`, counted from 1.
  std::int16_t Digito(const Pistas& pistas, std::size_t k) const { return pistas[lugares_[k - 1]]; }

  static std::int32_t Soma(const Pistas& pistas, const Pistas& pesos) {
    std::int32_t soma = 0;
    for (std::size_t i = 0; i < kTamanho; ++i) soma += pistas[i] * pesos[i];
    return soma;
  }

 private:
  std::array<char16_t, kTamanho> modelo_{};
  std::array<char16_t, kTamanho> folga_{};  // how far above the model a character may lie
  std::array<std::size_t, kTamanho> lugares_{};
  std::size_t digitos_ = 0;
};

template <std::size_t kTamanhoComZero>
Feitio(const char16_t (&)[kTamanhoComZero]) -> Feitio<kTamanhoComZero - 1>;

inline constexpr Feitio kFeitioDeCPF(u"000.000.000-00");
inline constexpr Feitio kFeitioDeCNPJ(u"00.000.000/0000-00");
inline constexpr Feitio kFeitioDeCartao(u"0000 0000 0000 0000");

}  // namespace gabarito

#endif  // GABARITO_RULES_FEITIO_H
