// The values of a form, in the shapes that scripts read.
#ifndef CLI_FORM_FORM_OUTPUT_H
#define CLI_FORM_FORM_OUTPUT_H

#include <string>
#include <vector>

#include "hosts/terminal/form_spec.h"

namespace gabarito::cli {

enum class FormFormat {
  kJson,   // one object, name to value, on a line
  kEnv,    // name='value', a line each, for eval in a shell
  kTsv,    // name, TAB, value, a line each; TAB and line breaks in a value as \t, \n and \r
  kPrint0  // the values alone, each ended by NUL
};

struct FormOutput {
  FormFormat format = FormFormat::kJson;
  bool nulls = false;  // an empty field is null, not ""; JSON alone
};

// UsageError when a field has a name that the format has no place for: kEnv takes letters, digits and _
// alone.
void CheckNames(const std::vector<terminal::FieldSpec>& fields, FormFormat format);

std::string Rendered(const std::vector<terminal::FieldValue>& values, const FormOutput& output);

}  // namespace gabarito::cli

#endif  // CLI_FORM_FORM_OUTPUT_H
