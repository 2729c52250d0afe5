// What the children of a field have in common: place, look, and the fault switch in front of each member.
#ifndef HOSTS_MEMORY_WIDGET_H
#define HOSTS_MEMORY_WIDGET_H

#include <string_view>

#include "gabarito/platform/erro.h"
#include "gabarito/platform/label.h"
#include "hosts/memory/design.h"
#include "hosts/memory/environment.h"
#include "hosts/memory/focusable.h"
#include "hosts/memory/form.h"

namespace gabarito::memory {

class Field;

inline void RefuseNegative(float length) {
  if (length < 0) throw Erro(kInvalidPropertyValue);
}

// Implements the members of Child for one of the children's interfaces. What the host itself asks goes
// through members that the fault switch does not see: Bounds, IsVisible, Color.
template <class Interface>
class Widget : public Interface {
 public:
  using Interface::BackColor;
  using Interface::Visible;

  Widget(Field& field, Form& form, const ChildDesign& design)
      : field_(field), form_(form), design_(design), bounds_(design.geometry), color_(design.backColor) {}

  void Move(float left, std::optional<float> top, std::optional<float> width,
            std::optional<float> height) override {
    Use("Move");
    RefuseNegative(width.value_or(0));
    RefuseNegative(height.value_or(0));
    bounds_ = {left, top.value_or(bounds_.top), width.value_or(bounds_.width),
               height.value_or(bounds_.height)};
  }
  void Visible(bool visible) override {
    Use("Visible");
    visible_ = visible;
    if (!visible) form_.Unsettle();
  }
  void BackColor(gabarito::Color color) override {
    Use("BackColor");
    color_ = color;
  }
  void Font(const FontRef& font) override {
    Use("Font");
    if (font == nullptr) throw Erro(kObjectNotSet);
    font_ = font;
  }

  const Geometry& Bounds() const { return bounds_; }
  bool IsVisible() const { return visible_; }
  gabarito::Color Color() const { return color_; }
  std::string_view ChildName() const { return design_.name; }

 protected:
  // Members that are const read.
  void Use(std::string_view member) const { form_.System().faults.Use(design_.name, member, Access::kRead); }
  void Use(std::string_view member) { form_.System().faults.Use(design_.name, member, Access::kWrite); }

  Field& field_;
  Form& form_;
  const ChildDesign& design_;
  Geometry bounds_;
  bool visible_ = true;
  gabarito::Color color_;
  FontRef font_ = std::make_shared<StdFont>();
};

// Adds what the three children that take input share. `Line` is the engine of the entry: EditLine or
// MaskedEdit.
template <class Interface, class Line>
class InputWidget : public Widget<Interface>, public Focusable {
 public:
  using Interface::Enabled;

  InputWidget(Field& field, Form& form, Control& owner, const ChildDesign& design)
      : Widget<Interface>(field, form, design), owner_(owner) {
    line_.Text(design.text);
  }

  std::u16string_view Text() const override {
    this->Use("Text");
    return line_.Text();
  }
  void Text(std::u16string_view text) override {
    this->Use("Text");
    line_.Text(text);
  }
  std::int32_t SelStart() const override {
    this->Use("SelStart");
    return line_.SelStart();
  }
  void SelStart(std::int32_t start) override {
    this->Use("SelStart");
    line_.SelStart(start);
  }
  std::int32_t SelLength() const override {
    this->Use("SelLength");
    return line_.SelLength();
  }
  void SelLength(std::int32_t length) override {
    this->Use("SelLength");
    line_.SelLength(length);
  }
  void Enabled(bool enabled) override {
    this->Use("Enabled");
    enabled_ = enabled;
    if (!enabled) this->form_.Unsettle();
  }
  void SetFocus() override {
    this->Use("SetFocus");
    this->form_.SetFocus(*this);
  }

  std::string_view Name() const override { return this->design_.name; }
  Control& Owner() override { return owner_; }
  bool CanTakeFocus() const override { return this->visible_ && enabled_; }

  Line& Entry() { return line_; }
  const Line& Entry() const { return line_; }
  bool IsEnabled() const { return enabled_; }

 protected:
  Control& owner_;
  Line line_;
  bool enabled_ = true;
  std::int32_t anchor_ = 0;  // where a selection by keys began
};

}  // namespace gabarito::memory

#endif  // HOSTS_MEMORY_WIDGET_H
