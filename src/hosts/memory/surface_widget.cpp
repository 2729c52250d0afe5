#include "hosts/memory/surface_widget.h"

#include "gabarito/platform/erro.h"
#include "hosts/memory/field.h"

namespace gabarito::memory {

float SurfaceWidget::Width() const {
  Use("Width");
  return bounds_.width;
}

float SurfaceWidget::Height() const {
  Use("Height");
  return bounds_.height;
}

void SurfaceWidget::Height(float height) {
  Use("Height");
  Resize(bounds_.width, height);
}

void SurfaceWidget::Size(float width, float height) {
  Resize(width, height);
  Settle();
}

void SurfaceWidget::Resize(float width, float height) {
  RefuseNegative(width);
  RefuseNegative(height);
  if (width == bounds_.width && height == bounds_.height) return;
  bounds_.width = width;
  bounds_.height = height;
  RaiseResize();
}

void SurfaceWidget::RaiseResize() {
  if (Recorder* recorder = form_.System().recorder) recorder->Resize();
  field_->UserControl_Resize();
}

void SurfaceWidget::BackColor(gabarito::Color color) {
  Use("BackColor");
  color_ = color;
}

FontRef SurfaceWidget::Font() const {
  Use("Font");
  return font_;
}

void SurfaceWidget::Font(const FontRef& font) {
  Use("Font");
  if (font == nullptr) throw Erro(kObjectNotSet);
  font_ = font;
}

const AmbientProperties& SurfaceWidget::Ambient() const {
  Use("Ambient");
  if (!form_.System().ambient.available) throw Erro(kObjectNotSet);
  return form_.System().ambient;
}

void SurfaceWidget::PropertyChanged(std::u16string_view name) {
  Use("PropertyChanged");
  if (Recorder* recorder = form_.System().recorder) recorder->PropertyChanged(name);
}

void SurfaceWidget::Refresh() { Use("Refresh"); }

void SurfaceWidget::Settle() { form_.Settle(); }

void SurfaceWidget::GotFocus() { field_->UserControl_GotFocus(); }

}  // namespace gabarito::memory
