// What all controls of a form share: the system around them.
#ifndef HOSTS_MEMORY_ENVIRONMENT_H
#define HOSTS_MEMORY_ENVIRONMENT_H

#include <deque>
#include <functional>
#include <string>

#include "gabarito/platform/clock.h"
#include "gabarito/platform/dialogs.h"
#include "gabarito/platform/kernel32.h"
#include "gabarito/platform/regional.h"
#include "gabarito/platform/user_control.h"
#include "hosts/memory/fault_switch.h"
#include "hosts/memory/font_metric.h"
#include "hosts/memory/keyboard.h"
#include "hosts/memory/recorder.h"

namespace gabarito::memory {

// A clock that stands still until it is set.
class SettableClock final : public Clock {
 public:
  Date Now() const override { return now_; }
  void Set(Date now) { now_ = now; }

 private:
  Date now_ = DateFromParts({2024, 3, 5, 10, 20, 30});
};

// Message boxes that are answered at once: by `onMsgBox` if it is set, else by the answers that wait in
// `answers`, first in first out, else by the default button.
class ScriptedDialogs final : public Dialogs {
 public:
  explicit ScriptedDialogs(Recorder*& recorder) : recorder_(recorder) {}

  std::int32_t MsgBox(std::u16string_view text, std::int32_t flags,
                      std::optional<std::u16string_view> title) override;
  void Beep() override;
  void SendKeys(std::u16string_view text, bool wait) override;
  void Trace(std::u16string_view text) override;

  std::deque<std::int32_t> answers;
  // A host with a screen shows its box here and returns the button.
  std::function<std::int32_t(std::u16string_view text, std::int32_t flags,
                             std::optional<std::u16string_view> title)>
      onMsgBox;
  std::function<void()> onBeep;

 private:
  Recorder*& recorder_;
};

// The regional settings and the version of the system.
class SettableKernel final : public Kernel32 {
 public:
  std::int32_t GetLocaleInfoA(std::int32_t locale, std::int32_t item, std::span<char> buffer) const override;
  void GetVersionExA(OSVERSIONINFO& info) const override;

  Regional regional;
  OSVERSIONINFO version{.dwMajorVersion = 10, .dwPlatformId = 2};
};

class SettableAmbient final : public AmbientProperties {
 public:
  Color BackColor() const override { return backColor; }
  FontRef Font() const override { return font; }

  Color backColor = kButtonFace;
  FontRef font = std::make_shared<StdFont>();
  bool available = true;  // a field that asks while it is not gets the error 91
};

struct Environment {
  Recorder* recorder = nullptr;  // null: nobody looks
  FaultSwitch faults;
  FontMetric metric;
  SettableClock clock;
  SettableKernel kernel;
  SettableAmbient ambient;
  ScriptedDialogs dialogs{recorder};
  // What the next field that is placed speaks through; a host with a screen sets its own here.
  Dialogs* voice = &dialogs;
  Keyboard keyboard;
  std::u16string clipboard;

  Environment() = default;
  Environment(const Environment&) = delete;
  Environment& operator=(const Environment&) = delete;
};

}  // namespace gabarito::memory

#endif  // HOSTS_MEMORY_ENVIRONMENT_H
