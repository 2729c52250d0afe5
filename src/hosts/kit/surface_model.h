// The model of the control surface.
#ifndef HOSTS_KIT_SURFACE_MODEL_H
#define HOSTS_KIT_SURFACE_MODEL_H

#include <utility>

#include "gabarito/platform/user_control.h"
#include "hosts/kit/changes.h"
#include "hosts/kit/design.h"
#include "hosts/kit/focusable.h"

namespace gabarito::kit {

struct FieldParts;

class SurfaceModel final : public UserControl, public Focusable {
 public:
  explicit SurfaceModel(FieldParts& parts) : parts_(parts) {}

  float Width() const override { return bounds_.width; }
  float Height() const override { return bounds_.height; }
  void Height(float height) override;
  void BackColor(gabarito::Color color) override;
  FontRef Font() const override { return font_; }
  void Font(const FontRef& font) override;
  const AmbientProperties& Ambient() const override;
  void PropertyChanged(std::u16string_view name) override;
  // The pass after the event shows it.
  void Refresh() override {}
  void Settle() override;

  std::string_view Name() const override { return "field"; }
  Control& Owner() override;
  bool CanTakeFocus() const override;
  void GotFocus() override;

  // The host sizes the field, in twips. Raises Resize if the size changes, and 380 on a negative one; then
  // settles the focus.
  void Size(float width, float height);
  // Raises Resize as it stands.
  void RaiseResize();

  const Geometry& Bounds() const { return bounds_; }
  gabarito::Color Color() const { return color_; }
  Changes TakeChanges() { return std::exchange(changes_, Changes()); }

 private:
  void Resize(float width, float height);

  FieldParts& parts_;
  Geometry bounds_ = kSurface;
  gabarito::Color color_ = kSurfaceColor;
  Changes changes_;
  FontRef font_ = std::make_shared<StdFont>();
};

}  // namespace gabarito::kit

#endif  // HOSTS_KIT_SURFACE_MODEL_H
