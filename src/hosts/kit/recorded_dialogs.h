// The dialogs as a field sees them: those of the host, or of that one field, told to the recorder.
#ifndef HOSTS_KIT_RECORDED_DIALOGS_H
#define HOSTS_KIT_RECORDED_DIALOGS_H

#include "gabarito/platform/dialogs.h"

namespace gabarito::kit {

class FormModel;

class RecordedDialogs final : public Dialogs {
 public:
  // `voice` null: Services::dialogs, asked anew each time. It outlives the object.
  RecordedDialogs(FormModel& form, Dialogs* voice) : form_(form), voice_(voice) {}

  void Voice(Dialogs* voice) { voice_ = voice; }

  std::int32_t MsgBox(std::u16string_view text, std::int32_t flags,
                      std::optional<std::u16string_view> title) override;
  void Beep() override;
  void SendKeys(std::u16string_view text, bool wait) override;
  void Trace(std::u16string_view text) override;

  // Keeps the sounds of one key back until it is known whether they are wanted.
  void HoldBeeps() { holding_ = true; }
  // Ends that; gives the number of sounds held back, which are gone.
  int DropBeeps();

 private:
  Dialogs& Host() const;

  FormModel& form_;
  Dialogs* voice_;
  bool holding_ = false;
  int held_ = 0;
};

}  // namespace gabarito::kit

#endif  // HOSTS_KIT_RECORDED_DIALOGS_H
