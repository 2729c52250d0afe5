#include "gabarito/rules/primitivas.h"

#include <algorithm>
#include <array>

#include "gabarito/platform/erro.h"
#include "gabarito/rules/digitos.h"

namespace gabarito {
namespace {

void ExigeTextoPercorrivel(std::u16string_view texto) {
  if (texto.size() > kMaiorTextoPercorrido) Fail(kOverflow);
}

// A set of characters that ignores case. Members that are ASCII as capitals are kept as flags, so that one
// character costs the same whatever the length of the set.
class ConjuntoSemCaixa {
 public:
  explicit ConjuntoSemCaixa(std::u16string_view membros) : membros_(membros) {
    for (const char16_t membro : membros) {
      const char16_t maiuscula = UCase(membro);
      if (maiuscula < ascii_.size()) ascii_[maiuscula] = true;
    }
  }

  bool Tem(char16_t c) const {
    const char16_t maiuscula = UCase(c);
    if (maiuscula < ascii_.size()) return ascii_[maiuscula];
    return std::any_of(membros_.begin(), membros_.end(),
                       [=](char16_t membro) { return UCase(membro) == maiuscula; });
  }

 private:
  std::u16string_view membros_;
  std::array<bool, 128> ascii_{};
};

struct LetraAcentuada {
  char16_t simples;
  std::u16string_view acentuadas;
};

constexpr LetraAcentuada kLetrasAcentuadas[] = {{u'A', u"ÁÀÃÂÄÅ"}, {u'E', u"ÉÈÊË"}, {u'I', u"ÍÌÎÏ"},
                                                {u'O', u"ÓÒÕÔÖ"},  {u'U', u"ÚÙÛÜ"}, {u'C', u"Ç"}};

// The table by character, for the part of Latin-1 that it lies in: 192 to 223.
constexpr char16_t kPrimeiraAcentuada = 192;
constexpr auto kSemAcento = [] {
  std::array<char16_t, 32> letras{};
  for (std::size_t i = 0; i < letras.size(); ++i) letras[i] = static_cast<char16_t>(kPrimeiraAcentuada + i);
  for (const LetraAcentuada& linha : kLetrasAcentuadas) {
    for (const char16_t acentuada : linha.acentuadas) letras[acentuada - kPrimeiraAcentuada] = linha.simples;
  }
  return letras;
}();

char16_t TiraAcento(char16_t maiuscula) {
  if (maiuscula >= kPrimeiraAcentuada && maiuscula < kPrimeiraAcentuada + kSemAcento.size()) {
    return kSemAcento[maiuscula - kPrimeiraAcentuada];
  }
  // By code page value, not by code unit: the curly quotes (U+2019 is 146) and the S with caron (138) are
  // blanks too, while a character that the page lacks counts as "?" and stays.
  const std::uint8_t codigo = Asc(maiuscula);
  const bool viraBranco = codigo == 34 || codigo == 39 || codigo == 96 || (codigo >= 127 && codigo <= 191);
  return viraBranco ? u' ' : maiuscula;
}

}  // namespace

std::u16string Substitui(std::u16string_view texto, std::u16string_view procurado, std::u16string_view novo,
                         std::int32_t inicio, std::int32_t quantos, Comparison comparacao) {
  if (procurado.empty() || novo == procurado || inicio < 1) return std::u16string(texto);
  std::int32_t posicao = InStr(inicio, texto, procurado, comparacao);
  if (posicao == 0) return std::u16string(texto);

  std::u16string resultado;
  if (novo.size() <= procurado.size()) resultado.reserve(texto.size());
  std::size_t copiado = 0;
  for (std::int32_t feitas = 0; posicao != 0;) {
    const std::size_t achado = static_cast<std::size_t>(posicao) - 1;
    resultado.append(texto, copiado, achado - copiado).append(novo);
    copiado = achado + procurado.size();
    // Compared for equality only after counting: 0 is never reached and means all.
    if (++feitas == quantos) break;
    posicao = InStr(static_cast<std::int32_t>(copiado) + 1, texto, procurado, comparacao);
  }
  return resultado.append(texto, copiado);
}

std::u16string SoDigitos(std::u16string_view texto) {
  ExigeTextoPercorrivel(texto);
  std::u16string resultado;
  std::copy_if(texto.begin(), texto.end(), std::back_inserter(resultado), EhDigito);
  return resultado;
}

std::u16string SoCaracteres(std::u16string_view texto, std::u16string_view conjunto) {
  ExigeTextoPercorrivel(texto);
  const ConjuntoSemCaixa membros(conjunto);
  std::u16string resultado;
  std::copy_if(texto.begin(), texto.end(), std::back_inserter(resultado),
               [&](char16_t c) { return membros.Tem(c); });
  return resultado;
}

std::u16string pfTiraAcentoDeFrase(std::u16string_view s) {
  ExigeTextoPercorrivel(s);
  std::u16string resultado = UCase(s);
  std::transform(resultado.begin(), resultado.end(), resultado.begin(), TiraAcento);
  return resultado;
}

bool EhLetraPorExtenso(std::u16string_view c) {
  if (c.empty()) return false;
  if (c.size() == 1 && (c[0] == u'"' || c[0] == u' ' || c[0] == u'*' || c[0] == u'\'')) return true;
  const char16_t primeira = UCase(c[0]);
  // As a text, "ZA" lies behind "Z": only a text of one character reaches the end of a range.
  const int alem = c.size() > 1 ? 1 : 0;
  const auto entre = [=](char16_t inicio, char16_t fim) {
    return primeira >= inicio && primeira <= fim - alem;
  };
  return entre(u'A', u'Z') || entre(u'À', u'Ö') || entre(u'Ø', u'ß');
}

}  // namespace gabarito
