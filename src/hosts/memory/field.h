// One field on a form: a Gabarito with its surface and its eleven children.
#ifndef HOSTS_MEMORY_FIELD_H
#define HOSTS_MEMORY_FIELD_H

#include <array>
#include <memory>
#include <string>

#include "gabarito/control/gabarito.h"
#include "hosts/memory/combo_widget.h"
#include "hosts/memory/label_widget.h"
#include "hosts/memory/masked_widget.h"
#include "hosts/memory/surface_widget.h"
#include "hosts/memory/text_box_widget.h"

namespace gabarito::memory {

// The composite of one life: children at their design values and the field that works with them.
struct FieldParts {
  FieldParts(Field& field, Form& form, Control& owner);
  FieldParts(const FieldParts&) = delete;

  SurfaceWidget surface;
  LabelWidget lbl_controle[3];
  TextBoxWidget txt_entrada[3];
  TextBoxWidget txt_entrada3D[3];
  MaskedWidget MaskEdBox1;
  ComboWidget Combo1;
  gabarito::Gabarito gabarito;

  // The eight children that take input, in the order of TabIndex.
  std::array<Focusable*, 8> InTabOrder();
};

// A control of the form that holds at most one field at a time. There is none before Create, Load or Place;
// using it then raises 91. Not to be ended or replaced from a handler of that very field, nor while a message
// box of its own is open: its parts go with it.
class Field final : public Control {
 public:
  Field(Form& form, std::string name) : form_(form), name_(std::move(name)) {}
  ~Field() override;

  const std::string& Name() const { return name_; }

  // A field as freshly placed: Initialize, Show. Ends the present one first.
  void Create();
  // The same with stored state: Initialize, ReadProperties, Show.
  void Load(const PropertyBag& bag);
  // Initialize alone.
  void Place();
  // Terminate; the focus leaves without an event.
  void End();

  bool Exists() const { return parts_ != nullptr; }
  FieldParts& Parts() const;
  gabarito::Gabarito& operator*() const { return Parts().gabarito; }
  gabarito::Gabarito* operator->() const { return &Parts().gabarito; }

  void TabStops(std::vector<Focusable*>& stops) override;
  void ExitFocus() override;
  Focusable* Surface() override { return parts_ == nullptr ? nullptr : &parts_->surface; }

 private:
  Form& form_;
  std::string name_;
  std::unique_ptr<FieldParts> parts_;
};

}  // namespace gabarito::memory

#endif  // HOSTS_MEMORY_FIELD_H
