#include <ostream>
#include <utility>

#include "cli/commands.h"
#include "cli/names.h"
#include "cli/one_line.h"
#include "gabarito/keyinject/send_input.h"
#include "hosts/kit/system_clock.h"
#include "hosts/memory/form.h"
#include "hosts/memory/load_check.h"
#include "hosts/memory/plain_box.h"
#include "script/key_check.h"

namespace gabarito::cli {
namespace {

std::u16string Decoded(const std::string& value, const char* option) {
  auto text = ToUtf16(value);
  if (!text) throw UsageError(std::string("the value of ") + option + " is not valid UTF-8");
  return *std::move(text);
}

// Shows message boxes as lines of a stream. Reading the value of a field checks it once more, so what was
// told when the field was left comes again: the same box twice in a row is one line.
class BoxesAsLines final : public kit::Recorder {
 public:
  explicit BoxesAsLines(std::ostream& out) : out_(out) {}

  void MsgBox(std::u16string_view text, std::int32_t, std::optional<std::u16string_view> title,
              std::int32_t) override {
    std::u16string line;
    // A box without a title shows the name of the program that it comes from.
    AppendOnOneLine(title.value_or(u"Gabarito"), line);
    line.append(u": ");
    AppendOnOneLine(text, line);
    if (line == last_) return;
    out_ << ToUtf8(line) << '\n';
    last_ = std::move(line);
  }

  bool Shown() const { return !last_.empty(); }

 private:
  std::ostream& out_;
  std::u16string last_;
};

}  // namespace

int RunField(const FieldCommandOptions& options, std::ostream& out, std::ostream& err) {
  std::u16string text;
  std::u16string keys;
  if (options.text) text = Decoded(*options.text, "--text");
  if (options.keys) keys = Decoded(*options.keys, "--keys");

  if (const auto remark = script::UnknownKeyNames(keys)) err << "gabarito field: --keys: " << *remark << '\n';

  memory::Form form;
  BoxesAsLines boxes(err);
  form.Model().recorder = &boxes;
  form.System().clock.Set(kit::SystemClock().Now());
  memory::Field& field = form.AddField("field");
  memory::PlainBox& behind = form.AddBox("behind");
  field.Create();
  Apply(options.field, *field);

  bool loaded = false;
  if (options.text) {
    field->Text(text);
    loaded = !field->MostraVazio();
  }
  if (options.keys) {
    // By way of the surface, as a host gives the focus: the field picks the child that is on show.
    form.SetFocus(*field.Surface());
    SendKeyString(form.Model().keyboard, form.System().kernel, form.Model().dialogs, keys, true);
    form.Run();
    // Raises the check. A refusal takes the focus back into the field, which changes nothing for what
    // follows.
    form.SetFocus(behind);
  }
  // Raises it too, so that without keys a value is judged once, as in a batch: 00:00 once, not again as an
  // empty time.
  const std::u16string value = field->Text();
  out << ToUtf8(value) << '\n';
  form.Model().recorder = nullptr;
  if (boxes.Shown()) return kRefused;
  if (!options.text || !memory::NothingTaken(text, loaded, value)) return kNothingRefused;
  err << ToUtf8(memory::kNotTaken) << '\n';
  return kRefused;
}

}  // namespace gabarito::cli
