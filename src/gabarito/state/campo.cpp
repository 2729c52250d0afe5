#include "gabarito/state/campo.h"

#include "gabarito/platform/user32.h"

namespace gabarito {

void Campo::KeyUpDeEnter() const {
  std::int16_t KeyCode = kVkReturn;
  std::int16_t Shift = 0;
  KeyUp(KeyCode, Shift);
}

}  // namespace gabarito
