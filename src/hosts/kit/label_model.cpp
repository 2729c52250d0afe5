#include "hosts/kit/label_model.h"

#include "hosts/kit/field_parts.h"

namespace gabarito::kit {

void LabelModel::FitCaption() {
  if (!auto_size_) return;
  bounds_.width = parts_.form->services.metric->TextWidth(caption_, *font_);
  Note(Change::kGeometry);
}

void LabelModel::Caption(std::u16string_view caption) {
  caption_ = caption;
  Note(Change::kText);
  FitCaption();
}

void LabelModel::AutoSize(bool on) {
  auto_size_ = on;
  FitCaption();
}

void LabelModel::Font(const FontRef& font) {
  ChildModel::Font(font);
  FitCaption();
}

}  // namespace gabarito::kit
