// Tables of texts and expected errors for the tests of this folder.
#ifndef GABARITO_TESTS_RULES_TABELA_H
#define GABARITO_TESTS_RULES_TABELA_H

#include <string>
#include <string_view>
#include <vector>

#include "../platform/expect.h"

namespace gabarito {

inline std::vector<std::u16string> Divide(std::u16string_view texto, char16_t separador) {
  std::vector<std::u16string> partes;
  for (std::size_t fim; (fim = texto.find(separador)) != texto.npos; texto.remove_prefix(fim + 1)) {
    partes.emplace_back(texto.substr(0, fim));
  }
  partes.emplace_back(texto);
  return partes;
}

// Rows parted by "|", each of columns parted by "=".
inline std::vector<std::vector<std::u16string>> Linhas(std::u16string_view tabela) {
  std::vector<std::vector<std::u16string>> linhas;
  for (const std::u16string& linha : Divide(tabela, u'|')) linhas.push_back(Divide(linha, u'='));
  return linhas;
}

}  // namespace gabarito

#endif  // GABARITO_TESTS_RULES_TABELA_H
