#include "hosts/kit/keep_content.h"

namespace gabarito::kit {

KeepContent::KeepContent(FieldModel& field) : parts_(field.SharedParts()) {
  if (parts_ == nullptr) return;
  Kept* kept = kept_;
  for (InputModel* const child : parts_->InTabOrder()) {
    const InputChild& box = child->AsChild();
    *kept++ = {std::u16string(box.Text()), box.SelStart(), box.SelLength()};
  }
  selected_ = parts_->Combo1.Selected();
}

KeepContent::~KeepContent() {
  if (parts_ == nullptr || !parts_->Live()) return;
  const Kept* kept = kept_;
  for (InputModel* const child : parts_->InTabOrder()) {
    const Kept& was = *kept++;
    InputChild& box = child->AsChild();
    if (child->Kind() == InputKind::kMasked || box.Text() == was.text) continue;
    if (child == &parts_->Combo1 && selected_ >= 0 && parts_->Combo1.List(selected_) == was.text) {
      parts_->Combo1.ListIndex(selected_);
    } else {
      box.Text(was.text);
    }
    box.SelStart(was.start);
    box.SelLength(was.length);
  }
}

}  // namespace gabarito::kit
