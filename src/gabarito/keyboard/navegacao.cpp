#include "gabarito/keyboard/navegacao.h"

#include "gabarito/keyinject/send_input.h"
#include "gabarito/platform/pula_erros.h"

namespace gabarito {

void EntradaKeyDown(Campo& c, std::int16_t& KeyCode, std::int16_t& Shift) {
  const bool copia = KeyCode == 'C' && Shift == kCtrlMask;
  const bool cola = KeyCode == 'V' && Shift == kCtrlMask;
  c.mTeclaDeEdicao = KeyCode == kVkDelete || KeyCode == kVkBack || copia || cola;
  PulaErros pula;
  pula([&] { c.KeyUp(KeyCode, Shift); });
}

void MaskEdBox1_KeyPress(Campo& c, std::int16_t& KeyAscii) {
  if (KeyAscii != kVkReturn) return;
  KeyAscii = 0;
  PulaErros pula;
  pula([&] { SendKeyString(*c.InputQueue, *c.Kernel32, *c.Dialogs, u"{TAB}", true); });
  pula([&] { c.KeyUpDeEnter(); });
}

}  // namespace gabarito
