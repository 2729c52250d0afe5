#include "hosts/memory/combo_widget.h"

#include <algorithm>
#include <limits>

#include "gabarito/platform/text.h"
#include "hosts/memory/field.h"
#include "hosts/memory/text_entry.h"

namespace gabarito::memory {
namespace {

constexpr std::int16_t kVkPageUp = 33, kVkPageDown = 34, kVkUp = 38, kVkDown = 40, kVkF4 = 115;
constexpr std::int32_t kPage = 8;  // entries that an open list shows

}  // namespace

ComboWidget::ComboWidget(Field& field, Form& form, Control& owner, const ChildDesign& design)
    : InputWidget(field, form, owner, design), window_(form.AllWindows().Open(this)) {}

ComboWidget::~ComboWidget() { form_.AllWindows().Close(window_); }

bool ComboWidget::Visible() const {
  Use("Visible");
  return visible_;
}

Color ComboWidget::BackColor() const {
  Use("BackColor");
  return color_;
}

// The height of a combo box is its own.
void ComboWidget::Move(float left, std::optional<float> top, std::optional<float> width,
                       std::optional<float>) {
  InputWidget::Move(left, top, width, {});
}

void ComboWidget::Text(std::u16string_view text) {
  InputWidget::Text(text);
  Edited();
}

void ComboWidget::Edited() {
  if (selected_ >= 0 && line_.Text() != list_.At(static_cast<std::size_t>(selected_))) selected_ = -1;
}

void ComboWidget::AddItem(std::u16string_view text) {
  Use("AddItem");
  list_.Add(text);
}

void ComboWidget::Clear() {
  Use("Clear");
  list_.Clear();
  selected_ = -1;
  line_.Text({});
}

std::u16string_view ComboWidget::List(std::int16_t index) const {
  Use("List");
  if (index < 0 || static_cast<std::size_t>(index) >= list_.Count()) return {};
  return list_.At(static_cast<std::size_t>(index));
}

std::int16_t ComboWidget::ListCount() const {
  Use("ListCount");
  return static_cast<std::int16_t>(list_.Count());
}

std::int16_t ComboWidget::ListIndex() const {
  Use("ListIndex");
  return selected_;
}

void ComboWidget::ListIndex(std::int16_t index) {
  Use("ListIndex");
  if (index < -1 || index >= static_cast<std::int32_t>(list_.Count())) throw Erro(kInvalidPropertyValue);
  Select(index);
}

void ComboWidget::Select(std::int16_t index) {
  selected_ = index;
  line_.Text(index < 0 ? std::u16string_view() : list_.At(static_cast<std::size_t>(index)));
  field_->Combo1_Click();
}

float ComboWidget::Height() const {
  Use("Height");
  return LineHeight();
}

float ComboWidget::Width() const {
  Use("Width");
  return bounds_.width;
}

void ComboWidget::Width(float width) {
  Use("Width");
  RefuseNegative(width);
  bounds_.width = width;
}

void ComboWidget::Left(float left) {
  Use("Left");
  bounds_.left = left;
}

void ComboWidget::ToolTipText(std::u16string_view text) {
  Use("ToolTipText");
  tool_tip_ = text;
}

WindowHandle ComboWidget::hWnd() const {
  Use("hWnd");
  return window_;
}

void ComboWidget::LostFocus() {
  dropped_down_ = false;
  field_->Combo1_LostFocus();
}

bool ComboWidget::KeyDown(std::int16_t vk, std::int16_t shift) {
  if (const char16_t key = ClipboardKey(vk, shift)) {
    TypeInto(line_, key, 0, form_.System().clipboard);
    Edited();
    return false;
  }
  if (ChooseByKey(vk, shift)) return true;
  if (vk == kVkReturn || vk == kVkEscape) dropped_down_ = false;
  KeyInto(line_, anchor_, vk, shift);
  Edited();
  return true;
}

bool ComboWidget::ChooseByKey(std::int16_t vk, std::int16_t shift) {
  const bool arrow = vk == kVkUp || vk == kVkDown;
  if (vk == kVkF4 || (arrow && (shift & kAltMask) != 0)) {
    dropped_down_ = !dropped_down_;
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
  Select(static_cast<std::int16_t>(target));
  line_.SelLength(std::numeric_limits<std::int32_t>::max());
  return true;
}

void ComboWidget::Character(char16_t character) {
  std::int16_t KeyAscii = Asc(character);
  field_->Combo1_KeyPress(KeyAscii);
  if (KeyAscii == 0) return;
  TypeInto(line_, Chr(KeyAscii), 0, form_.System().clipboard);
  Edited();
}

void ComboWidget::KeyUp(std::int16_t vk, std::int16_t shift) { field_->Combo1_KeyUp(vk, shift); }

void ComboWidget::Pick(std::int16_t index) {
  if (index < 0 || index >= static_cast<std::int32_t>(list_.Count())) return;
  Select(index);
  line_.SelLength(std::numeric_limits<std::int32_t>::max());
  dropped_down_ = false;
}

}  // namespace gabarito::memory
