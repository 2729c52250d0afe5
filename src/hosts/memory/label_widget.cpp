#include "hosts/memory/label_widget.h"

namespace gabarito::memory {

void LabelWidget::FitCaption() {
  if (auto_size_) bounds_.width = form_.System().metric.TextWidth(caption_, *font_);
}

void LabelWidget::Caption(std::u16string_view caption) {
  Use("Caption");
  caption_ = caption;
  FitCaption();
}

void LabelWidget::AutoSize(bool on) {
  Use("AutoSize");
  auto_size_ = on;
  FitCaption();
}

void LabelWidget::Font(const FontRef& font) {
  Widget::Font(font);
  FitCaption();
}

float LabelWidget::Left() const {
  Use("Left");
  return bounds_.left;
}

float LabelWidget::Top() const {
  Use("Top");
  return bounds_.top;
}

float LabelWidget::Width() const {
  Use("Width");
  return bounds_.width;
}

void LabelWidget::BackStyle(std::int32_t style) {
  Use("BackStyle");
  back_style_ = style;
}

void LabelWidget::BorderStyle(std::int32_t style) {
  Use("BorderStyle");
  border_style_ = style;
}

void LabelWidget::Refresh() { Use("Refresh"); }

}  // namespace gabarito::memory
