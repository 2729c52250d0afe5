#include "hosts/memory/field.h"

namespace gabarito::memory {
namespace {

constexpr const ChildDesign& Design(std::string_view name) {
  for (const ChildDesign& design : kChildren) {
    if (design.name == name) return design;
  }
  throw Erro(kSubscriptOutOfRange);
}

}  // namespace

FieldParts::FieldParts(Field& field, Form& form, Control& owner)
    : surface(field, form, owner),
      lbl_controle{{field, form, Design("lbl_controle(0)")},
                   {field, form, Design("lbl_controle(1)")},
                   {field, form, Design("lbl_controle(2)")}},
      txt_entrada{{field, form, owner, Design("txt_entrada(0)"), Look::kFlat, 0},
                  {field, form, owner, Design("txt_entrada(1)"), Look::kFlat, 1},
                  {field, form, owner, Design("txt_entrada(2)"), Look::kFlat, 2}},
      txt_entrada3D{{field, form, owner, Design("txt_entrada3D(0)"), Look::k3D, 0},
                    {field, form, owner, Design("txt_entrada3D(1)"), Look::k3D, 1},
                    {field, form, owner, Design("txt_entrada3D(2)"), Look::k3D, 2}},
      MaskEdBox1(field, form, owner, Design("MaskEdBox1")),
      Combo1(field, form, owner, Design("Combo1")),
      gabarito(Host{.txt_entrada = {&txt_entrada[0], &txt_entrada[1], &txt_entrada[2]},
                    .txt_entrada3D = {&txt_entrada3D[0], &txt_entrada3D[1], &txt_entrada3D[2]},
                    .lbl_controle = {&lbl_controle[0], &lbl_controle[1], &lbl_controle[2]},
                    .Combo1 = &Combo1,
                    .MaskEdBox1 = &MaskEdBox1,
                    .UserControl = &surface,
                    .Dialogs = form.System().voice,
                    .Clock = &form.System().clock,
                    .User32 = &form.AllWindows(),
                    .Kernel32 = &form.System().kernel,
                    .Regional = &form.System().kernel.regional}) {}

std::array<Focusable*, 8> FieldParts::InTabOrder() {
  return {&txt_entrada[0], &txt_entrada[1],   &txt_entrada[2],   &MaskEdBox1,
          &Combo1,         &txt_entrada3D[0], &txt_entrada3D[1], &txt_entrada3D[2]};
}

Field::~Field() { End(); }

FieldParts& Field::Parts() const {
  if (parts_ == nullptr) throw Erro(kObjectNotSet);
  return *parts_;
}

void Field::Place() {
  End();
  parts_ = std::make_unique<FieldParts>(*this, form_, *this);
  parts_->gabarito.UserControl_Initialize();
}

void Field::Create() {
  Place();
  parts_->gabarito.UserControl_Show();
}

void Field::Load(const PropertyBag& bag) {
  Place();
  parts_->gabarito.UserControl_ReadProperties(bag);
  parts_->gabarito.UserControl_Show();
}

void Field::End() {
  if (parts_ == nullptr) return;
  form_.Forget(*this);
  form_.AllWindows().Close(parts_->Combo1.Window());
  parts_->gabarito.UserControl_Terminate();
  parts_.reset();
}

void Field::TabStops(std::vector<Focusable*>& stops) {
  if (parts_ == nullptr) return;
  for (Focusable* child : parts_->InTabOrder()) stops.push_back(child);
}

void Field::ExitFocus() {
  if (Recorder* recorder = form_.System().recorder) recorder->ExitFocus();
  parts_->gabarito.UserControl_ExitFocus();
}

}  // namespace gabarito::memory
