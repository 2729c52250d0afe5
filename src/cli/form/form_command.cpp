#include "cli/form/form_command.h"

#include <iostream>

#include "cli/form/form_list.h"
#include "cli/names.h"
#include "hosts/kit/system_clock.h"
#include "hosts/terminal/form_session.h"
#include "hosts/terminal/terminal.h"

namespace gabarito::cli {

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
