// What happens on a form, told at the moment it happens. A test or a script derives from it.
#ifndef HOSTS_KIT_RECORDER_H
#define HOSTS_KIT_RECORDER_H

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "gabarito/platform/input_queue.h"
#include "gabarito/platform/window_hook.h"

namespace gabarito::kit {

class Focusable;

// Every member does nothing by default. A member must not call the form or a field.
class Recorder {
 public:
  virtual ~Recorder() = default;

  virtual void PropertyChanged(std::u16string_view) {}
  // With the answer that the box has got.
  virtual void MsgBox(std::u16string_view /*text*/, std::int32_t /*flags*/,
                      std::optional<std::u16string_view> /*title*/, std::int32_t /*answer*/) {}
  virtual void Beep() {}
  // The stock key sending was asked for.
  virtual void SendKeys(std::u16string_view, bool /*wait*/) {}
  virtual void SendInput(std::span<const INPUT>) {}
  // The focus has moved; the receiver's handler has not run yet.
  virtual void Focus(const Focusable& /*to*/) {}
  // The form raises the event; a read of Text, which runs the same routine, is not told.
  virtual void ExitFocus() {}
  virtual void Resize() {}
  virtual void DrawEdge(const RECT&, std::int32_t /*edge*/, std::int32_t /*flags*/) {}
  // A message has reached the stock window procedure through a hooked one.
  virtual void OldWindowProc(std::int32_t /*message*/) {}
  virtual void Trace(std::u16string_view) {}
};

}  // namespace gabarito::kit

#endif  // HOSTS_KIT_RECORDER_H
