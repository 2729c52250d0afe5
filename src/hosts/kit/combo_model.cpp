#include "hosts/kit/combo_model.h"

#include <algorithm>
#include <limits>

#include "gabarito/platform/text.h"
#include "gabarito/platform/virtual_keys.h"
#include "hosts/kit/field_parts.h"

namespace gabarito::kit {
namespace {

constexpr std::int32_t kPage = 8;  // entries that an open list shows

}  // namespace

ComboModel::ComboModel(FieldParts& parts, const ChildDesign& design)
    : InputChildModel(InputKind::kCombo, parts, design), window_(parts.form->NewWindowHandle()) {}

// The height of a combo box is its own.
void ComboModel::Move(float left, std::optional<float> top, std::optional<float> width,
                      std::optional<float>) {
  InputChildModel::Move(left, top, width, {});
}

void ComboModel::Text(std::u16string_view text) {
  line_.Text(text);
  Edited();
}

void ComboModel::Edited() {
  NoteEdit();
  if (selected_ < 0 || line_.Text() == list_.At(static_cast<std::size_t>(selected_))) return;
  selected_ = -1;
  Note(Change::kSelected);
}

void ComboModel::AddItem(std::u16string_view text) {
  list_.Add(text);
  Note(Change::kList);
}

void ComboModel::Clear() {
  list_.Clear();
  selected_ = -1;
  line_.Text({});
  Note(Change::kList);
  Note(Change::kSelected);
  NoteEdit();
}

std::u16string_view ComboModel::List(std::int16_t index) const {
  if (index < 0 || static_cast<std::size_t>(index) >= list_.Count()) return {};
  return list_.At(static_cast<std::size_t>(index));
}

void ComboModel::ListIndex(std::int16_t index) {
  if (index < -1 || index >= static_cast<std::int32_t>(list_.Count())) Fail(kInvalidPropertyValue);
  Select(index);
}

void ComboModel::Select(std::int16_t index) {
  selected_ = index;
  line_.Text(index < 0 ? std::u16string_view() : list_.At(static_cast<std::size_t>(index)));
  Note(Change::kSelected);
  NoteEdit();
  Parts().Raise([](FieldEvents& field) { field.Combo1_Click(); });
}

float ComboModel::LineHeight() const { return Parts().form->services.metric->LineHeight(*font_); }

void ComboModel::Width(float width) {
  RefuseNegative(width);
  bounds_.width = width;
  Note(Change::kGeometry);
}

void ComboModel::Left(float left) {
  bounds_.left = left;
  Note(Change::kGeometry);
}

void ComboModel::ToolTipText(std::u16string_view text) {
  tool_tip_ = text;
  Note(Change::kToolTip);
}

std::int32_t ComboModel::SendMessageA(std::int32_t message, std::int32_t wParam, std::u16string_view text) {
  if (message == kCbFindString && wParam == -1) return list_.FindBeginning(text);
  if (message == kCbShowDropDown) DropDown(wParam != 0);
  return 0;
}

void ComboModel::DropDown(bool open) {
  if (dropped_down_ == open) return;
  dropped_down_ = open;
  Note(Change::kDroppedDown);
}

void ComboModel::LostFocus() {
  DropDown(false);
  Parts().Raise([](FieldEvents& field) { field.Combo1_LostFocus(); });
}

char16_t ComboModel::KeyPress(char16_t character) {
  std::int16_t KeyAscii = Asc(character);
  Parts().Raise([&](FieldEvents& field) { field.Combo1_KeyPress(KeyAscii); });
  return KeyAscii == 0 ? u'\0' : Chr(KeyAscii);
}

void ComboModel::KeyUp(std::int16_t vk, std::int16_t shift) {
  Parts().Raise([&](FieldEvents& field) { field.Combo1_KeyUp(vk, shift); });
}

void ComboModel::HandOver(std::u16string_view text, std::int32_t selStart, std::int32_t selLength) {
  if (line_.Text() != text) {
    line_.Text(text);
    // The widget shows the text already, but not yet that no entry is selected.
    if (selected_ >= 0 && text != list_.At(static_cast<std::size_t>(selected_))) {
      selected_ = -1;
      Note(Change::kSelected);
    }
  }
  line_.SelStart(selStart);
  line_.SelLength(selLength);
}

bool ComboModel::ChooseByKey(std::int16_t vk, std::int16_t shift) {
  const bool arrow = vk == kVkUp || vk == kVkDown;
  if (vk == kVkF4 || (arrow && (shift & kAltMask) != 0)) {
    DropDown(!dropped_down_);
    return true;
  }
  std::int32_t step;
  switch (vk) {
    case kVkUp:
      step = -1;
      break;
    case kVkDown:
      step = 1;
      break;
    case kVkPageUp:
      step = -kPage;
      break;
    case kVkPageDown:
      step = kPage;
      break;
    default:
      return false;
  }
  const auto count = static_cast<std::int32_t>(list_.Count());
  if (count == 0) return true;
  const std::int32_t target = std::clamp(selected_ + step, 0, count - 1);
  if (target == selected_) return true;
  const auto held = Owner().Hold();
  Select(static_cast<std::int16_t>(target));
  line_.SelLength(std::numeric_limits<std::int32_t>::max());
  return true;
}

void ComboModel::Pick(std::int16_t index) {
  if (index < 0 || index >= static_cast<std::int32_t>(list_.Count())) return;
  const auto held = Owner().Hold();
  Select(index);
  line_.SelLength(std::numeric_limits<std::int32_t>::max());
  DropDown(false);
}

}  // namespace gabarito::kit
