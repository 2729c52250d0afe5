#include "hosts/memory/text_box_widget.h"

#include "gabarito/platform/text.h"
#include "hosts/memory/field.h"
#include "hosts/memory/text_entry.h"

namespace gabarito::memory {

bool TextBoxWidget::Enabled() const {
  Use("Enabled");
  return enabled_;
}

std::int32_t TextBoxWidget::MaxLength() const {
  Use("MaxLength");
  return limit_;
}

void TextBoxWidget::MaxLength(std::int32_t length) {
  Use("MaxLength");
  if (length < 0) throw Erro(kInvalidPropertyValue);
  limit_ = length;
}

float TextBoxWidget::Left() const {
  Use("Left");
  return bounds_.left;
}

float TextBoxWidget::Top() const {
  Use("Top");
  return bounds_.top;
}

float TextBoxWidget::Width() const {
  Use("Width");
  return bounds_.width;
}

float TextBoxWidget::Height() const {
  Use("Height");
  return bounds_.height;
}

void TextBoxWidget::Left(float left) {
  Use("Left");
  bounds_.left = left;
}

void TextBoxWidget::Width(float width) {
  Use("Width");
  RefuseNegative(width);
  bounds_.width = width;
}

void TextBoxWidget::Height(float height) {
  Use("Height");
  RefuseNegative(height);
  bounds_.height = height;
}

void TextBoxWidget::Refresh() { Use("Refresh"); }

void TextBoxWidget::GotFocus() {
  Gabarito& gabarito = *field_;
  look_ == Look::k3D ? gabarito.txt_entrada3D_GotFocus(index_) : gabarito.txt_entrada_GotFocus(index_);
}

bool TextBoxWidget::KeyDown(std::int16_t vk, std::int16_t shift) {
  Gabarito& gabarito = *field_;
  look_ == Look::k3D ? gabarito.txt_entrada3D_KeyDown(index_, vk, shift)
                     : gabarito.txt_entrada_KeyDown(index_, vk, shift);
  KeyInto(line_, anchor_, vk, shift);  // by what the handler has left
  return true;
}

void TextBoxWidget::Character(char16_t character) {
  Gabarito& gabarito = *field_;
  std::int16_t KeyAscii = Asc(character);
  look_ == Look::k3D ? gabarito.txt_entrada3D_KeyPress(index_, KeyAscii)
                     : gabarito.txt_entrada_KeyPress(index_, KeyAscii);
  if (KeyAscii == 0) return;
  TypeInto(line_, Chr(KeyAscii), limit_, form_.System().clipboard);
}

}  // namespace gabarito::memory
