// The buttons that the flags of a message box ask for.
#ifndef HOSTS_KIT_MESSAGE_BUTTONS_H
#define HOSTS_KIT_MESSAGE_BUTTONS_H

#include <cstdint>

#include "gabarito/platform/dialogs.h"

namespace gabarito::kit {

// Yes and No; every other message has OK alone.
constexpr bool AsksYesNo(std::int32_t flags) {
  constexpr std::int32_t kYesNo = 4;
  return (flags & kYesNo) != 0;
}

// The button that Enter presses, and the answer of a host that does not wait.
constexpr std::int32_t DefaultAnswer(std::int32_t flags) {
  constexpr std::int32_t kSecondButton = 256;
  if (!AsksYesNo(flags)) return kAnswerOk;
  return (flags & kSecondButton) != 0 ? kAnswerNo : kAnswerYes;
}

// The answer of Escape: OK where it is the only button.
constexpr std::int32_t EscapeAnswer(std::int32_t flags) { return AsksYesNo(flags) ? kAnswerNo : kAnswerOk; }

}  // namespace gabarito::kit

#endif  // HOSTS_KIT_MESSAGE_BUTTONS_H
