// The control surface of the in-memory host.
#ifndef HOSTS_MEMORY_SURFACE_WIDGET_H
#define HOSTS_MEMORY_SURFACE_WIDGET_H

#include "gabarito/platform/user_control.h"
#include "hosts/memory/design.h"
#include "hosts/memory/form.h"

namespace gabarito::memory {

class SurfaceWidget final : public UserControl, public Focusable {
 public:
  SurfaceWidget(Field& field, Form& form, Control& owner) : field_(field), form_(form), owner_(owner) {}

  float Width() const override;
  float Height() const override;
  void Height(float height) override;
  void BackColor(gabarito::Color color) override;
  FontRef Font() const override;
  void Font(const FontRef& font) override;
  const AmbientProperties& Ambient() const override;
  void PropertyChanged(std::u16string_view name) override;
  void Refresh() override;
  void Settle() override;

  std::string_view Name() const override { return "field"; }
  Control& Owner() override { return owner_; }
  bool CanTakeFocus() const override { return true; }
  void GotFocus() override;

  // The host sizes the field, in twips. Raises Resize if the size changes, and 380 on a negative one; then
  // settles the focus.
  void Size(float width, float height);
  // Raises Resize as it stands.
  void RaiseResize();

  const Geometry& Bounds() const { return bounds_; }
  gabarito::Color Color() const { return color_; }

 private:
  // Members that are const read.
  void Resize(float width, float height);
  void Use(std::string_view member) const { form_.System().faults.Use("UserControl", member, Access::kRead); }
  void Use(std::string_view member) { form_.System().faults.Use("UserControl", member, Access::kWrite); }

  Field& field_;
  Form& form_;
  Control& owner_;
  Geometry bounds_ = kSurface;
  gabarito::Color color_ = kSurfaceColor;
  FontRef font_ = std::make_shared<StdFont>();
};

}  // namespace gabarito::memory

#endif  // HOSTS_MEMORY_SURFACE_WIDGET_H
