#include "cli/form/form_command.h"

#include <iostream>

#include "cli/form/form_list.h"
#include "cli/names.h"
#include "hosts/kit/system_clock.h"
#include "hosts/terminal/form_session.h"
#include "hosts/terminal/terminal.h"

namespace gabarito::cli {

const char* const kFormHelp =
    R"(Shows a form in the terminal and prints the values when it is finished, so that a script can use them:
values=$(gabarito form) || exit. Keys come from standard input, which has to be a terminal.

Enter and Tab go to the next field, Shift+Tab goes back, F4 opens a list, F1 shows all keys. F10 and the button finish
the form: every field is checked, and one that refuses what it holds, or is required and empty, keeps the person there
and says why. Esc (after a question) and Ctrl+C with nothing selected give the form up.

A list of fields: {"title": "Cliente", "fields": [{"name": "cpf", "mask": "gbCPF", "label": "CPF", "required": true}]}
or the array alone; docs/form.md tells all keys. An empty field gives "".

The exit status is 0, 2 when there is no terminal or the list is wrong, 130 when the form was given up, and 128 and
the number of a signal that ended it; nothing is printed but with 0. NO_COLOR is honoured.)";

int RunForm(const FormOptions& options) {
  // The list is judged first: what is wrong with it is told with or without a terminal.
  terminal::FormSpec form =
      ForTerminal(options.fields_file.empty() ? BuiltInForm() : ReadFormListFile(options.fields_file));
  CheckNames(form.fields, options.output.format);
  terminal::FormModel model(std::move(form), [] { return kit::SystemClock().Now(); });
  std::optional<std::vector<terminal::FieldValue>> values;
  // The terminal is given back before anything is written to it.
  try {
    terminal::Terminal terminal;
    values = terminal::FormSession(model, terminal).Run();
  } catch (const terminal::Interrupted& interrupted) {
    return 128 + interrupted.signal;
  } catch (const terminal::NoTerminal& error) {
    throw UsageError(std::string("form: ") + error.what());
  }
  if (!values) return kGivenUp;
  std::cout << Rendered(*values, options.output);
  return 0;
}

}  // namespace gabarito::cli
