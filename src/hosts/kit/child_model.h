// What the children of a field have in common: place, look, and the notes of what has changed.
#ifndef HOSTS_KIT_CHILD_MODEL_H
#define HOSTS_KIT_CHILD_MODEL_H

#include <string_view>
#include <utility>

#include "gabarito/platform/child.h"
#include "gabarito/platform/erro.h"
#include "hosts/kit/changes.h"
#include "hosts/kit/design.h"
#include "hosts/kit/input_model.h"

namespace gabarito::kit {

struct FieldParts;

inline void RefuseNegative(float length) {
  if (length < 0) Fail(kInvalidPropertyValue);
}

// The font of a child that has not been given one; nobody can reach it to change it.
const FontRef& DesignFont();

// Implements the members of Child for one of the children's interfaces. What only a host asks has names of
// its own: Bounds, IsVisible, Color.
template <class Interface>
class ChildModel : public Interface {
 public:
  using Interface::BackColor;
  using Interface::Visible;

  explicit ChildModel(const ChildDesign& design)
      : design_(design), bounds_(design.geometry), color_(design.backColor) {}
  ChildModel(const ChildModel&) = delete;
  ChildModel& operator=(const ChildModel&) = delete;

  void Move(float left, std::optional<float> top, std::optional<float> width,
            std::optional<float> height) override {
    RefuseNegative(width.value_or(0));
    RefuseNegative(height.value_or(0));
    bounds_ = {left, top.value_or(bounds_.top), width.value_or(bounds_.width),
               height.value_or(bounds_.height)};
    Note(Change::kGeometry);
  }
  void Visible(bool visible) override {
    visible_ = visible;
    Note(Change::kVisible);
  }
  void BackColor(gabarito::Color color) override {
    color_ = color;
    Note(Change::kColor);
  }
  void Font(const FontRef& font) override {
    if (font == nullptr) Fail(kObjectNotSet);
    font_ = font;
    Note(Change::kFont);
  }

  const Geometry& Bounds() const { return bounds_; }
  bool IsVisible() const { return visible_; }
  gabarito::Color Color() const { return color_; }
  const StdFont& ShownFont() const { return *font_; }
  std::string_view ChildName() const { return design_.name; }

  // What has changed since the last call.
  Changes TakeChanges() { return std::exchange(changes_, Changes()); }

 protected:
  void Note(Change change) { changes_.Note(change); }

  const ChildDesign& design_;
  Geometry bounds_;
  gabarito::Color color_;
  bool visible_ = true;
  Changes changes_;
  FontRef font_ = DesignFont();
};

// Adds what the three children that take input share. `Line` is the text that they hold: TextLine or
// MaskedEdit.
template <class Interface, class Line>
class InputChildModel : public ChildModel<Interface>, public InputModel {
 public:
  using Interface::Enabled;
  using ChildModel<Interface>::Visible;

  InputChildModel(InputKind kind, FieldParts& parts, const ChildDesign& design)
      : ChildModel<Interface>(design), InputModel(kind, parts) {
    line_.Text(design.text);
  }

  std::u16string_view Text() const override { return line_.Text(); }
  void Text(std::u16string_view text) override {
    line_.Text(text);
    NoteEdit();
  }
  std::int32_t SelStart() const override { return line_.SelStart(); }
  void SelStart(std::int32_t start) override {
    line_.SelStart(start);
    this->Note(Change::kSelection);
  }
  std::int32_t SelLength() const override { return line_.SelLength(); }
  void SelLength(std::int32_t length) override {
    line_.SelLength(length);
    this->Note(Change::kSelection);
  }
  void Visible(bool visible) override {
    ChildModel<Interface>::Visible(visible);
    if (!visible) Unsettle();
  }
  void Enabled(bool enabled) override {
    enabled_ = enabled;
    this->Note(Change::kEnabled);
    if (!enabled) Unsettle();
  }
  void SetFocus() override;

  std::string_view Name() const override { return this->design_.name; }
  Control& Owner() override;
  bool CanTakeFocus() const override;

  InputChild& AsChild() override { return *this; }

  Line& Entry() { return line_; }
  const Line& Entry() const { return line_; }
  bool IsEnabled() const { return enabled_; }

  // The text or the selection has been changed through Entry.
  void NoteEdit() {
    this->Note(Change::kText);
    this->Note(Change::kSelection);
  }

 protected:
  // What has the focus may no longer be able to keep it.
  void Unsettle();

  Line line_;
  bool enabled_ = true;
};

}  // namespace gabarito::kit

#endif  // HOSTS_KIT_CHILD_MODEL_H
