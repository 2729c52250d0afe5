// The smallest host over the kit: one field on a line of text. What is typed is the argument, the boxes are
// shown after each key.
//
//   smallest_host 5/3/24
//
// A toolkit puts widgets where this one prints; docs/architecture.md tells the duties one by one.
#include <iostream>
#include <map>
#include <memory>
#include <string>

#include "hosts/kit/comfort.h"
#include "hosts/kit/field_model.h"
#include "hosts/kit/key_protocol.h"
#include "hosts/kit/message_buttons.h"
#include "hosts/kit/own_entry.h"
#include "hosts/kit/regional_kernel.h"
#include "hosts/kit/system_clock.h"
#include "hosts/kit/utf8.h"

namespace {

namespace kit = gabarito::kit;

// Messages: a host that cannot wait shows the text and gives the default answer.
class PrintedDialogs final : public gabarito::Dialogs {
 public:
  std::int32_t MsgBox(std::u16string_view text, std::int32_t flags,
                      std::optional<std::u16string_view>) override {
    std::cout << "! " << kit::ToUtf8(text) << '\n';
    return kit::DefaultAnswer(flags);
  }
  void Beep() override { std::cout << "(beep)\n"; }
};

// The form: where Tab goes, and how a key is delivered. Here the models are the entries themselves.
class LineForm final : public kit::FormModel {
 public:
  using FormModel::FormModel;

 private:
  void Deliver(const kit::KeyEvent& event) override {
    kit::Focusable* const focused = focus.Focused();
    if (event.up || focused == nullptr || focused->Input() == nullptr) return;
    const auto held = focused->Owner().Hold();
    if (event.vk == gabarito::kVkTab) {
      if (!kit::StepBackInside(*this, event)) Next(*focused);
      return;
    }
    kit::InputModel& child = *focused->Input();
    std::int16_t vk = event.unicode != 0 ? gabarito::kVkPacket : event.vk, shift = event.shift;
    child.KeyDown(vk, shift);
    if (!kit::ActOnKeyDown(child, vk, shift, clipboard_)) return;
    const char16_t character = keyboard.CharacterOf(event);
    if (character != 0) kit::ActOnCharacter(child, kit::RaiseKeyPress(child, character), clipboard_);
  }

  // The next child that can take the focus; the last one keeps it.
  void Next(kit::Focusable& from) {
    bool behind = false;
    for (kit::InputModel* const child : from.Input()->Parts().InTabOrder()) {
      if (behind && child->CanTakeFocus()) return focus.Move(*child);
      behind = behind || child == from.Input();
    }
  }

  std::u16string clipboard_;
};

// What a screen would show: boxes, list and separators from left to right.
void Show(kit::FieldParts& parts) {
  std::map<float, std::string> shown;
  const auto show = [&](const auto& child, std::u16string_view text, const char* frame) {
    if (child.IsVisible()) shown[child.Bounds().left] += frame[0] + kit::ToUtf8(text) + frame[1];
  };
  for (const kit::TextBoxModel& box : parts.txt_entrada3D) show(box, box.Text(), "[]");
  for (const kit::LabelModel& label : parts.lbl_controle) show(label, label.Shown(), "  ");
  show(parts.MaskEdBox1, parts.MaskEdBox1.Text(), "[]");
  show(parts.Combo1, parts.Combo1.Text(), "<>");
  for (const auto& [left, text] : shown) std::cout << text;
  std::cout << '\n';
}

}  // namespace

int main(int argc, char** argv) {
  const auto typed = kit::ToUtf16(argc > 1 ? argv[1] : "5/3/24");
  if (!typed) {
    std::cerr << "smallest_host: what is typed has to be UTF-8\n";
    return 2;
  }
  PrintedDialogs dialogs;
  kit::SystemClock clock;
  kit::RegionalKernel kernel;
  kit::FixedFontMetric metric;
  const auto form = std::make_shared<LineForm>(kit::Services{.dialogs = &dialogs,
                                                             .clock = &clock,
                                                             .kernel = &kernel,
                                                             .regional = &kernel.regional,
                                                             .metric = &metric,
                                                             .ambient = nullptr,
                                                             .painting = nullptr,
                                                             .window_hook = nullptr,
                                                             .decorate = {}});
  form->comfort = true;
  kit::FieldModel field(form, "date");
  field.Create();
  field->Mask(gabarito::gbData);
  form->focus.Move(*field.Surface());
  for (const char16_t character : *typed) {
    form->keyboard.PressCharacter(character);
    form->Run();
    Show(field.Parts());
  }
  field.Parts().ExitFocus();  // the focus leaves
  std::cout << "Text: " << kit::ToUtf8(field->Text()) << '\n';
}
