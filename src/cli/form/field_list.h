// Which fields the interactive form shows: its own, or those of a JSON text.
//
//   {"fields": [{"name": "cpf", "mask": "gbCPF", "label": "CPF", "set": {"Appearance": 0}}, ...]}
//
// or the array alone. `mask` is a name or a number; `label` is the name if it is left out, and `name` the
// label; `set` holds public properties with their values.
#ifndef CLI_FORM_FIELD_LIST_H
#define CLI_FORM_FIELD_LIST_H

#include <string>
#include <string_view>
#include <vector>

#include "cli/names.h"
#include "hosts/terminal/form_model.h"

namespace gabarito::cli {

struct ListedField {
  std::string name;  // the key of its value; UTF-8
  std::u16string label;
  std::int32_t mask = 0;
  Json set = Json::object();
  std::string where;  // for messages: field 2 ("cpf")
};

// The fields as a form takes them. Shaping one raises UsageError, with the place, when a property does not
// exist or does not take its value.
std::vector<terminal::FieldSpec> ForForm(std::vector<ListedField> fields);

// A field of each kind, labelled in Portuguese.
std::vector<ListedField> BuiltInFields();

// UsageError in one line, with the place, on a text that is no such list: not JSON, an unknown key or mask, a
// value of the wrong type, a name given twice, no field at all. Properties are judged when they are set.
std::vector<ListedField> ReadFieldList(std::string_view json);

// The same from a file; messages begin with its name. std::system_error when it cannot be read.
std::vector<ListedField> ReadFieldListFile(const std::string& file);

}  // namespace gabarito::cli

#endif  // CLI_FORM_FIELD_LIST_H
