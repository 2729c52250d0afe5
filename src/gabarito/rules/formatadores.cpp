#include "gabarito/rules/formatadores.h"

#include <array>
#include <cstddef>

#include "gabarito/platform/erro.h"
#include "gabarito/rules/digitos.h"
#include "gabarito/rules/feitio.h"
#include "gabarito/rules/texto.h"

namespace gabarito {
namespace {

// A text that has the form already, as on every exit after the first, comes back as it is.
template <std::size_t kTamanho>
std::u16string Pontua(std::u16string_view s, const Feitio<kTamanho>& feitio) {
  typename Feitio<kTamanho>::Pistas pistas;
  if (feitio.Le(s, pistas)) return std::u16string(s);
  if (s.size() > kMaiorTextoPercorrido) throw Erro(kOverflow);

  std::array<char16_t, kTamanho> digitos;
  std::size_t quantos = 0;
  for (const char16_t c : s) {
    if (!EhDigito(c)) continue;
    if (quantos == feitio.Digitos()) return SoDigitos(s);  // one too many: they stay bare, all of them
    digitos[quantos++] = c;
  }
  return quantos == feitio.Digitos() ? feitio.Escreve(digitos) : std::u16string(digitos.data(), quantos);
}

}  // namespace

std::u16string FormataComoCPF(std::u16string_view s) { return Pontua(s, kFeitioDeCPF); }

std::u16string FormataComoCNPJ(std::u16string_view s) { return Pontua(s, kFeitioDeCNPJ); }

std::u16string FormataComoCartao(std::u16string_view s) {
  constexpr std::size_t kGrupo = 4;
  constexpr std::size_t kCaracteres = 16;
  std::array<char16_t, kFeitioDeCartao.Tamanho()> grupos;
  grupos.fill(u' ');  // what the text does not reach stays blank: the separators are always there
  std::size_t copiados = 0;
  for (const char16_t c : s) {
    if (c == u' ') continue;
    if (copiados == kCaracteres) break;
    grupos[copiados + copiados / kGrupo] = c;
    ++copiados;
  }
  return std::u16string(grupos.data(), copiados + kCaracteres / kGrupo - 1);
}

}  // namespace gabarito
