// One person at one form: takes input to the form, shows it, and answers its message boxes.
#ifndef HOSTS_TERMINAL_FORM_SESSION_H
#define HOSTS_TERMINAL_FORM_SESSION_H

#include "hosts/terminal/display.h"
#include "hosts/terminal/form_model.h"
#include "hosts/terminal/form_view.h"

namespace gabarito::terminal {

class FormSession final : public Listener {
 public:
  // Both outlive the session.
  FormSession(FormModel& model, Display& display);
  ~FormSession() override;
  FormSession(const FormSession&) = delete;
  FormSession& operator=(const FormSession&) = delete;

  // Gives the focus to the first field and returns when the person has left. What Display::Next throws
  // passes. An Erro is shown in a message box.
  void Run();

 private:
  void Handle(const Input& input);
  void Play(const Input& input);
  void Click(Point at);
  void AskToLeave();
  std::int32_t Told(std::size_t line, std::u16string_view text, std::int32_t flags,
                    std::optional<std::u16string_view> title) override;
  void Beeped(std::size_t line) override;
  std::int32_t Ask(std::u16string_view text, std::int32_t flags, std::optional<std::u16string_view> title);

  FormModel& model_;
  Display& display_;
  FormView view_;
  bool left_ = false;
  int boxes_ = 0;  // message boxes shown so far
};

}  // namespace gabarito::terminal

#endif  // HOSTS_TERMINAL_FORM_SESSION_H
