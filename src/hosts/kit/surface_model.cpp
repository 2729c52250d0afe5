#include "hosts/kit/surface_model.h"

#include "hosts/kit/field_parts.h"

namespace gabarito::kit {

void SurfaceModel::Height(float height) { Resize(bounds_.width, height); }

void SurfaceModel::Size(float width, float height) {
  const auto held = parts_.Hold();
  Resize(width, height);
  Settle();
}

void SurfaceModel::Resize(float width, float height) {
  RefuseNegative(width);
  RefuseNegative(height);
  if (width == bounds_.width && height == bounds_.height) return;
  bounds_.width = width;
  bounds_.height = height;
  changes_.Note(Change::kGeometry);
  RaiseResize();
}

void SurfaceModel::RaiseResize() {
  if (Recorder* const recorder = parts_.form->recorder) recorder->Resize();
  parts_.Raise([](FieldEvents& field) { field.UserControl_Resize(); });
}

void SurfaceModel::BackColor(gabarito::Color color) {
  color_ = color;
  changes_.Note(Change::kColor);
}

void SurfaceModel::Font(const FontRef& font) {
  if (font == nullptr) Fail(kObjectNotSet);
  font_ = font;
  changes_.Note(Change::kFont);
}

const AmbientProperties& SurfaceModel::Ambient() const {
  const AmbientProperties* const ambient = parts_.form->services.ambient;
  if (ambient == nullptr) Fail(kObjectNotSet);
  return *ambient;
}

void SurfaceModel::PropertyChanged(std::u16string_view name) {
  if (Recorder* const recorder = parts_.form->recorder) recorder->PropertyChanged(name);
}

void SurfaceModel::Settle() { parts_.form->focus.Settle(); }

Control& SurfaceModel::Owner() { return parts_; }

bool SurfaceModel::CanTakeFocus() const { return parts_.Live(); }

void SurfaceModel::GotFocus() {
  parts_.Raise([](FieldEvents& field) { field.UserControl_GotFocus(); });
}

}  // namespace gabarito::kit
