// What happens on a form, as one JSON object a line.
#ifndef SCRIPT_TRANSCRIPT_H
#define SCRIPT_TRANSCRIPT_H

#include <iosfwd>

#include "gabarito/platform/erro.h"
#include "hosts/kit/recorder.h"
#include "script/properties.h"

namespace gabarito::script {

class Transcript final : public kit::Recorder {
 public:
  explicit Transcript(std::ostream& out) : out_(out) {}

  // One object on a line of its own, in UTF-8, without blanks.
  void Write(const Json& object);
  void Error(const Erro& erro);
  void KeyUp(std::int16_t code, std::int16_t shift);

  void PropertyChanged(std::u16string_view name) override;
  void MsgBox(std::u16string_view text, std::int32_t flags, std::optional<std::u16string_view> title,
              std::int32_t answer) override;
  void Beep() override;
  void SendKeys(std::u16string_view text, bool wait) override;
  void SendInput(std::span<const INPUT> events) override;
  void Focus(const kit::Focusable& to) override;
  void ExitFocus() override;
  void Resize() override;
  void DrawEdge(const RECT& rectangle, std::int32_t edge, std::int32_t flags) override;
  void OldWindowProc(std::int32_t message) override;
  void Trace(std::u16string_view text) override;

 private:
  std::ostream& out_;
};

}  // namespace gabarito::script

#endif  // SCRIPT_TRANSCRIPT_H
