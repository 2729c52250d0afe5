// Services that a test or a script sets: for the in-memory host, and for any host in a contract run.
#ifndef HOSTS_KIT_SCRIPTED_H
#define HOSTS_KIT_SCRIPTED_H

#include <deque>
#include <functional>
#include <string>

#include "hosts/kit/fault_switch.h"
#include "hosts/kit/form_model.h"
#include "hosts/kit/regional_kernel.h"

namespace gabarito::kit {

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
  std::int32_t MsgBox(std::u16string_view text, std::int32_t flags,
                      std::optional<std::u16string_view> title) override;
  void Beep() override;

  std::deque<std::int32_t> answers;
  std::function<std::int32_t(std::u16string_view text, std::int32_t flags,
                             std::optional<std::u16string_view> title)>
      onMsgBox;
  std::function<void()> onBeep;
};

class SettableAmbient final : public AmbientProperties {
 public:
  gabarito::Color BackColor() const override { return backColor; }
  FontRef Font() const override { return font; }

  gabarito::Color backColor = kButtonFace;
  FontRef font = std::make_shared<StdFont>();
};

// All of them with the fixed font metric, as the services of one form.
struct ScriptedServices {
  ScriptedDialogs dialogs;
  SettableClock clock;
  RegionalKernel kernel;
  SettableAmbient ambient;
  FixedFontMetric metric;
  FaultSwitch faults;

  ScriptedServices() = default;
  ScriptedServices(const ScriptedServices&) = delete;
  ScriptedServices& operator=(const ScriptedServices&) = delete;

  Services AsServices();
};

}  // namespace gabarito::kit

#endif  // HOSTS_KIT_SCRIPTED_H
