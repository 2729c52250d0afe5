// The punctuated form of a document number: where its digits and its separators stand.
//
// A text in this form is read in lanes, one for each character: a digit gives its value, a capital letter
// (where the form has place for one) its code less that of "0", so that "A" is 17, and a separator gives 0.
// Weights are laid out the same way, so a check digit is a plain sum of products over all lanes, without
// gathering the digits first.
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

  // `modelo` is the form with "0" for each digit and "A" for each place of a digit or a capital.
  consteval explicit Feitio(const char16_t (&modelo)[kTamanho + 1]) {
    for (std::size_t i = 0; i < kTamanho; ++i) {
      const bool comLetras = modelo[i] == u'A';
      const bool lugar = comLetras || modelo[i] == u'0';
      modelo_[i] = comLetras ? u'0' : modelo[i];
      folga_[i] = comLetras ? u'Z' - u'0' : lugar ? 9 : 0;
      if (lugar) lugares_[digitos_++] = i;
      temLetras_ |= comLetras;
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
    return temLetras_ ? LeLugares<true>(texto, pistas) : LeLugares<false>(texto, pistas);
  }

  // Whether the capitals among as many loose digits and capitals as the form has places stand where it takes
  // them. A form without letters is given digits alone.
  bool LetrasCabem(std::span<const char16_t> caracteres) const {
    if (!temLetras_) return true;
    for (std::size_t k = 0; k < digitos_; ++k) {
      if (folga_[lugares_[k]] == 9 && EhMaiuscula(caracteres[k])) return false;
    }
    return true;
  }

  // The lanes of as many loose characters as the form has digits; one that is no digit, nor a capital where
  // the form has letters, counts as 0.
  Pistas Distribui(std::span<const char16_t> caracteres) const {
    Pistas pistas{};
    for (std::size_t k = 0; k < digitos_; ++k) {
      const char16_t c = caracteres[k];
      pistas[lugares_[k]] =
          temLetras_ && EhMaiuscula(c) ? static_cast<std::int16_t>(c - u'0') : ValorDoDigito(c);
    }
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
  template <bool kComLetras>
  bool LeLugares(std::u16string_view texto, Pistas& pistas) const {
    if (texto.size() != kTamanho) return false;
    bool serve = true;
    // Unrolled, the lanes stay in registers; as a loop they are stored one by one and waited for.
#ifndef __OPTIMIZE_SIZE__
#pragma GCC unroll 32
#endif
    for (std::size_t i = 0; i < kTamanho; ++i) {
      const char16_t resto = static_cast<char16_t>(texto[i] - modelo_[i]);
      serve &= resto <= folga_[i];
      // Between "9" and "A" lie seven characters that are neither.
      if constexpr (kComLetras) serve &= static_cast<char16_t>(resto - 10) > 6;
      pistas[i] = static_cast<std::int16_t>(resto);
    }
    return serve;
  }

  std::array<char16_t, kTamanho> modelo_{};
  std::array<char16_t, kTamanho> folga_{};  // how far above the model a character may lie
  std::array<std::size_t, kTamanho> lugares_{};
  std::size_t digitos_ = 0;
  bool temLetras_ = false;
};

template <std::size_t kTamanhoComZero>
Feitio(const char16_t (&)[kTamanhoComZero]) -> Feitio<kTamanhoComZero - 1>;

inline constexpr Feitio kFeitioDeCPF(u"000.000.000-00");
inline constexpr Feitio kFeitioDeCNPJ(u"00.000.000/0000-00");
inline constexpr Feitio kFeitioDeCNPJAlfanumerico(u"AA.AAA.AAA/AAAA-00");
inline constexpr Feitio kFeitioDeCartao(u"0000 0000 0000 0000");

}  // namespace gabarito

#endif  // GABARITO_RULES_FEITIO_H
