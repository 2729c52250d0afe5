// The composite of one life of a field: its surface, its eleven children at their design values, and the way
// from them to the field's handlers.
#ifndef HOSTS_KIT_FIELD_PARTS_H
#define HOSTS_KIT_FIELD_PARTS_H

#include <array>
#include <memory>
#include <optional>

#include "gabarito/control/field_events.h"
#include "hosts/kit/combo_model.h"
#include "hosts/kit/form_model.h"
#include "hosts/kit/label_model.h"
#include "hosts/kit/masked_model.h"
#include "hosts/kit/surface_model.h"
#include "hosts/kit/text_box_model.h"

namespace gabarito::kit {

// Shared: whatever runs in the field holds it, so that it outlives a field that ends inside a handler of its
// own.
struct FieldParts final : Control, std::enable_shared_from_this<FieldParts> {
  FieldParts(std::shared_ptr<FormModel> form, Dialogs* voice);
  FieldParts(const FieldParts&) = delete;
  FieldParts& operator=(const FieldParts&) = delete;

  std::shared_ptr<FormModel> form;
  RecordedDialogs dialogs;
  SurfaceModel surface;
  LabelModel lbl_controle[3];
  TextBoxModel txt_entrada[3];
  TextBoxModel txt_entrada3D[3];
  MaskedModel MaskEdBox1;
  ComboModel Combo1;

  // The eight children that take input, in the order of TabIndex.
  std::array<InputModel*, 8> InTabOrder();

  // Between Initialize and Terminate. A child of a field that has ended takes no focus.
  bool Live() const { return events_.has_value() && !Ending(); }

  // Raises a handler of the field; nothing happens when the field has ended.
  template <class Handler>
  void Raise(Handler handler) {
    if (!Live()) return;
    const Held held(*this);
    handler(*events_);
  }

  void TabStops(std::vector<Focusable*>& stops) override;
  void ExitFocus() override;
  Focusable* Surface() override { return &surface; }

 private:
  friend class FieldModel;
  Host AsHost();
  void Ended() override;

  // The state holds the parts and the parts the state, so both are there for as long as this is set.
  std::optional<FieldEvents> events_;
};

}  // namespace gabarito::kit

#endif  // HOSTS_KIT_FIELD_PARTS_H
