#include "hosts/kit/scripted.h"

#include "hosts/kit/message_buttons.h"

namespace gabarito::kit {

std::int32_t ScriptedDialogs::MsgBox(std::u16string_view text, std::int32_t flags,
                                     std::optional<std::u16string_view> title) {
  if (onMsgBox) return onMsgBox(text, flags, title);
  if (answers.empty()) return DefaultAnswer(flags);
  const std::int32_t answer = answers.front();
  answers.pop_front();
  return answer;
}

void ScriptedDialogs::Beep() {
  if (onBeep) onBeep();
}

Services ScriptedServices::AsServices() {
  return {.dialogs = &dialogs,
          .clock = &clock,
          .kernel = &kernel,
          .regional = &kernel.regional,
          .metric = &metric,
          .ambient = &ambient,
          .painting = nullptr,
          .window_hook = nullptr,
          .decorate = nullptr};
}

}  // namespace gabarito::kit
