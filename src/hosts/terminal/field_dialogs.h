// What the fields of a form say, with the field that says it.
#ifndef HOSTS_TERMINAL_FIELD_DIALOGS_H
#define HOSTS_TERMINAL_FIELD_DIALOGS_H

#include <cstddef>

#include "gabarito/platform/dialogs.h"

namespace gabarito::terminal {

// Hears the fields. `line` counts them from 0. Both are called inside a handler of the field.
class Listener {
 public:
  virtual ~Listener() = default;
  // A message box, told by dialogs.h; returns its button.
  virtual std::int32_t Told(std::size_t line, std::u16string_view text, std::int32_t flags,
                            std::optional<std::u16string_view> title) = 0;
  virtual void Beeped(std::size_t line) = 0;
};

// The voice of one field. While nobody listens its boxes are answered unseen by their default button.
class FieldDialogs final : public Dialogs {
 public:
  // Both outlive the object; what `listener` points to may change.
  FieldDialogs(Listener* const& listener, std::size_t line) : listener_(listener), line_(line) {}

  std::int32_t MsgBox(std::u16string_view text, std::int32_t flags,
                      std::optional<std::u16string_view> title) override;
  void Beep() override;
  // The queue of the form carries the keys of the field; there is no other way, and no developer's window.
  void SendKeys(std::u16string_view, bool) override {}
  void Trace(std::u16string_view) override {}

 private:
  Listener* const& listener_;
  std::size_t line_;
};

}  // namespace gabarito::terminal

#endif  // HOSTS_TERMINAL_FIELD_DIALOGS_H
