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
  // field again, end it or delete it. Without a title the host shows its own.
  //
  // Most calls come out of a focus change, after which the field gives the focus back to the box at fault: a
  // host whose box takes the focus itself keeps the form's logical focus as it was and applies what the field
  // asks for when the box is gone. A host without a way to wait (a web page, messages in place) shows the
  // text and returns the default button at once, which is right for everything but kMsgQuestion: there it
  // waits, or says No.
  virtual std::int32_t MsgBox(std::u16string_view text, std::int32_t flags,
                              std::optional<std::u16string_view> title) = 0;

  // The system's sound.
  virtual void Beep() = 0;

  // The platform's own key sending with the same key-string language. Optional: used only where GetVersionExA
  // tells of a system without SendInput.
  virtual void SendKeys(std::u16string_view /*text*/, bool /*wait*/) {}

  // One line for the developer's trace; the user never sees it. Optional.
  virtual void Trace(std::u16string_view /*text*/) {}
};

}  // namespace gabarito

#endif  // GABARITO_PLATFORM_DIALOGS_H
