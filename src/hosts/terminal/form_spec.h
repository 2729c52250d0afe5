// What a form consists of, as whoever asks for it says it.
#ifndef HOSTS_TERMINAL_FORM_SPEC_H
#define HOSTS_TERMINAL_FORM_SPEC_H

#include <functional>
#include <string>
#include <vector>

#include "gabarito/control/gabarito.h"

namespace gabarito::terminal {

struct FieldSpec {
  std::string name;  // of its value; UTF-8
  std::u16string label;
  std::u16string heading;  // of the group that begins with this field; empty: none begins
  std::u16string help;     // a line that is shown while the field has the focus
  std::vector<std::u16string> placeholders = {};  // of its boxes, from left to right
  std::u16string value;                           // to start from
  bool required = false;
  // Gives a new field its properties and its kind.
  std::function<void(Gabarito&)> set_up;
};

struct FormSpec {
  std::u16string title = u"Formulário";
  std::u16string finish = u"Concluir";  // on the button
  std::vector<FieldSpec> fields;
};

// The value of a field that has passed.
struct FieldValue {
  std::string name;
  std::u16string text;  // of an empty field nothing, whatever stands between its boxes
  bool empty;
};

}  // namespace gabarito::terminal

#endif  // HOSTS_TERMINAL_FORM_SPEC_H
