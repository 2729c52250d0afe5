// `gabarito form`: an interactive form in the terminal.
#ifndef CLI_FORM_FORM_COMMAND_H
#define CLI_FORM_FORM_COMMAND_H

#include <string>

namespace gabarito::cli {

// What the program's help says about the command.
extern const char* const kFormHelp;

// Runs the form on the terminal until the person leaves, and writes the values as one JSON object on standard
// output. `fieldsFile` is a list of fields (field_list.h); without one there is a field of every kind.
//
// 0, or 128 and the number of the signal that ended it, with nothing written. UsageError on a bad list of
// fields or without a terminal.
int RunForm(const std::string& fieldsFile);

}  // namespace gabarito::cli

#endif  // CLI_FORM_FORM_COMMAND_H
