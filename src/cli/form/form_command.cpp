#include "cli/form/form_command.h"

#include <iostream>

#include "cli/form/field_list.h"
#include "cli/names.h"
#include "hosts/kit/system_clock.h"
#include "hosts/terminal/form_session.h"
#include "hosts/terminal/terminal.h"

namespace gabarito::cli {

const char* const kFormHelp =
    R"(Shows a form in the terminal and prints the values as one JSON object, name to value, so that a script
can use it: values=$(gabarito form). Keys come from standard input, which has to be a terminal.

Enter and Tab go to the next field, Shift+Tab goes back, F4 opens a list, Ctrl+C, Ctrl+X and Ctrl+V copy, cut
and paste. The button Sair, F10 and Ctrl+Q leave: the field with the focus is checked as ever, and whoever saw
a message stays in the form. F10 inside a message leaves at once. At the end each value is read once more
without messages: a field that refuses its entry gives what it last accepted, mostly the empty text.

A list of fields: {"fields": [{"name": "cpf", "mask": "gbCPF", "label": "CPF", "set": {"Appearance": 0}}]} or
the array alone. mask is a name or a number, set holds properties; TrataEnterComoTab is true unless set.

The exit status is 0, 2 when there is no terminal or the list is wrong, and 128 and the number of a signal
that ended the form, with nothing printed. NO_COLOR is honoured.)";

int RunForm(const std::string& fieldsFile) {
  // The list is judged first: what is wrong with it is told with or without a terminal.
  terminal::FormModel model(ForForm(fieldsFile.empty() ? BuiltInFields() : ReadFieldListFile(fieldsFile)),
                            [] { return kit::SystemClock().Now(); });
  // The terminal is given back before anything is written to it.
  try {
    terminal::Terminal terminal;
    terminal::FormSession(model, terminal).Run();
  } catch (const terminal::Interrupted& interrupted) {
    return 128 + interrupted.signal;
  } catch (const terminal::NoTerminal& error) {
    throw UsageError(std::string("form: ") + error.what());
  }
  Json values = Json::object();
  for (const auto& [name, value] : model.Values()) values[name] = ToUtf8(value);
  std::cout << values.dump() << '\n';
  return 0;
}

}  // namespace gabarito::cli
