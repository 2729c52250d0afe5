#include "gabarito/rules/formatadores.h"

#include <array>
#include <cstddef>

#include "gabarito/platform/erro.h"
#include "gabarito/rules/digitos.h"
#include "gabarito/rules/feitio.h"
#include "gabarito/rules/primitivas.h"

namespace gabarito {
namespace {

constexpr char16_t SoDigito(char16_t c) { return EhDigito(c) ? c : u'\0'; }

// What `mantem` keeps of `s`, in the way in which it keeps it; it gives 0 for what falls out.
template <auto mantem>
std::u16string Mantidos(std::u16string_view s) {
  std::u16string mantidos;
  for (const char16_t c : s) {
    if (mantem(c) != 0) mantidos += mantem(c);
  }
  return mantidos;
}

// The form with what is kept of `s` in it, where that fits; otherwise bare. A text that has the form already,
// as on every exit after the first, comes back as it is.
template <auto mantem, std::size_t kTamanho>
std::u16string Pontua(std::u16string_view s, const Feitio<kTamanho>& feitio) {
  typename Feitio<kTamanho>::Pistas pistas;
  if (feitio.Le(s, pistas)) return std::u16string(s);
  if (s.size() > kMaiorTextoPercorrido) Fail(kOverflow);

  std::array<char16_t, kTamanho> mantidos;
  std::size_t quantos = 0;
  for (const char16_t c : s) {
    const char16_t mantido = mantem(c);
    if (mantido == 0) continue;
    if (quantos == feitio.Digitos()) return Mantidos<mantem>(s);  // one too many: they stay bare, all of them
    mantidos[quantos++] = mantido;
  }
  const bool cabe = quantos == feitio.Digitos() && feitio.LetrasCabem(mantidos);
  return cabe ? feitio.Escreve(mantidos) : std::u16string(mantidos.data(), quantos);
}

}  // namespace

std::u16string FormataComoCPF(std::u16string_view s) { return Pontua<SoDigito>(s, kFeitioDeCPF); }

std::u16string FormataComoCNPJ(std::u16string_view s) { return Pontua<SoDigito>(s, kFeitioDeCNPJ); }

std::u16string FormataComoCNPJAlfanumerico(std::u16string_view s) {
  return Pontua<DigitoOuMaiuscula>(s, kFeitioDeCNPJAlfanumerico);
}

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
