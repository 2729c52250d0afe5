#include "gabarito/state/campo.h"

#include "gabarito/platform/virtual_keys.h"

namespace gabarito {

void Campo::KeyUpDeEnter() const {
  std::int16_t KeyCode = kVkReturn;
  std::int16_t Shift = 0;
  KeyUp(KeyCode, Shift);
}

TextBox& CaixaDe(const std::array<TextBox*, 3>& caixas, std::int16_t indice) {
  if (indice < 0 || indice > 2) throw Erro(kSubscriptOutOfRange);
  return *caixas[static_cast<std::size_t>(indice)];
}

}  // namespace gabarito
