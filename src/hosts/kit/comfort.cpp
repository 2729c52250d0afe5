#include "hosts/kit/comfort.h"

#include <algorithm>
#include <string>

#include "hosts/kit/field_parts.h"

namespace gabarito::kit {
namespace {

// A layout lets a label begin a little under the box in front of it.
constexpr float kOverlap = 75;

float LeftOf(InputModel& child) {
  switch (child.Kind()) {
    case InputKind::kCombo:
      return static_cast<ComboModel&>(child).Bounds().left;
    case InputKind::kMasked:
      return static_cast<MaskedModel&>(child).Bounds().left;
    case InputKind::kTextBox:
      break;
  }
  return static_cast<TextBoxModel&>(child).Bounds().left;
}

std::u16string_view WithoutBlanks(std::u16string_view caption) {
  const std::size_t first = caption.find_first_not_of(u' ');
  if (first == std::u16string_view::npos) return {};
  return caption.substr(first, caption.find_last_not_of(u' ') + 1 - first);
}

bool Separates(const LabelModel& label, char16_t character) {
  const std::u16string_view caption = WithoutBlanks(label.Shown());
  return label.IsVisible() && caption.size() == 1 && caption[0] == character;
}

// The child that stands behind `place` and nearest to it.
Focusable* ChildBehind(FieldParts& parts, float place) {
  InputModel* nearest = nullptr;
  for (InputModel* const child : parts.InTabOrder()) {
    if (!child->CanTakeFocus() || LeftOf(*child) < place) continue;
    if (nearest == nullptr || LeftOf(*child) < LeftOf(*nearest)) nearest = child;
  }
  return nearest;
}

bool SeveralShown(FieldParts& parts) {
  const auto children = parts.InTabOrder();
  return std::count_if(children.begin(), children.end(),
                       [](InputModel* child) { return child->CanTakeFocus(); }) > 1;
}

}  // namespace

SeparatorStep StepOver(InputModel& child, char16_t character) {
  SeparatorStep step;
  if (child.Kind() != InputKind::kTextBox) return step;
  FieldParts& parts = child.Parts();
  const auto& box = static_cast<TextBoxModel&>(child);
  // As a jump leaves it: nothing in it, or all of it selected.
  const bool fresh = box.SelLength() == static_cast<std::int32_t>(box.Text().size());
  if (!fresh && box.SelLength() != 0) return step;
  const float end = box.Bounds().left + box.Bounds().width;
  for (const LabelModel& label : parts.lbl_controle) {
    if (!Separates(label, character)) continue;
    const float left = label.Bounds().left;
    if (!fresh && left >= end - kOverlap && ChildBehind(parts, end - kOverlap) == ChildBehind(parts, left)) {
      step.to = ChildBehind(parts, left);
    }
    if (fresh && left < box.Bounds().left && ChildBehind(parts, left) == &child) step.passed = true;
  }
  return step;
}

bool TypeThrough(InputModel& child, std::u16string_view text) {
  FormModel& form = *child.Parts().form;
  if (!form.comfort || child.Kind() != InputKind::kTextBox || !SeveralShown(child.Parts())) return false;
  const auto& box = static_cast<TextBoxModel&>(child);
  const auto kept = static_cast<std::int64_t>(box.Text().size()) - box.SelLength();
  if (box.Limit() == 0 || kept + static_cast<std::int64_t>(text.size()) <= box.Limit()) return false;
  std::u16string typed(text);
  // Typed, a Ctrl+V inside would paste it all again, without end.
  std::erase_if(typed, [](char16_t c) { return c < u' '; });
  form.keyboard.PressLater(typed);
  return true;
}

bool StepBackInside(FormModel& form, const KeyEvent& event) {
  Focusable* const focused = form.focus.Focused();
  if (!form.comfort || !event.synthesised || (event.shift & kShiftMask) == 0) return false;
  if (focused == nullptr || focused->Input() == nullptr) return false;
  Focusable* before = nullptr;
  for (InputModel* const child : focused->Input()->Parts().InTabOrder()) {
    if (child == focused->Input()) break;
    if (child->CanTakeFocus()) before = child;
  }
  if (before != nullptr) form.focus.Move(*before);
  return true;
}

}  // namespace gabarito::kit
