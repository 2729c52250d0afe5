// One field on a stage, driven from a text. docs/script.md is the language.
#ifndef SCRIPT_SCRIPT_H
#define SCRIPT_SCRIPT_H

#include <functional>
#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "script/stage.h"
#include "script/transcript.h"

namespace gabarito::script {

class Script {
 public:
  // Everything that happens on the stage is written to `out`. Both outlive the script; the stage has no field
  // yet.
  Script(Stage& stage, std::ostream& out);
  ~Script();

  // Carries one line out. Throws UsageError, with nothing carried out, on a line that is not understood.
  void Line(std::string_view line);

  // Takes what a person should know about a line that was carried out all the same; not part of what happens.
  std::function<void(const std::string& remark)> onRemark;

  // Writes an error that has reached the host between two lines.
  void Error(const Erro& erro) { transcript_.Error(erro); }

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
  void Comfort(std::string_view rest);
  void Dump(std::string_view rest);

  void ReadyForField();
  void ListenToKeyUp();
  kit::Focusable& Receiver(std::string_view name);
  kit::FieldModel& TheField() { return stage_.Field(); }
  kit::FormModel& Form() { return stage_.Form(); }

  Stage& stage_;
  Transcript transcript_;
  std::optional<std::int16_t> key_code_;  // what the host's KeyUp handler writes
};

// Whether the lines of a story are for the stage of this name: a first line "#@ memory qt" names those that
// it is for; without one it is for all.
bool IsFor(std::string_view firstLine, std::string_view stage);

using MakeStage = std::function<std::unique_ptr<Stage>()>;

// Runs each file on a fresh stage; "-" or no file at all is `in`. With more than one, {"file":"NAME"} stands
// in front of what each writes; one that is for other stages is skipped with a word on `err`. 0 when every
// line was understood; 2 at the first that was not, or that could not be read, with file, number and reason
// on `err`, where `program` is the name in front.
int RunScripts(const std::vector<std::string>& files, const MakeStage& makeStage, std::istream& in,
               std::ostream& out, std::ostream& err, std::string_view program);

}  // namespace gabarito::script

#endif  // SCRIPT_SCRIPT_H
