// One person at one form: takes input to the form, shows it, and tells what its fields say.
#ifndef HOSTS_TERMINAL_FORM_SESSION_H
#define HOSTS_TERMINAL_FORM_SESSION_H

#include <optional>
#include <vector>

#include "hosts/terminal/display.h"
#include "hosts/terminal/form_model.h"
#include "hosts/terminal/form_view.h"
#include "hosts/terminal/message_box.h"
#include "hosts/terminal/notices.h"

namespace gabarito::terminal {

class FormSession final : public Listener {
 public:
  // Both outlive the session.
  FormSession(FormModel& model, Display& display);
  ~FormSession() override;
  FormSession(const FormSession&) = delete;
  FormSession& operator=(const FormSession&) = delete;

  // Gives the focus to the first field and returns when the person has finished, with the value of each field
  // in order: each has passed, and those that are required are filled. Nothing when the person has given up.
  // What Display::Next throws passes.
  std::optional<std::vector<FieldValue>> Run();

  std::int32_t Told(std::size_t line, std::u16string_view text, std::int32_t flags,
                    std::optional<std::u16string_view> title) override;
  void Beeped(std::size_t line) override;

 private:
  enum class End { kNotYet, kFinished, kGivenUp };

  void Handle(const Input& input);
  void Play(const Input& input);
  void Type(char16_t character);
  void Press(std::int16_t vk, std::int16_t shift);
  void Click(Point at);
  void TryToFinish();
  bool Passes(std::size_t line);
  void StayAt(std::size_t line);
  void GiveUp();
  void TellWhyRefused(char16_t character);
  void RestoreSeparators();
  std::int32_t Ask(MessageBox box);

  FormModel& model_;
  Display& display_;
  Notices notices_;
  FormView view_;
  End end_ = End::kNotYet;
  std::vector<FieldValue> values_;
  std::vector<std::u16string> agreed_;  // by line: what it held when the person stood by it
  int refusals_ = 0;                    // counted, so that a step can tell whether it met one
  int beeps_ = 0;
  std::optional<Interrupted> interrupted_;  // while a box was open
};

}  // namespace gabarito::terminal

#endif  // HOSTS_TERMINAL_FORM_SESSION_H
