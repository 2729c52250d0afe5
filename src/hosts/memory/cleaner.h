// What becomes of a value that goes through a field unattended: the rule of batch work, one for every
// program.
#ifndef HOSTS_MEMORY_CLEANER_H
#define HOSTS_MEMORY_CLEANER_H

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "hosts/memory/form.h"

namespace gabarito::memory {

class Cleaner {
 public:
  // Called with each message about a value, those of the field and "Valor não aceito pela máscara.", which
  // the field itself, silent when it loads 31/02/2024 as three empty boxes, does not say.
  using OnMessage = std::function<void(std::u16string_view text)>;

  // `now` is what the clock of the field shows.
  Cleaner(OnMessage onMessage, Date now);
  ~Cleaner();

  // The field that all values go through, as freshly placed; its properties are for the program to set.
  Field& ItsField() { return field_; }
  Form& ItsForm() { return form_; }

  // Writes the text, checks it and gives the value in `value`; false when there was a message.
  bool Clean(std::u16string_view text, std::u16string& value);

 private:
  class Ear;

  OnMessage on_message_;
  bool spoken_ = false;
  std::unique_ptr<Ear> ear_;  // in front of the form, which keeps a pointer to it
  Form form_;
  Field& field_;
};

}  // namespace gabarito::memory

#endif  // HOSTS_MEMORY_CLEANER_H
