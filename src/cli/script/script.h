// `gabarito script`: one field on the in-memory host, driven from a text. docs/script.md is the language.
#ifndef CLI_SCRIPT_SCRIPT_H
#define CLI_SCRIPT_SCRIPT_H

#include <iosfwd>
#include <optional>
#include <string_view>

#include "cli/script/transcript.h"
#include "hosts/memory/field.h"
#include "hosts/memory/form.h"
#include "hosts/memory/plain_box.h"

namespace gabarito::cli {

class Script {
 public:
  // Everything that happens is written to `out`, which outlives the script.
  explicit Script(std::ostream& out);

  // Carries one line out. Throws UsageError, with nothing carried out, on a line that is not understood.
  void Line(std::string_view line);

  // What the script drives, for a look behind the transcript.
  memory::Form& TheForm() { return form_; }
  memory::Field& TheField() { return field_; }

 private:
  struct Action;
  static const Action* Find(std::string_view name);

  void New(std::string_view rest);
  void Load(std::string_view rest);
  void Init(std::string_view rest);
  void Raise(std::string_view rest);
  void Save(std::string_view rest);
  void Size(std::string_view rest);
  void Ambient(std::string_view rest);
  void Set(std::string_view rest);
  void Get(std::string_view rest);
  void Call(std::string_view rest);
  void Focus(std::string_view rest);
  void Type(std::string_view rest);
  void Key(std::string_view rest);
  void Keys(std::string_view rest);
  void Paste(std::string_view rest);
  void Select(std::string_view rest);
  void Child(std::string_view rest);
  void Answer(std::string_view rest);
  void OnKeyUp(std::string_view rest);
  void Clock(std::string_view rest);
  void Region(std::string_view rest);
  void Layout(std::string_view rest);
  void CapsLock(std::string_view rest);
  void Fail(std::string_view rest);
  void Hook(std::string_view rest);
  void Unhook(std::string_view rest);
  void Message(std::string_view rest);
  void Dump(std::string_view rest);

  void ReadyForField();
  void ListenToKeyUp();
  memory::Focusable& Receiver(std::string_view name);

  Transcript transcript_;
  memory::Form form_;
  memory::PlainBox& before_;
  memory::Field& field_;
  memory::PlainBox& after_;
  WindowHandle other_window_;
  std::optional<std::int16_t> key_code_;  // what the host's KeyUp handler writes
};

// Runs all lines of `in`. 0 when every line was understood; 2 at the first that was not, with its number and
// the reason on `err`.
int RunScript(std::istream& in, std::ostream& out, std::ostream& err);

}  // namespace gabarito::cli

#endif  // CLI_SCRIPT_SCRIPT_H
