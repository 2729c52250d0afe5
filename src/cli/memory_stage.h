// The stage of the in-memory host: what `gabarito script` plays on.
#ifndef CLI_MEMORY_STAGE_H
#define CLI_MEMORY_STAGE_H

#include "hosts/memory/form.h"
#include "script/stage.h"

namespace gabarito::cli {

class MemoryStage final : public script::Stage {
 public:
  MemoryStage();

  std::string_view Name() const override { return "memory"; }
  kit::ScriptedServices& Services() override { return form_.System(); }
  kit::FieldModel& Field() override { return field_; }
  kit::Focusable& Before() override;
  kit::Focusable& After() override;
  void Type(std::u16string_view text) override { form_.Type(text); }
  void Press(std::int16_t vk, std::int16_t shift) override { form_.Press(vk, shift); }
  void Paste(std::u16string_view text) override { form_.Paste(text); }
  bool Select(std::int32_t start, std::int32_t length) override;
  void Run() override { form_.Run(); }
  void SendMessage(std::int32_t message, bool toAnotherWindow) override;

  // What the script drives, for a look behind the transcript.
  memory::Form& TheForm() { return form_; }

 private:
  memory::Form form_;
  memory::PlainBox& before_;
  memory::Field& field_;
  memory::PlainBox& after_;
  WindowHandle other_window_;
};

}  // namespace gabarito::cli

#endif  // CLI_MEMORY_STAGE_H
