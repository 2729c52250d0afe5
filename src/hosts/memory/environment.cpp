#include "hosts/memory/environment.h"

#include "gabarito/platform/text.h"

namespace gabarito::memory {
namespace {

constexpr std::int32_t kYesNo = 4;
constexpr std::int32_t kSecondButton = 256;

std::int32_t DefaultButton(std::int32_t flags) {
  if ((flags & kYesNo) == 0) return kAnswerOk;
  return (flags & kSecondButton) != 0 ? kAnswerNo : kAnswerYes;
}

}  // namespace

std::int32_t ScriptedDialogs::MsgBox(std::u16string_view text, std::int32_t flags,
                                     std::optional<std::u16string_view> title) {
  std::int32_t answer = DefaultButton(flags);
  if (onMsgBox) {
    answer = onMsgBox(text, flags, title);
  } else if (!answers.empty()) {
    answer = answers.front();
    answers.pop_front();
  }
  if (recorder_ != nullptr) recorder_->MsgBox(text, flags, title, answer);
  return answer;
}

void ScriptedDialogs::Beep() {
  if (recorder_ != nullptr) recorder_->Beep();
  if (onBeep) onBeep();
}

void ScriptedDialogs::SendKeys(std::u16string_view text, bool wait) {
  if (recorder_ != nullptr) recorder_->SendKeys(text, wait);
}

void ScriptedDialogs::Trace(std::u16string_view text) {
  if (recorder_ != nullptr) recorder_->Trace(text);
}

std::int32_t SettableKernel::GetLocaleInfoA(std::int32_t locale, std::int32_t item,
                                            std::span<char> buffer) const {
  if (locale != kLocaleUserDefault) return 0;
  if (item != kLocaleDecimal && item != kLocaleThousands) return 0;
  const std::u16string& setting = item == kLocaleDecimal ? regional.decimal : regional.thousands;
  if (setting.size() + 1 > buffer.size()) return 0;
  std::size_t n = 0;
  for (const char16_t c : setting) buffer[n++] = static_cast<char>(Asc(c));
  buffer[n++] = '\0';
  return static_cast<std::int32_t>(n);
}

void SettableKernel::GetVersionExA(OSVERSIONINFO& info) const {
  const std::int32_t size = info.dwOSVersionInfoSize;
  info = version;
  info.dwOSVersionInfoSize = size;
}

}  // namespace gabarito::memory
