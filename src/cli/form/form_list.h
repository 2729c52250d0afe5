// What the interactive form asks for: fields of its own, or those of a JSON text.
//
//   {"title": "Cliente", "finish": "Gravar", "values": "cliente.json",
//    "fields": [{"name": "cpf", "mask": "gbCPF", "label": "CPF", "required": true, "help": "Só os números
//    bastam."},
//               {"group": "Endereço", "fields": [{"name": "cep", "mask": "gbCEP", "default": "01310-100"},
//               ...]}]}
//
// or the array alone. docs/form.md tells each key.
#ifndef CLI_FORM_FORM_LIST_H
#define CLI_FORM_FORM_LIST_H

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "cli/names.h"
#include "hosts/terminal/form_spec.h"
#include "script/json.h"

namespace gabarito::cli {

struct ListedField {
  terminal::FieldSpec spec;  // without a way to set it up
  std::int32_t mask = 0;
  Json set = Json::object();
  std::string where;  // for messages: field 2 ("cpf")
};

struct FormList {
  terminal::FormSpec form;  // without fields
  std::vector<ListedField> fields;
};

// A field of each kind, labelled in Portuguese.
FormList BuiltInForm();

// UsageError in one line, with the place, on a text that is no such list: not JSON, an unknown key or mask, a
// value of the wrong type, a name given twice, a value for a field that is not there, no field at all.
// Properties are judged when they are set. A file of values is looked for in `directory`; std::system_error
// when it cannot be read.
FormList ReadFormList(std::string_view json, const std::filesystem::path& directory = {});

// The same from a file; messages begin with its name.
FormList ReadFormListFile(const std::string& file);

// The form as a terminal takes it. Shaping a field raises UsageError, with the place, when a property does
// not exist or does not take its value.
terminal::FormSpec ForTerminal(FormList list);

}  // namespace gabarito::cli

#endif  // CLI_FORM_FORM_LIST_H
