#include "hosts/kit/text_box_model.h"

#include "gabarito/platform/text.h"
#include "hosts/kit/field_parts.h"

namespace gabarito::kit {

void TextBoxModel::MaxLength(std::int32_t length) {
  if (length < 0) Fail(kInvalidPropertyValue);
  limit_ = length;
  Note(Change::kLimit);
}

void TextBoxModel::TextOf(const TextBox& other) {
  if (&other == this) return Text(other.Text());
  line_.CopyOf(static_cast<const TextBoxModel&>(other).line_);
  NoteEdit();
}

void TextBoxModel::Left(float left) {
  bounds_.left = left;
  Note(Change::kGeometry);
}

void TextBoxModel::Width(float width) {
  RefuseNegative(width);
  bounds_.width = width;
  Note(Change::kGeometry);
}

void TextBoxModel::Height(float height) {
  RefuseNegative(height);
  bounds_.height = height;
  Note(Change::kGeometry);
}

void TextBoxModel::GotFocus() {
  Parts().Raise([&](FieldEvents& field) {
    look_ == Look::k3D ? field.txt_entrada3D_GotFocus(index_) : field.txt_entrada_GotFocus(index_);
  });
}

void TextBoxModel::KeyDown(std::int16_t& vk, std::int16_t& shift) {
  Parts().Raise([&](FieldEvents& field) {
    look_ == Look::k3D ? field.txt_entrada3D_KeyDown(index_, vk, shift)
                       : field.txt_entrada_KeyDown(index_, vk, shift);
  });
}

char16_t TextBoxModel::KeyPress(char16_t character) {
  std::int16_t KeyAscii = Asc(character);
  Parts().Raise([&](FieldEvents& field) {
    look_ == Look::k3D ? field.txt_entrada3D_KeyPress(index_, KeyAscii)
                       : field.txt_entrada_KeyPress(index_, KeyAscii);
  });
  return KeyAscii == 0 ? u'\0' : Chr(KeyAscii);
}

void TextBoxModel::HandOver(std::u16string_view text, std::int32_t selStart, std::int32_t selLength) {
  if (line_.Text() != text) line_.Text(text);
  line_.SelStart(selStart);
  line_.SelLength(selLength);
}

}  // namespace gabarito::kit
