#include "hosts/terminal/field_dialogs.h"

#include "hosts/kit/message_buttons.h"

namespace gabarito::terminal {

std::int32_t FieldDialogs::MsgBox(std::u16string_view text, std::int32_t flags,
                                  std::optional<std::u16string_view> title) {
  if (listener_ == nullptr) return kit::DefaultAnswer(flags);
  return listener_->Told(line_, text, flags, title);
}

void FieldDialogs::Beep() {
  if (listener_ != nullptr) listener_->Beeped(line_);
}

}  // namespace gabarito::terminal
