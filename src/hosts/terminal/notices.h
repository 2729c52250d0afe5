// What the fields have said, kept where it can be read: beside the field, until it changes.
#ifndef HOSTS_TERMINAL_NOTICES_H
#define HOSTS_TERMINAL_NOTICES_H

#include <cstddef>
#include <map>
#include <string>

#include "hosts/terminal/form_model.h"

namespace gabarito::terminal {

// Lines are those of the form model.
class Notices {
 public:
  struct Notice {
    std::u16string text;
    std::u16string content;  // of the field when it was said
    bool fresh = true;       // said in the step of the person that is in progress
  };

  // Why the field refuses what it holds; stays until the field holds something else.
  void Refuse(std::size_t line, std::u16string_view text) {
    refusals_[line] = {std::u16string(text), {}, true};
  }

  // Why the last key did nothing; stays for a moment. In place of a refusal it is shown first.
  void Hint(std::size_t line, std::u16string_view text);
  bool HasHint() const { return !hint_.empty(); }
  void EndHint() { hint_.clear(); }

  // At the end of a step: a field rewrites its boxes after it has spoken, and only what they hold now counts.
  void Settle(const FormModel& model);

  bool Refused(std::size_t line) const { return refusals_.contains(line); }

  // What to show for a line: a sign and a text; nothing to show is empty.
  std::u16string At(std::size_t line) const;

 private:
  std::map<std::size_t, Notice> refusals_;
  std::u16string hint_;
  std::size_t hint_line_ = 0;
};

}  // namespace gabarito::terminal

#endif  // HOSTS_TERMINAL_NOTICES_H
