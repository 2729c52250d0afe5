// Message boxes, sound, the stock key sending and the trace of the host.
#ifndef GABARITO_PLATFORM_DIALOGS_H
#define GABARITO_PLATFORM_DIALOGS_H

#include <cstdint>
#include <optional>
#include <string_view>

namespace gabarito {

// Flags of a message box that the field uses.
inline constexpr std::int32_t kMsgCritical = 16;     // stop sign, OK
inline constexpr std::int32_t kMsgInformation = 64;  // information sign, OK
inline constexpr std::int32_t kMsgQuestion = 292;    // question mark, Yes and No; No is the default button

// Buttons.
inline constexpr std::int32_t kAnswerOk = 1;
inline constexpr std::int32_t kAnswerYes = 6;
inline constexpr std::int32_t kAnswerNo = 7;

class Dialogs {
 public:
  virtual ~Dialogs() = default;

  // A modal box; returns the button. The host's message loop may go on running meanwhile and may call the
  // field again. Without a title the host shows its own.
  virtual std::int32_t MsgBox(std::u16string_view text, std::int32_t flags,
                              std::optional<std::u16string_view> title) = 0;

  // The system's sound.
  virtual void Beep() = 0;

  // The platform's own key sending with the same key-string language; used where SendInput is missing.
  virtual void SendKeys(std::u16string_view text, bool wait) = 0;

  // One line for the developer's trace; the user never sees it.
  virtual void Trace(std::u16string_view text) = 0;
};

}  // namespace gabarito

#endif  // GABARITO_PLATFORM_DIALOGS_H
