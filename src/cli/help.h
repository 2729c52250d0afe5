// The longer texts of the program's help, in English.
#ifndef CLI_HELP_H
#define CLI_HELP_H

#include <string_view>

namespace gabarito::cli {

inline constexpr std::string_view kProgramHelp =
    "Gabarito: one input field for Brazilian forms that is 23 kinds of field.";

inline constexpr std::string_view kExitStatuses =
    "Exit status: 0 nothing was refused, 1 the field refused something, 2 a usage error.";

// Behind the list of the properties.
inline constexpr std::string_view kPropertyHelp =
    "Texts stand as they are or as a JSON string, numbers decimal or 0x..., ComboItens and Font as JSON.\n"
    "They are set in the order given and Mask after them, so that ComboItens, MaskText and MaxLength\n"
    "are in place when the kind takes its shape; ComboListIndex and Text come behind Mask.";

inline constexpr std::string_view kFormHelp =
    R"(Shows a form in the terminal and prints the values when it is finished, so that a script can use them:
values=$(gabarito form) || exit. Keys come from standard input, which has to be a terminal.

Enter and Tab go to the next field, Shift+Tab goes back, F4 opens a list, F1 shows all keys. F10 and the button finish
the form: every field is checked, and one that refuses what it holds, or is required and empty, keeps the person there
and says why. Esc (after a question) and Ctrl+C with nothing selected give the form up.

A list of fields: {"title": "Cliente", "fields": [{"name": "cpf", "mask": "gbCPF", "label": "CPF", "required": true}]}
or the array alone; docs/form.md tells all keys. An empty field gives "".

The exit status is 0, 2 when there is no terminal or the list is wrong, 130 when the form was given up, and 128 and
the number of a signal that ended it; nothing is printed but with 0. NO_COLOR is honoured.)";

}  // namespace gabarito::cli

#endif  // CLI_HELP_H
