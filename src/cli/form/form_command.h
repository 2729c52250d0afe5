// `gabarito form`: an interactive form in the terminal.
#ifndef CLI_FORM_FORM_COMMAND_H
#define CLI_FORM_FORM_COMMAND_H

#include <string>

#include "cli/form/form_output.h"

namespace gabarito::cli {

// The status of a form that the person has given up.
inline constexpr int kGivenUp = 130;

struct FormOptions {
  std::string fields_file;  // a list of fields (form_list.h); empty: a field of every kind
  FormOutput output;
};

// Runs the form on the terminal until the person leaves, and writes the values on standard output.
//
// 0, kGivenUp, or 128 and the number of the signal that ended it, with nothing written in the last two cases.
// UsageError on a bad list of fields or without a terminal.
int RunForm(const FormOptions& options);

}  // namespace gabarito::cli

#endif  // CLI_FORM_FORM_COMMAND_H
