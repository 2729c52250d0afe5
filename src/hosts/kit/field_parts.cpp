#include "hosts/kit/field_parts.h"

#include <utility>

namespace gabarito::kit {
namespace {

consteval const ChildDesign& Design(std::string_view name) {
  for (const ChildDesign& design : kChildren) {
    if (design.name == name) return design;
  }
  Fail(kSubscriptOutOfRange);
}

}  // namespace

const FontRef& DesignFont() {
  static const FontRef font = std::make_shared<StdFont>();
  return font;
}

template <class Interface, class Line>
void InputChildModel<Interface, Line>::Unsettle() {
  Parts().form->focus.Unsettle();
}

template <class Interface, class Line>
void InputChildModel<Interface, Line>::SetFocus() {
  Parts().form->focus.Move(*this);
}

template <class Interface, class Line>
Control& InputChildModel<Interface, Line>::Owner() {
  return Parts();
}

template <class Interface, class Line>
bool InputChildModel<Interface, Line>::CanTakeFocus() const {
  return this->visible_ && enabled_ && Parts().Live();
}

template class InputChildModel<TextBox, TextLine>;
template class InputChildModel<ComboBox, TextLine>;
template class InputChildModel<MaskEdBox, MaskedEdit>;

FieldParts::FieldParts(std::shared_ptr<FormModel> itsForm, Dialogs* voice)
    : form(std::move(itsForm)),
      dialogs(*form, voice),
      surface(*this),
      lbl_controle{{*this, Design("lbl_controle(0)")},
                   {*this, Design("lbl_controle(1)")},
                   {*this, Design("lbl_controle(2)")}},
      txt_entrada{{*this, Design("txt_entrada(0)"), Look::kFlat, 0},
                  {*this, Design("txt_entrada(1)"), Look::kFlat, 1},
                  {*this, Design("txt_entrada(2)"), Look::kFlat, 2}},
      txt_entrada3D{{*this, Design("txt_entrada3D(0)"), Look::k3D, 0},
                    {*this, Design("txt_entrada3D(1)"), Look::k3D, 1},
                    {*this, Design("txt_entrada3D(2)"), Look::k3D, 2}},
      MaskEdBox1(*this, Design("MaskEdBox1")),
      Combo1(*this, Design("Combo1")) {}

std::array<InputModel*, 8> FieldParts::InTabOrder() {
  return {&txt_entrada[0], &txt_entrada[1],   &txt_entrada[2],   &MaskEdBox1,
          &Combo1,         &txt_entrada3D[0], &txt_entrada3D[1], &txt_entrada3D[2]};
}

Host FieldParts::AsHost() {
  const Services& services = form->services;
  return {.txt_entrada = {&txt_entrada[0], &txt_entrada[1], &txt_entrada[2]},
          .txt_entrada3D = {&txt_entrada3D[0], &txt_entrada3D[1], &txt_entrada3D[2]},
          .lbl_controle = {&lbl_controle[0], &lbl_controle[1], &lbl_controle[2]},
          .Combo1 = &Combo1,
          .MaskEdBox1 = &MaskEdBox1,
          .UserControl = &surface,
          .Dialogs = &dialogs,
          .Clock = services.clock,
          .InputQueue = &form->keyboard,
          .Painting = services.painting,
          .WindowHook = services.window_hook,
          .Kernel32 = services.kernel,
          .Regional = services.regional,
          .Filhos = shared_from_this()};
}

void FieldParts::Ended() {
  // The last share of the state may hold the last one of this object.
  const auto last = std::exchange(events_, std::nullopt);
}

void FieldParts::TabStops(std::vector<Focusable*>& stops) {
  if (!Live()) return;
  for (InputModel* child : InTabOrder()) stops.push_back(child);
}

void FieldParts::ExitFocus() {
  if (Recorder* const recorder = form->recorder) recorder->ExitFocus();
  Raise([](FieldEvents& field) { field.UserControl_ExitFocus(); });
}

}  // namespace gabarito::kit
