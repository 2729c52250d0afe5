#include "gabarito/state/campo.h"

#include "gabarito/platform/virtual_keys.h"

namespace gabarito {

void Campo::KeyUpDeEnter() {
  std::int16_t KeyCode = kVkReturn;
  std::int16_t Shift = 0;
  KeyUp(KeyCode, Shift);
}

}  // namespace gabarito
