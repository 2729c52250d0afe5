#include "hosts/kit/recorded_dialogs.h"

#include <utility>

#include "hosts/kit/form_model.h"

namespace gabarito::kit {

Dialogs& RecordedDialogs::Host() const { return voice_ != nullptr ? *voice_ : *form_.services.dialogs; }

std::int32_t RecordedDialogs::MsgBox(std::u16string_view text, std::int32_t flags,
                                     std::optional<std::u16string_view> title) {
  const std::int32_t answer = Host().MsgBox(text, flags, title);
  if (form_.recorder != nullptr) form_.recorder->MsgBox(text, flags, title, answer);
  return answer;
}

void RecordedDialogs::Beep() {
  if (holding_) {
    ++held_;
    return;
  }
  if (form_.recorder != nullptr) form_.recorder->Beep();
  Host().Beep();
}

int RecordedDialogs::DropBeeps() {
  holding_ = false;
  return std::exchange(held_, 0);
}

void RecordedDialogs::SendKeys(std::u16string_view text, bool wait) {
  if (form_.recorder != nullptr) form_.recorder->SendKeys(text, wait);
  Host().SendKeys(text, wait);
}

void RecordedDialogs::Trace(std::u16string_view text) {
  if (form_.recorder != nullptr) form_.recorder->Trace(text);
  Host().Trace(text);
}

}  // namespace gabarito::kit
