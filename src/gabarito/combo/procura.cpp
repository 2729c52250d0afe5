#include "gabarito/combo/procura.h"

#include <algorithm>
#include <optional>

#include "gabarito/platform/pula_erros.h"
#include "gabarito/platform/text.h"
#include "gabarito/rules/primitivas.h"

namespace gabarito {
namespace {

bool IgualEmMaiusculas(std::u16string_view item, std::u16string_view maiusculas) {
  return std::equal(item.begin(), item.end(), maiusculas.begin(), maiusculas.end(),
                    [](char16_t a, char16_t b) { return UCase(a) == b; });
}

}  // namespace

bool ExisteNoCombo(const Campo& c, std::u16string_view s) {
  PulaErros pula;
  std::int16_t quantos = 0;
  pula([&] { quantos = c.Combo1->ListCount(); });
  for (std::int16_t i = 0; i < quantos; ++i) {
    if (pula.Se([&] { return c.Combo1->List(i) == s; })) return true;
  }
  return false;
}

std::u16string ProcuraNoCombo(const Campo& c, std::u16string_view s) {
  const std::u16string padrao = std::u16string(s) + u"*";
  PulaErros pula;
  std::int16_t quantos = 0;
  pula([&] { quantos = c.Combo1->ListCount(); });
  // A pattern that is not valid fails for every entry alike.
  std::optional<LikePattern> modelo;
  if (!pula([&] { modelo.emplace(padrao); })) return {};
  for (std::int16_t i = 0; i < quantos; ++i) {
    std::u16string achado;
    if (pula.Se([&] {
          const std::u16string_view item = c.Combo1->List(i);
          if (!modelo->Matches(item)) return false;
          achado = item;
          return true;
        })) {
      return achado;
    }
  }
  return {};
}

void SelecionaNoCombo(Campo& c, std::u16string_view s) {
  PulaErros pula;
  const std::u16string procurado = UCase(s);
  pula([&] { c.Combo1->ListIndex(-1); });
  std::int16_t quantos = 0;
  pula([&] { quantos = c.Combo1->ListCount(); });
  for (std::int16_t i = 0; i < quantos; ++i) {
    if (!pula.Se([&] { return IgualEmMaiusculas(c.Combo1->List(i), procurado); })) continue;
    pula([&] { c.Combo1->ListIndex(i); });
    return;
  }
}

}  // namespace gabarito
