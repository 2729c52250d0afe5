// The child behind an InputModel as what it is.
#ifndef HOSTS_KIT_VISIT_INPUT_H
#define HOSTS_KIT_VISIT_INPUT_H

#include "hosts/kit/combo_model.h"
#include "hosts/kit/masked_model.h"
#include "hosts/kit/text_box_model.h"

namespace gabarito::kit {

// Calls `visitor` with a TextBoxModel, a ComboModel or a MaskedModel: for what the three share without a
// common base, such as Bounds, Color or TakeChanges.
template <class Visitor>
decltype(auto) VisitInput(InputModel& child, Visitor visitor) {
  switch (child.Kind()) {
    case InputKind::kCombo:
      return visitor(static_cast<ComboModel&>(child));
    case InputKind::kMasked:
      return visitor(static_cast<MaskedModel&>(child));
    case InputKind::kTextBox:
      break;
  }
  return visitor(static_cast<TextBoxModel&>(child));
}

}  // namespace gabarito::kit

#endif  // HOSTS_KIT_VISIT_INPUT_H
