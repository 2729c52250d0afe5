#include "hosts/kit/look.h"

#include "hosts/kit/message_buttons.h"

namespace gabarito::kit {
namespace {

class SilentDialogs final : public Dialogs {
 public:
  std::int32_t MsgBox(std::u16string_view, std::int32_t flags, std::optional<std::u16string_view>) override {
    return DefaultAnswer(flags);
  }
  void Beep() override {}
};

class SilentForm final : public FormModel {
 public:
  explicit SilentForm(const Services& itsServices) : FormModel(itsServices) {}

 protected:
  void Deliver(const KeyEvent&) override {}
};

void Copy(FieldParts& from, FieldParts& to) {
  const auto sources = from.InTabOrder();
  const auto targets = to.InTabOrder();
  for (std::size_t i = 0; i < sources.size(); ++i) {
    if (sources[i]->Kind() == InputKind::kMasked) {
      to.MaskEdBox1.Mask(from.MaskEdBox1.Mask());
      to.MaskEdBox1.Text({});
      to.MaskEdBox1.Text(from.MaskEdBox1.Text());
    } else {
      targets[i]->AsChild().Text(sources[i]->AsChild().Text());
    }
  }
}

}  // namespace

std::u16string ValueNow(FieldModel& field) {
  SilentDialogs dialogs;
  Services services = field.Form().services;
  services.dialogs = &dialogs;
  services.decorate = nullptr;
  FieldModel copy(std::make_shared<SilentForm>(services), field.Name());
  copy.Create();
  copy->Appearance(field->Appearance());
  copy->MaxLength(field->MaxLength());
  copy->PreencherDatasInvalidasComDataDeHoje(field->PreencherDatasInvalidasComDataDeHoje());
  copy->CNPJAlfanumerico(field->CNPJAlfanumerico());
  copy->ComboItens(field->ComboItens());
  copy->Mask(field->Mask());
  Copy(field.Parts(), copy.Parts());
  return copy->Text();
}

}  // namespace gabarito::kit
