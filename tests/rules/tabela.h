// Tables of texts and expected errors for the tests of this folder.
#ifndef GABARITO_TESTS_RULES_TABELA_H
#define GABARITO_TESTS_RULES_TABELA_H

#include <string>
#include <string_view>
#include <vector>

#include "gabarito/platform/erro.h"

namespace gabarito {

inline std::vector<std::u16string> Divide(std::u16string_view texto, char16_t separador) {
  std::vector<std::u16string> partes(1);
  for (const char16_t c : texto) {
    if (c == separador) {
      partes.emplace_back();
    } else {
      partes.back() += c;
    }
  }
  return partes;
}

// Rows parted by "|", each of columns parted by "=".
inline std::vector<std::vector<std::u16string>> Linhas(std::u16string_view tabela) {
  std::vector<std::vector<std::u16string>> linhas;
  for (const std::u16string& linha : Divide(tabela, u'|')) linhas.push_back(Divide(linha, u'='));
  return linhas;
}

// The number of the run-time error that `passo` raises, 0 for none.
template <class Passo>
std::int32_t NumeroDoErro(Passo&& passo) {
  try {
    passo();
  } catch (const Erro& erro) {
    return erro.Number();
  }
  return 0;
}

}  // namespace gabarito

#endif  // GABARITO_TESTS_RULES_TABELA_H
